// The tables of the calculator, row by row.
#include "tools/chord_manager/chord_tables.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace tabrova {
namespace {

TEST(ChordTables, AllStringsWithTheirNotesAndTheirRowsInTheDocument) {
    const std::vector<std::tuple<std::string, int, int>> rows = {
        {"Low E", 40, 5}, {"A", 45, 4}, {"D", 50, 3}, {"G", 55, 2}, {"B", 59, 1}, {"High E", 64, 0}};
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        const ChordStringRow& row = ChordStringTable[string];
        EXPECT_EQ(std::make_tuple(std::string(row.name), row.openNote, row.documentRow), rows[string]);
    }
}

// Written as the strings' letters, from the lowest: E A D G B e.
TEST(ChordTables, AllNotesWithTheirMarksAndTheRootsMark) {
    const std::map<std::string, std::pair<std::string, std::string>> rows = {
        {"A", {"A0 G2", "A0"}},     {"A#", {"A1 G3", "A1"}},   {"B", {"A2 B0", "A2"}},
        {"C", {"A3 B1", "A3"}},     {"C#", {"A4 B2", "A4"}},   {"D", {"D0 B3", "D0"}},
        {"D#", {"D1 G4", "D1"}},    {"E", {"E0 D2 e0", "E0"}}, {"F", {"E1 D3 e1", "E1"}},
        {"F#", {"E2 D4 e2", "E2"}}, {"G", {"E3 G0 e3", "E3"}}, {"G#", {"E4 G1 e4", "E4"}}};
    const auto written = [](const ChordPlace& place) {
        return std::string(1, "EADGBe"[place.string]) + std::to_string(place.fret);
    };
    std::set<std::string> names;
    for (std::size_t note = 0; note < ChordNotes; ++note) {
        const ChordNoteRow& row = chordNoteTable()[note];
        std::string places;
        for (const ChordPlace& place : row.places)
            places += (places.empty() ? "" : " ") + written(place);
        EXPECT_EQ(std::make_pair(places, written(rootMark(note))), rows.at(row.name)) << row.name;
        EXPECT_EQ(row.sharp, std::string(row.name).ends_with('#'));
        const std::string mark =
            row.sharp ? std::string("mn") + row.name[0] + "s" : std::string("mn") + row.name;
        EXPECT_EQ(row.staffMark, mark);
        names.insert(row.name);
    }
    EXPECT_EQ(names.size(), 12u);
    EXPECT_STREQ(chordNoteTable()[0].name, "A");
    EXPECT_STREQ(chordNoteTable()[11].name, "G#");
}

struct Type {
    const char* name;
    std::vector<int> semitones;
};

const std::vector<Type> AllTypes = {{"Maj", {0, 4, 7}},
                                    {"m", {0, 3, 7}},
                                    {"7", {0, 4, 7, 10}},
                                    {"m7", {0, 3, 7, 10}},
                                    {"maj7", {0, 4, 7, 11}},
                                    {"sus4", {0, 5, 7}},
                                    {"7sus4", {0, 5, 7, 10}},
                                    {"6", {0, 4, 7, 9}},
                                    {"m6", {0, 3, 7, 9}},
                                    {"+", {0, 4, 8}},
                                    {"0", {0, 3, 6, 9}},
                                    {"7-5", {0, 4, 6, 10}},
                                    {"7+5", {0, 4, 8, 10}},
                                    {"m7-5", {0, 3, 6, 10}},
                                    {"m maj7", {0, 3, 7, 11}},
                                    {"maj7+5", {0, 4, 8, 11}},
                                    {"maj7-5", {0, 4, 7, 11}},
                                    {"9", {0, 4, 7, 10, 14}},
                                    {"m9", {0, 3, 7, 10, 14}},
                                    {"maj9", {0, 4, 7, 11, 14}},
                                    {"7+9", {0, 4, 7, 10, 15}},
                                    {"7-9", {0, 4, 7, 10, 13}},
                                    {"7+9-5", {0, 4, 6, 10, 15}},
                                    {"6 9", {0, 4, 7, 9, 14}},
                                    {"9+5", {0, 4, 8, 10, 14}},
                                    {"9-5", {0, 4, 6, 10, 14}},
                                    {"m9-5", {0, 3, 6, 10, 14}},
                                    {"11", {0, 4, 7, 10, 14, 17}},
                                    {"m11", {0, 3, 7, 10, 14, 17}},
                                    {"11-9", {0, 4, 7, 10, 13, 17}},
                                    {"13", {0, 4, 7, 10, 14, 17, 21}},
                                    {"m13", {0, 3, 7, 10, 14, 17, 21}},
                                    {"maj13", {0, 4, 7, 11, 14, 17, 21}}};

TEST(ChordTables, AllBuiltInTypesInTheirOrder) {
    ASSERT_EQ(builtInChordTypes().size(), 33u);
    ASSERT_EQ(AllTypes.size(), 33u);
    for (std::size_t type = 0; type < AllTypes.size(); ++type) {
        const ChordTypeRow& row = builtInChordTypes()[type];
        std::string pattern(22, '0');
        for (const int semitones : AllTypes[type].semitones)
            pattern[static_cast<std::size_t>(semitones)] = '1';
        EXPECT_STREQ(row.name, AllTypes[type].name);
        EXPECT_EQ(row.pattern, pattern) << row.name;
    }
}

} // namespace
} // namespace tabrova
