// The heights of all pitches, one by one, and the pitch of a cell.
#include "tabview/notation_pitch.h"
#include "tests/tabview/page_helpers.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

constexpr StaffPlace Expected[] = {
    {159, false}, {159, true},  {156, false}, {156, true},  {153, false}, {150, false}, {150, true},
    {147, false}, {147, true},  {144, false}, {144, true},  {141, false}, {138, false}, {138, true},
    {135, false}, {135, true},  {132, false}, {129, false}, {129, true},  {126, false}, {126, true},
    {123, false}, {123, true},  {120, false}, {117, false}, {117, true},  {114, false}, {114, true},
    {111, false}, {108, false}, {108, true},  {105, false}, {105, true},  {102, false}, {102, true},
    {99, false},  {96, false},  {96, true},   {93, false},  {93, true},   {90, false},  {87, false},
    {87, true},   {84, false},  {84, true},   {81, false},  {81, true},   {78, false},  {75, false},
    {75, true},   {72, false},  {72, true},   {69, false},  {66, false},  {66, true},   {63, false},
    {63, true},   {60, false},  {60, true},   {57, false},  {54, false},  {54, true},   {51, false},
    {51, true},   {48, false},  {45, false},  {45, true},   {42, false},  {42, true},   {39, false},
    {39, true},   {36, false},  {33, false},  {33, true},   {30, false},  {30, true},   {27, false},
    {24, false},  {24, true},   {21, false},  {21, true},   {18, false},  {18, true},   {15, false},
    {12, false},  {12, true},   {9, false},   {9, true},    {6, false},   {3, false},   {3, true},
    {0, false},   {0, true},    {-3, false},  {-3, true},   {-6, false},  {-9, false},  {-9, true},
    {-12, false}, {-12, true},  {-15, false}, {-18, false}, {-18, true},  {-21, false}, {-21, true},
    {-24, false}, {-25, true},  {-28, false}, {-31, false}, {-31, true},  {-34, false}};

TEST(StaffPlaces, AllPitchesFrom0To110) {
    ASSERT_EQ(std::size(Expected), 111u);
    for (int pitch = 0; pitch <= 110; ++pitch) {
        const auto place = staffPlaceOf(pitch);
        ASSERT_TRUE(place) << pitch;
        EXPECT_EQ(place->y, Expected[pitch].y) << pitch;
        EXPECT_EQ(place->sharp, Expected[pitch].sharp) << pitch;
    }
}

TEST(StaffPlaces, FollowTheStepsButForTheFiveHighest) {
    constexpr int steps[] = {0, 0, 1, 1, 2, 3, 3, 4, 4, 5, 5, 6};
    int raised = 0;
    for (int pitch = 0; pitch <= 110; ++pitch)
        if (staffPlaceOf(pitch)->y != 159 - 3 * (7 * (pitch / 12) + steps[pitch % 12])) ++raised;
    EXPECT_EQ(raised, 5);
    EXPECT_EQ(*staffPlaceOf(106), (StaffPlace{-25, true}));
    EXPECT_EQ(*staffPlaceOf(107), (StaffPlace{-28, false}));
    EXPECT_EQ(*staffPlaceOf(108), (StaffPlace{-31, false}));
    EXPECT_EQ(*staffPlaceOf(109), (StaffPlace{-31, true}));
    EXPECT_EQ(*staffPlaceOf(110), (StaffPlace{-34, false}));
    EXPECT_EQ(staffPlaceOf(64)->y, 48);
}

// The lower staff's top line is 61 below the strip's top edge of the two staves.
TEST(StaffPlaces, TheLowerStaffsTopLineIsThePlaceOfPitch40) { EXPECT_EQ(staffPlaceOf(40)->y + 41, 131); }

TEST(StaffPlaces, NothingOutsideTheTable) {
    for (const int pitch : {-32768, -1, 111, 32767})
        EXPECT_FALSE(staffPlaceOf(pitch)) << pitch;
}

TEST(NotatedPitch, IsTheMidiNoteOnStandardTuning) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    constexpr int open[] = {64, 59, 55, 50, 45, 40};
    for (int string = 0; string < 6; ++string) {
        EXPECT_EQ(notatedPitch(document, "0", string, string), open[string]);
        EXPECT_EQ(notatedPitch(document, "12", string, string), open[string] + 12);
    }
}

TEST(NotatedPitch, FollowsTheRowsTuning) {
    Document document;
    makePage(document, 2, 1, 984, 472);
    document.TuningTable.assign(12, 13);
    document.TuningTable[11] = 11;
    document.TuningTable[5] = 99;
    EXPECT_EQ(notatedPitch(document, "0", 5, 11), 38);
}

TEST(NotatedPitch, RoundsAFractionHalfToEven) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    EXPECT_EQ(notatedPitch(document, "0.5", 0, 0), 64);
    EXPECT_EQ(notatedPitch(document, "1.5", 0, 0), 66);
    EXPECT_EQ(notatedPitch(document, " -3 ", 0, 0), 61);
}

TEST(NotatedPitch, FailsForWhatIsNoNumberHasNoTuningOrIsTooLarge) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    for (const char* text : {"", "x", ">", "no", "40000", "1e300", "-99999"})
        EXPECT_FALSE(notatedPitch(document, text, 0, 0)) << text;
    EXPECT_FALSE(notatedPitch(document, "1", 0, 6));
    EXPECT_FALSE(notatedPitch(document, "1", 0, -1));
    document.TuningTable[0] = 32767;
    EXPECT_FALSE(notatedPitch(document, "1", 0, 0));
}

} // namespace
} // namespace tabrova::testing
