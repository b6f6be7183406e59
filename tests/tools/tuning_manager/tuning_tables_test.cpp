// The tables of the tuning manager: each list, each preset by its notes, each letter, each position.
#include "tools/tuning_manager/tuning_tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace tabrova {
namespace {

using Items = std::vector<std::string>;

Items itemsOf(std::size_t string) {
    Items items;
    for (int item = 0; item < TuningItems; ++item)
        items.push_back(tuningItem(string, item));
    return items;
}

TEST(TuningTables, AllStrings) {
    const std::vector<std::tuple<std::string, int, std::string>> rows = {
        {"Low E", 40, "TuningL Image3"}, {"A", 45, "TuningA Image1"}, {"D", 50, "TuningD Image2"},
        {"G", 55, "TuningG Image4"},     {"B", 59, "TuningB Image5"}, {"High E", 64, "TuningE Image6"}};
    for (std::size_t string = 0; string < TuningStrings; ++string) {
        const TuningStringRow& row = TuningStringTable[string];
        EXPECT_EQ(std::make_tuple(std::string(row.name), row.standardNote,
                                  std::string(row.list) + " " + row.button),
                  rows[string]);
    }
}

TEST(TuningTables, TheListOfTheLowEReadsFromAnOctaveBelowToAnOctaveAbove) {
    const Items wanted = {"-E",  "-F", "-F#", "-G",  "-G#", "-A",  "-A#", "-B",  "-C",
                          "-C#", "-D", "-D#", "E",   "+F",  "+F#", "+G",  "+G#", "+A",
                          "+A#", "+B", "+C",  "+C#", "+D",  "+D#", "+E"};
    EXPECT_EQ(itemsOf(0), wanted);
    EXPECT_EQ(itemsOf(5), wanted);
}

TEST(TuningTables, EachListHasItsStandardNoteInTheMiddle) {
    const char* standard[] = {"E", "A", "D", "G", "B", "E"};
    for (std::size_t string = 0; string < TuningStrings; ++string) {
        const Items items = itemsOf(string);
        EXPECT_EQ(items[12], standard[string]);
        EXPECT_EQ(items[0], std::string("-") + standard[string]);
        EXPECT_EQ(items[24], std::string("+") + standard[string]);
        for (int item = 1; item < 12; ++item)
            EXPECT_EQ(items[static_cast<std::size_t>(item)].substr(1),
                      items[static_cast<std::size_t>(item) + 12].substr(1))
                << "an octave apart";
    }
}

// By the MIDI notes of the strings, the lowest first.
const std::vector<std::pair<std::string, std::string>> Presets = {
    {"Standard Tuning (Concert)", "40 45 50 55 59 64"}, {"Dropped D (DADGBE)", "38 45 50 55 59 64"},
    {"Open A (EAEAC#E)", "40 45 52 57 61 64"},          {"Open C (CGCGCE)", "36 43 48 55 60 64"},
    {"Open C Minor (CGCGCEb)", "36 43 48 55 60 63"},    {"Open D (DADF#AD)", "38 45 50 54 57 62"},
    {"Open D Minor (DADFAD)", "38 45 50 53 57 62"},     {"Open Dsus4 (DADGAD)", "38 45 50 55 57 62"},
    {"Open E (EBEG#BE)", "40 47 52 56 59 64"},          {"Open E Minor (EBEGBE)", "40 47 52 55 59 64"},
    {"Open Esus11 (EAEGBE)", "40 45 52 55 59 64"},      {"Open F (CFCFAC)", "36 41 48 53 57 60"},
    {"Open F (FACFCF)", "41 45 48 53 60 65"},           {"Open G (DGDGBD)", "38 43 50 55 59 62"},
    {"Open G (GBDGBD)", "43 47 50 55 59 62"},           {"Alternate I (EGDEAE)", "40 43 50 52 57 64"},
    {"Alternate II (CGDAEG)", "36 43 50 57 52 67"},     {"Alternate III (CGDGBE)", "36 43 50 55 59 64"},
    {"Nashville (EADGBE)", "52 57 62 67 59 64"},        {"Down a step (EbAbDbGbBbEb)", "39 44 49 54 58 63"},
    {"6 String Bass (BEADGC)", "35 40 45 50 55 60"},
};

TEST(TuningTables, AllPresetsInTheirOrder) {
    ASSERT_EQ(tuningPresets().size(), 21u);
    for (std::size_t preset = 0; preset < Presets.size(); ++preset) {
        std::string notes;
        for (std::size_t string = 0; string < TuningStrings; ++string)
            notes += (string ? " " : "") + std::to_string(TuningStringTable[string].standardNote +
                                                          tuningPresets()[preset].items[string] - 12);
        EXPECT_EQ(tuningPresets()[preset].caption, Presets[preset].first);
        EXPECT_EQ(notes, Presets[preset].second) << Presets[preset].first;
    }
}

TEST(TuningTables, AllLetters) {
    EXPECT_EQ(tuningLetter(0), 'A');
    EXPECT_EQ(tuningLetter(12), 'M');
    EXPECT_EQ(tuningLetter(24), 'Y');
    for (int item = 0; item < TuningItems; ++item)
        EXPECT_EQ(itemOfLetter(tuningLetter(item)), item);
    for (const char letter : {'@', 'Z', 'a', 'm', 'y', ' ', '0', '\xC1', '\0'})
        EXPECT_EQ(itemOfLetter(letter), std::nullopt) << letter;
}

TEST(TuningTables, APositionIsThePlaceInTheListButOnTheAString) {
    for (const std::size_t string : {0u, 2u, 3u, 4u, 5u})
        for (int item = 0; item < TuningItems; ++item)
            EXPECT_EQ(assignedPosition(string, tuningItem(string, item)), item + 1) << string;
}

TEST(TuningTables, TheAStringHasPositionsOfItsOwn) {
    const std::vector<std::pair<std::string, int>> rows = {
        {"-A", 1},   {"-B", 2},  {"-B#", 3},  {"-C", 4},  {"-C#", 5},  {"-D", 6},  {"-D#", 7},
        {"-E", 8},   {"-F", 9},  {"-F#", 10}, {"-G", 11}, {"-G#", 12}, {"A", 13},  {"+A#", 14},
        {"+B", 15},  {"+C", 16}, {"+C#", 17}, {"+D", 18}, {"+D#", 19}, {"+E", 20}, {"+F", 21},
        {"+F#", 22}, {"+G", 23}, {"+G#", 24}, {"+A", 25}};
    for (const auto& [text, position] : rows)
        EXPECT_EQ(assignedPosition(1, text), position) << text;
    EXPECT_EQ(assignedPosition(1, "-A#"), 13);
}

TEST(TuningTables, ATextThatMatchesNothingIsTheStandardNote) {
    for (std::size_t string = 0; string < TuningStrings; ++string)
        for (const char* text : {"", "H", "-", "++E", "e"})
            EXPECT_EQ(assignedPosition(string, text), 13);
}

} // namespace
} // namespace tabrova
