// From a fret to a MIDI note and from the lists' texts to numbers, at the edges of tables and lists.
#include "sound/pitch.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(Pitch, IsFretOpenNoteAndTuningLess13) {
    Document document;
    document.TuningTable = {13, 14, 12, 25, 0, -20};
    const int expected[] = {64, 60, 54, 62, 32, 7};
    for (int string = 0; string < StringsPerTrack; ++string) {
        EXPECT_EQ(frettedPitch(document, "0", string, string), expected[string]);
        EXPECT_EQ(frettedPitch(document, " 12 ", string, string), expected[string] + 12);
    }
    EXPECT_EQ(frettedPitch(document, "2.5", 0, 0), 66);
    EXPECT_EQ(frettedPitch(document, "3.5", 0, 0), 68);
}

TEST(Pitch, NeedsATuningThatTheTableHolds) {
    Document document;
    document.TuningTable.assign(6, StandardTuning);
    EXPECT_EQ(frettedPitch(document, "5", 0, 0), 69);
    EXPECT_EQ(frettedPitch(document, "5", 0, 5), 69);
    for (const int index : {-1, -2, 6, 7, 1000000})
        EXPECT_EQ(frettedPitch(document, "5", 0, index), std::nullopt) << index;
    document.TuningTable.clear();
    EXPECT_EQ(frettedPitch(document, "5", 0, 0), std::nullopt);
}

TEST(Pitch, OfWhatIsNoNumberThereIsNone) {
    Document document;
    document.TuningTable.assign(6, StandardTuning);
    for (const char* text : {"", "x", ">", "1e9", "32767"})
        EXPECT_EQ(frettedPitch(document, text, 0, 0), std::nullopt) << text;
}

TEST(ListNumber, IsThatOfARowThatTheListHolds) {
    const std::vector<std::string> list = {"100", " 2.5 ", "loud", "70000"};
    EXPECT_EQ(listNumber(list, 0), 100.0);
    EXPECT_EQ(listNumber(list, 1), 2.5);
    EXPECT_EQ(listNumber(list, 3), 70000.0);
    for (const int row : {-1, -2, 2, 4, 5})
        EXPECT_EQ(listNumber(list, row), std::nullopt) << row;
    EXPECT_EQ(listNumber({}, 0), std::nullopt);
}

TEST(ListInteger, IsRoundedHalfToEvenWithinSixteenBits) {
    const std::vector<std::string> list = {"100", "2.5", "3.5", "70000", "?"};
    EXPECT_EQ(listInteger(list, 0), 100);
    EXPECT_EQ(listInteger(list, 1), 2);
    EXPECT_EQ(listInteger(list, 2), 4);
    for (const int row : {-1, 3, 4, 5})
        EXPECT_EQ(listInteger(list, row), std::nullopt) << row;
}

} // namespace
} // namespace tabrova
