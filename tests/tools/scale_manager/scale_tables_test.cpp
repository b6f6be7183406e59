// The tables of the scale manager, row by row.
#include "tools/scale_manager/scale_calculator.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace tabrova {
namespace {

// Each built-in type as its file holds it: five slots a string, the lowest first.
const std::vector<std::pair<std::string, std::string>> Files = {
    {"Major", "990249902499124991249924599999"},
    {"Natural Minor", "990239902399024999029901399990"},
    {"Harmonic Minor", "990239902399024999029014599999"},
    {"Melodic Minor", "990239902499124999029024599999"},
    {"Arabian", "990249901391246992359994599999"},
    {"Balinese", "990139901399235992359999999999"},
    {"Byzantine", "990149902391236992459994599999"},
    {"Diminished Scale HW", "901349912499023901349923599999"},
    {"Diminished Scale WH", "990239013499023999999999999999"},
    {"East Indian Purvi", "990149912399123999139994599999"},
    {"Enigmatic", "990149991390123999139134599999"},
    {"Harmonic Major", "990249902399124991249991499990"},
    {"Hijaz", "990149902399023999129901399990"},
    {"Hungarian Gypsy", "990249123499924999139901299990"},
    {"Hungarian Major", "990349912499902999999999999999"},
    {"Hungarian Minor", "990239912399912999999999999999"},
    {"Neopolitan Major", "990139902499912999999999999999"},
    {"Oriental", "990149901499902999999999999999"},
    {"Persian", "990149901399912999999999999999"},
    {"Whole Tone Scale", "990249991399990999999999999999"},
    {"Major Pentatonic", "990249992499992999999999999999"},
    {"Minor Pentatonic", "990239992499992999999999999999"},
    {"Suspended Pentatonic", "999029990299902999999999999999"},
    {"Japanese In Sen Scale", "999019990299991999999999999999"},
    {"2nd Mode of In Sen", "999049991499902999999999999999"},
    {"Dorian", "990239902499912999999999999999"},
    {"Phrygian", "990139902399912999999999999999"},
    {"Lydian", "990249912499912999999999999999"},
    {"Mixolydian", "990249902499902999999999999999"},
    {"Locrian", "990139901399902999999999999999"},
    {"Phrygian #6", "990139902499902999999999999999"},
    {"Lydian Augmented", "990249913499912999999999999999"},
    {"Lydian Dominant", "990249912499902999999999999999"},
    {"Fifth Mode", "990249902399902999999999999999"},
    {"Locrian #2", "990239901399902999999999999999"},
    {"Basic Pentatonic", "999039990299902999029990399903"},
};

TEST(ScaleTables, AllBuiltInTypesInTheirOrder) {
    ASSERT_EQ(builtInScales().size(), 36u);
    for (std::size_t type = 0; type < Files.size(); ++type) {
        EXPECT_EQ(builtInScales()[type].name, Files[type].first);
        EXPECT_EQ(scaleLine(builtInScales()[type].fields), Files[type].second) << Files[type].first;
    }
}

TEST(ScaleTables, AllStrings) {
    const std::vector<std::pair<int, std::string>> rows = {
        {40, "DotL nt_l lst_LOWE"}, {45, "DotA nt_a lst_A"}, {50, "DotD nt_d lst_D"},
        {55, "DotG nt_g lst_G"},    {59, "DotB nt_b lst_B"}, {64, "DotE nt_e lst_E"}};
    for (std::size_t string = 0; string < ScaleStrings; ++string) {
        const ScaleStringRow& row = ScaleStringTable[string];
        EXPECT_EQ(row.openNote, rows[string].first);
        EXPECT_EQ(std::string(row.marks) + " " + row.labels + " " + row.entries, rows[string].second);
    }
}

// As many frets as the key lies above E.
TEST(ScaleTables, AllKeys) {
    const std::vector<std::string> fromE = {"E", "F", "F#", "G", "G#", "A", "A#", "B", "C", "C#", "D", "D#"};
    const std::vector<std::string> fromA = {"A", "A#", "B", "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#"};
    for (std::size_t key = 0; key < ScaleKeys; ++key) {
        EXPECT_EQ(ScaleKeyTable[key].name, fromA[key]);
        EXPECT_EQ(fromE[static_cast<std::size_t>(ScaleKeyTable[key].shift)], fromA[key]);
    }
}

TEST(ScaleTables, AllMarksForBothHands) {
    const std::vector<int> right = {-60,  300,  660,  990,  1320, 1650, 1980, 2340, 2670, 3030,
                                    3360, 3720, 4080, 4410, 4740, 5070, 5400, 5760, 6120};
    for (std::size_t fret = 0; fret < ScaleMarks; ++fret) {
        EXPECT_EQ(markPosition(NeckView::RightHanded, fret), right[fret]);
        EXPECT_EQ(markPosition(NeckView::LeftHanded, fret), fret == 18 ? 6120 : right[17 - fret]) << fret;
    }
}

} // namespace
} // namespace tabrova
