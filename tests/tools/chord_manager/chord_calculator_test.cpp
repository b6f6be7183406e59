// The calculator's steps: values from a text, notes, frets by the three styles, and a user's chord.
#include "tools/chord_manager/chord_calculator.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

constexpr std::size_t C = 3, Ds = 6, Gs = 11, E = 7;
constexpr std::string_view Major = "1000100100000000000000";

ChordDisplay computed(std::size_t root, std::string_view pattern, CalculatorStyle style) {
    ChordDisplay display;
    showChordNotes(display, root, chordValues(pattern));
    pickChordFrets(display, style);
    return display;
}

// The frets from the lowest string, in one word.
std::string frets(const ChordDisplay& display) {
    std::string all;
    for (const std::string& fret : display.frets)
        all += fret.empty() ? "-" : fret;
    return all;
}

// The marks of one string, "." for none, "o" for a plain one and "R" for the root's color.
std::string marks(const ChordDisplay& display, std::size_t string) {
    std::string all;
    for (const ChordMarkState& mark : display.marks[string])
        all += !mark.visible ? '.' : mark.color == MarkColor::Root ? 'R' : 'o';
    return all;
}

std::string keys(const ChordDisplay& display) {
    std::string all;
    for (const ChordKeyState& key : display.chkKey)
        all += !key.checked ? '.' : key.root ? 'R' : 'o';
    return all;
}

std::string staff(const ChordDisplay& display) {
    std::string all;
    for (const bool shown : display.staff)
        all += shown ? 'o' : '.';
    return all;
}

TEST(ChordValuesOf, AreTheDigitsAtTheirPlaces) {
    ChordValues values = chordValues("1203456789000000000000");
    EXPECT_EQ(values[0], 1);
    EXPECT_EQ(values[1], 2);
    EXPECT_EQ(values[9], 9);
    EXPECT_EQ(values[10], 0);
    values = chordValues("1x1 /:1");
    EXPECT_EQ((std::array{values[0], values[1], values[2], values[3], values[4], values[5], values[6]}),
              (std::array{1, 0, 1, 0, 0, 0, 1}));
}

TEST(ChordValuesOf, AShortTextIsFilledUpAndALongOneIsCut) {
    EXPECT_EQ(chordValues("10001001"), chordValues(Major));
    EXPECT_EQ(chordValues(std::string(Major) + "1111"), chordValues(Major));
    EXPECT_EQ(chordValues(""), ChordValues{});
    EXPECT_EQ(chordValues("0000000000000000000001")[21], 1);
}

TEST(ChordCalculator, CMajorWithOpenStringsAndBarre) {
    EXPECT_EQ(frets(computed(C, Major, CalculatorStyle::OpenStrings)), "032010");
    EXPECT_EQ(frets(computed(C, Major, CalculatorStyle::Barre)), "332013");
}

TEST(ChordCalculator, MarksOneFretAStringInTheFavouringStyles) {
    const ChordDisplay open = computed(C, Major, CalculatorStyle::OpenStrings);
    EXPECT_EQ(marks(open, 0), "o......");
    EXPECT_EQ(marks(open, 1), "...R...");
    EXPECT_EQ(marks(open, 4), ".o.....");
    const ChordDisplay barre = computed(C, Major, CalculatorStyle::Barre);
    EXPECT_EQ(marks(barre, 0), "...o...");
    EXPECT_EQ(marks(barre, 5), "...o...");
}

TEST(ChordCalculator, ShowsAllMarksAndSoundsTheOpenChordInTheThirdStyle) {
    const ChordDisplay all = computed(C, Major, CalculatorStyle::AllNotes);
    EXPECT_EQ(marks(all, 0), "o..o...");
    EXPECT_EQ(marks(all, 1), "...R...");
    EXPECT_EQ(frets(all), "032010");
}

TEST(ChordCalculator, DSharpMarksABOnTheGString) {
    const ChordDisplay all = computed(Ds, Major, CalculatorStyle::AllNotes);
    EXPECT_EQ(keys(all), ".o....R...o.");
    EXPECT_EQ(marks(all, 3), "o..oo..");
    EXPECT_EQ(marks(all, 4), ".......");
    EXPECT_EQ(computed(Ds, Major, CalculatorStyle::Barre).frets[3], "4");
}

TEST(ChordCalculator, CSus4HasAMarkOnEachStringAndItsRootTwice) {
    const ChordDisplay all = computed(C, "1000010100000000000000", CalculatorStyle::AllNotes);
    for (std::size_t string = 0; string < ChordStrings; ++string)
        EXPECT_NE(marks(all, string), ".......") << string;
    EXPECT_EQ(marks(all, 1), "...R...");
    EXPECT_EQ(marks(all, 4), ".o.....");
}

TEST(ChordCalculator, APatternOfZerosIsTheRootAlone) {
    const ChordDisplay root = computed(C, std::string(22, '0'), CalculatorStyle::OpenStrings);
    EXPECT_EQ(keys(root), "...R........");
    EXPECT_EQ(frets(root), "030010");
    EXPECT_EQ(marks(root, 0), "o......"); // no note of the chord, deliberately
    EXPECT_EQ(staff(root), "...o........");
}

TEST(ChordCalculator, IntervalsBeyondTheOctaveFoldBack) {
    std::string pattern(22, '0');
    pattern[12] = pattern[19] = pattern[21] = '1';
    EXPECT_EQ(keys(computed(C, pattern, CalculatorStyle::OpenStrings)), "o..R......o.");
    EXPECT_EQ(keys(computed(Gs, pattern, CalculatorStyle::OpenStrings)), "......o.o..R");
}

TEST(ChordCalculator, OtherDigitsThanOneAreNoNotes) {
    EXPECT_EQ(keys(computed(C, "0230000900000000000000", CalculatorStyle::OpenStrings)), "...R........");
}

TEST(ChordCalculator, ASharpShowsItsSignAndTheHeadBelow) {
    const ChordDisplay display = computed(Ds, std::string(22, '0'), CalculatorStyle::OpenStrings);
    EXPECT_EQ(staff(display), ".....oo.....");
}

TEST(ChordCalculator, ForgetsTheChordBefore) {
    ChordDisplay display = computed(Ds, Major, CalculatorStyle::AllNotes);
    showUserChord(display, "666666");
    showChordNotes(display, C, chordValues(Major));
    pickChordFrets(display, CalculatorStyle::AllNotes);
    const ChordDisplay fresh = computed(C, Major, CalculatorStyle::AllNotes);
    EXPECT_EQ(display.marks, fresh.marks);
    EXPECT_EQ(display.chkKey, fresh.chkKey);
    EXPECT_EQ(display.staff, fresh.staff);
    EXPECT_FALSE(display.userChord);
}

// The root's red mark is seen only on the fret that is picked.
TEST(ChordCalculator, AHiddenRootStaysHidden) {
    const ChordDisplay display = computed(E, Major, CalculatorStyle::Barre);
    EXPECT_EQ(marks(display, 0), "....o..");
    EXPECT_EQ(frets(display), "422104");
}

TEST(ChordTitle, EndsWithItsStyle) {
    EXPECT_STREQ(titleSuffix(CalculatorStyle::OpenStrings), "(Open)");
    EXPECT_STREQ(titleSuffix(CalculatorStyle::Barre), "(Barre)");
    EXPECT_STREQ(titleSuffix(CalculatorStyle::AllNotes), "(All Notes)");
}

TEST(UserChord, ShowsItsFretsAndKeepsTheStaff) {
    ChordDisplay display = computed(C, Major, CalculatorStyle::OpenStrings);
    const std::string before = staff(display);
    showUserChord(display, "x32016");
    EXPECT_EQ(frets(display), " 32016");
    EXPECT_EQ(marks(display, 0), ".......");
    EXPECT_EQ(marks(display, 1), "...o...");
    EXPECT_EQ(marks(display, 3), "o......");
    EXPECT_EQ(marks(display, 5), "......o");
    EXPECT_EQ(keys(display), "............");
    EXPECT_EQ(staff(display), before);
    EXPECT_TRUE(display.userChord);
}

TEST(UserChord, AShortTextLeavesTheLaterStringsEmptyAndALongOneIsCut) {
    ChordDisplay display;
    showUserChord(display, "32");
    EXPECT_EQ(frets(display), "32----");
    showUserChord(display, "3210123456");
    EXPECT_EQ(frets(display), "321012");
    showUserChord(display, "");
    EXPECT_EQ(frets(display), "------");
}

TEST(UserChord, AFretAboveSixSoundsWithoutAMark) {
    ChordDisplay display;
    showUserChord(display, "9X-789");
    for (std::size_t string = 0; string < ChordStrings; ++string)
        EXPECT_EQ(marks(display, string), ".......");
    EXPECT_EQ(chordNote(0, display.frets[0]), 49);
    EXPECT_EQ(chordNote(1, display.frets[1]), std::nullopt);
    EXPECT_EQ(chordNote(5, display.frets[5]), 73);
}

TEST(ChordNote, IsTheOpenStringAndTheFretOrNothing) {
    EXPECT_EQ(chordNote(0, "0"), 40);
    EXPECT_EQ(chordNote(1, "3"), 48);
    EXPECT_EQ(chordNote(5, "6"), 70);
    for (const char* text : {"", " ", "x", "\x80"})
        EXPECT_EQ(chordNote(2, text), std::nullopt) << text;
}

} // namespace
} // namespace tabrova
