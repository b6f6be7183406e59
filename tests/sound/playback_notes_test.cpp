// What the cells of a column sound like, and what ends each note.
#include "tests/sound/player_helpers.h"

namespace tabrova::testing {
namespace {

const Messages Cut = {{0xB0, 120, 0}, {0xB0, 123, 0}};

class PlayedNotes : public PlayerTest {
  protected:
    PlayedNotes() { makeDocument(8, {Kind::Guitar}); }

    // What column 0 sends less its programs, played from a fresh start.
    Messages firstColumn() {
        playFrom(0);
        return sounds();
    }
    Messages firstColumnUncut() {
        document.PreventReverberations = 0;
        return firstColumn();
    }
};

TEST_F(PlayedNotes, StringsSoundFromTheTopOnChannelZero) {
    for (int row = 0; row < 6; ++row)
        put(0, row, "2");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 66, 100},
                                            {0x90, 61, 100},
                                            {0x90, 57, 100},
                                            {0x90, 52, 100},
                                            {0x90, 47, 100},
                                            {0x90, 42, 100}}));
}

TEST_F(PlayedNotes, EachTrackSoundsInItsOwnTuningAndVolume) {
    makeDocument(1, {Kind::Guitar, Kind::Guitar});
    for (std::size_t row = 0; row < 12; ++row)
        document.TuningTable[row] = static_cast<std::int16_t>(row);
    put(0, 2, "0");
    put(0, 8, "0");
    put(0, 11, "x");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 55 + 2 - 13, 100},
                                            {0x90, 40 + 11 - 13, 90},
                                            {0x90, 40 + 11 - 13, 0},
                                            {0x90, 55 + 8 - 13, 90}}));
}

TEST_F(PlayedNotes, DeadNotesComeFirstThenNotesThenStaccatos) {
    put(0, 0, "1", ".");
    put(0, 1, "x");
    put(0, 2, "2", "g");
    put(0, 3, "3", "r");
    put(0, 4, "x");
    put(0, 5, "0", ".");
    EXPECT_EQ(tick(), (Messages{{0xB0, 120, 0},
                                {0xB0, 123, 0},
                                {0xB0, 0, 0x80},
                                {0xC0, 24, 0},
                                {0xB1, 0, 0x80},
                                {0xC1, 24, 0},
                                {0x90, 59, 100},
                                {0x90, 59, 0},
                                {0x90, 45, 100},
                                {0x90, 45, 0},
                                {0x90, 65, 100},
                                {0x90, 57, 50},
                                {0x91, 53, 100},
                                {0x90, 40, 100},
                                {0x90, 65, 0},
                                {0x90, 40, 0}}));
}

TEST_F(PlayedNotes, AGuitarNoteLastsUntilTheNextColumnWhereAGuitarSounds) {
    makeDocument(6, {Kind::Guitar, Kind::Percussion, Kind::Guitar});
    put(0, 0, "5");
    put(2, 6, "36");
    put(3, 12, "7");
    EXPECT_EQ(sounds(), (Messages{Cut[0], Cut[1], {0x90, 69, 100}}));
    EXPECT_EQ(sounds(), Messages{});
    EXPECT_EQ(sounds(), (Messages{{0x99, 36, 90}}));
    EXPECT_EQ(sounds(), (Messages{Cut[0], Cut[1], {0x90, 71, 80}}));
    EXPECT_EQ(sounds(), Messages{});
}

TEST_F(PlayedNotes, AreCutOnceAColumnHoweverManyTracksSound) {
    makeDocument(1, {Kind::Guitar, Kind::Guitar, Kind::Guitar});
    for (const int row : {0, 5, 6, 17})
        put(0, row, "0");
    EXPECT_EQ(sounds(),
              (Messages{Cut[0], Cut[1], {0x90, 64, 100}, {0x90, 40, 100}, {0x90, 64, 90}, {0x90, 40, 80}}));
}

TEST_F(PlayedNotes, AreCutByAnyCellThatIsNotEmpty) {
    for (const char* const cell : {"x", ">", " ", "abc", "0"}) {
        put(0, 4, cell);
        const Messages sent = firstColumn();
        ASSERT_GE(sent.size(), 2u) << cell;
        EXPECT_EQ(Messages(sent.begin(), sent.begin() + 2), Cut) << cell;
    }
    put(0, 4, "", "r");
    EXPECT_EQ(firstColumn(), Messages{});
}

TEST_F(PlayedNotes, AreNotCutByPercussionCells) {
    makeDocument(1, {Kind::Percussion, Kind::Guitar});
    for (const char* const cell : {"x", ">", " ", "abc"}) {
        put(0, 3, cell);
        EXPECT_EQ(firstColumn(), Messages{}) << cell;
    }
}

TEST_F(PlayedNotes, AreNeverCutUnlessPreventReverberationsIsOne) {
    put(0, 0, "5");
    put(1, 0, "5");
    const Messages strike = {{0x90, 69, 100}};
    for (const int value : {0, -1, 2}) {
        document.PreventReverberations = static_cast<std::int16_t>(value);
        playFrom(0);
        EXPECT_EQ(sounds(), strike);
        EXPECT_EQ(sounds(), strike); // a pitch that still sounds is struck again
        EXPECT_EQ(sounds(), Messages{});
    }
}

TEST_F(PlayedNotes, ThatRingGoToChannelOneAndAreNeverCut) {
    put(0, 3, "5", "r");
    put(1, 3, "5");
    put(2, 2, "5", "r");
    EXPECT_EQ(sounds(), (Messages{Cut[0], Cut[1], {0x91, 55, 100}}));
    EXPECT_EQ(sounds(), (Messages{Cut[0], Cut[1], {0x90, 55, 100}}));
    EXPECT_EQ(sounds(), (Messages{Cut[0], Cut[1], {0x91, 60, 100}}));
    EXPECT_EQ(sounds(), Messages{});
}

TEST_F(PlayedNotes, AGhostNoteHasHalfTheVolumeRoundedHalfToEven) {
    put(0, 0, "0", "g");
    for (const auto& [volume, velocity] :
         {std::pair{127, 64}, {125, 62}, {126, 63}, {1, 0}, {3, 2}, {0, 0}, {-3, -2}}) {
        document.TrackVolumes = {std::to_string(volume)};
        EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 64, static_cast<std::uint8_t>(velocity)}})) << volume;
    }
}

TEST_F(PlayedNotes, ADeadNoteIsStruckOnTheOpenStringAndEndedAtOnce) {
    document.TuningTable = {13, 14, 13, 13, 13, 11};
    put(0, 1, "x");
    put(0, 5, "x");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 60, 100}, {0x90, 60, 0}, {0x90, 38, 100}, {0x90, 38, 0}}));
}

TEST_F(PlayedNotes, ATechniqueChangesNothingOnADeadNote) {
    for (const char* const technique : {"", "g", "r", ".", "h"}) {
        put(0, 0, "x", technique);
        EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 64, 100}, {0x90, 64, 0}})) << technique;
    }
}

TEST_F(PlayedNotes, OnlyALittleXAloneIsDead) {
    for (const char* const cell : {"X", "xx", " x", "x "}) {
        put(0, 0, cell);
        EXPECT_EQ(firstColumnUncut(), Messages{}) << cell;
    }
}

TEST_F(PlayedNotes, AStaccatoNoteIsEndedInItsOwnTick) {
    put(0, 1, "3", ".");
    put(0, 4, "", ".");
    put(0, 5, ">", ".");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 62, 100}, {0x90, 62, 0}}));
}

TEST_F(PlayedNotes, EveryOtherTechniqueIsNotationOnly) {
    for (const char* const technique : {"b", "b1", "b12", "h", "s",    "v", "w", "d",  "m",  "f",
                                        "t", "l",  "o",   "z", "\xB2", "G", "R", "r1", "..", " "}) {
        put(0, 2, "4", technique);
        EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 59, 100}})) << technique;
    }
}

TEST_F(PlayedNotes, CellsThatAreNoNumbersAreSilentEachAlone) {
    const char* const cells[] = {"1", ">", "abc", " ", "1e9", "2"};
    for (int row = 0; row < 6; ++row)
        put(0, row, cells[row], row == 2 ? "r" : "");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 65, 100}, {0x90, 42, 100}}));
}

TEST_F(PlayedNotes, AFretsFractionIsRoundedHalfToEvenInThePitch) {
    document.PreventReverberations = 0;
    for (const auto& [fret, pitch] : {std::pair{"2.5", 66},
                                      {"3.5", 68},
                                      {"2.51", 67},
                                      {"2.49", 66},
                                      {" 3 ", 67},
                                      {"+3", 67},
                                      {"1e1", 74},
                                      {".5", 64},
                                      {"-1.5", 62}}) {
        put(0, 0, fret, ".");
        const auto note = static_cast<std::uint8_t>(pitch);
        EXPECT_EQ(firstColumn(), (Messages{{0x90, note, 100}, {0x90, note, 0}})) << fret;
    }
    put(0, 0, "2.5", "r");
    EXPECT_EQ(firstColumn(), (Messages{{0x91, 66, 100}}));
}

TEST_F(PlayedNotes, AVolumesFractionIsRoundedHalfToEvenOnce) {
    put(0, 0, "0");
    put(0, 1, "0", "r");
    put(0, 2, "0", "g");
    put(0, 3, "x");
    document.TrackVolumes = {"100.5"};
    EXPECT_EQ(firstColumnUncut(),
              (Messages{{0x90, 50, 100}, {0x90, 50, 0}, {0x90, 64, 100}, {0x91, 59, 100}, {0x90, 55, 50}}));
    document.TrackVolumes = {" 101.5 "};
    EXPECT_EQ(firstColumnUncut(),
              (Messages{{0x90, 50, 102}, {0x90, 50, 0}, {0x90, 64, 102}, {0x91, 59, 102}, {0x90, 55, 51}}));
}

TEST_F(PlayedNotes, ATrackWithoutAVolumeStrikesNothing) {
    makeDocument(1, {Kind::Guitar, Kind::Percussion, Kind::Guitar});
    put(0, 0, "5");
    put(0, 1, "5", "r");
    put(0, 2, "5", "g");
    put(0, 6, "36");
    put(0, 12, "1");
    for (const char* const volume : {"", "loud", ">", "100 %"}) {
        document.TrackVolumes = {volume, volume, "80"};
        EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 65, 80}})) << volume;
    }
    document.TrackVolumes.clear();
    EXPECT_EQ(firstColumnUncut(), Messages{});
}

// Each statement fails alone, and ending a note needs no volume.
TEST_F(PlayedNotes, ATrackWithoutAVolumeStillEndsItsDeadAndStaccatoNotes) {
    put(0, 0, "x");
    put(0, 1, "3", ".");
    document.TrackVolumes = {"loud"};
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 64, 0}, {0x90, 62, 0}}));
}

TEST_F(PlayedNotes, AStringWithoutATuningIsSilentAlone) {
    document.TuningTable = {13, 13, 13};
    put(0, 2, "1", ".");
    put(0, 3, "1", ".");
    put(0, 4, "x");
    put(0, 5, "1", "r");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 56, 100}, {0x90, 56, 0}}));
}

TEST_F(PlayedNotes, APitchIsNotClippedAndRunsOnIntoTheNextByte) {
    put(0, 0, "300");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 364 - 256, 101}}));
    put(0, 0, "-70");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 250, 99}}));
    put(0, 0, "70");
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 134, 100}}));
}

TEST_F(PlayedNotes, WhatDoesNotFitSixteenBitsIsSilent) {
    put(0, 0, "32703"); // 32767 in all
    put(0, 1, "32709");
    put(0, 2, "40000");
    put(0, 5, "-32809"); // -32769 in all
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 0xFF, 127 + 100}}));
    put(0, 0, "0");
    put(0, 1, "0", "g");
    document.TrackVolumes = {"40000"}; // half of it fits
    EXPECT_EQ(firstColumnUncut(), (Messages{{0x90, 59, 20000 % 256}}));
}

TEST_F(PlayedNotes, DrumsSoundOnChannelNineAndNothingEndsThem) {
    makeDocument(4, {Kind::Percussion});
    for (int row = 0; row < 6; ++row)
        put(0, row, std::to_string(35 + row));
    put(2, 0, "35");
    EXPECT_EQ(tick(), (Messages{{0x99, 35, 100},
                                {0x99, 36, 100},
                                {0x99, 37, 100},
                                {0x99, 38, 100},
                                {0x99, 39, 100},
                                {0x99, 40, 100}}));
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(tick(), (Messages{{0x99, 35, 100}}));
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(tick(), Messages{});
    EXPECT_EQ(result, TickResult::Ended);
}

TEST_F(PlayedNotes, AGhostIsTheOnlyTechniqueOfADrum) {
    makeDocument(1, {Kind::Percussion});
    document.TrackVolumes = {"127"};
    put(0, 0, "36", "g");
    put(0, 1, "37", "r");
    put(0, 2, "38", ".");
    put(0, 3, "39", "h");
    EXPECT_EQ(firstColumn(), (Messages{{0x99, 36, 64}, {0x99, 37, 127}, {0x99, 38, 127}, {0x99, 39, 127}}));
    document.TrackVolumes = {"125"};
    put(0, 1, "");
    put(0, 2, "x");
    put(0, 3, "abc", "g");
    EXPECT_EQ(firstColumn(), (Messages{{0x99, 36, 62}}));
}

TEST_F(PlayedNotes, ADrumIsItsCellAsAWholeNumberWithoutATuning) {
    makeDocument(1, {Kind::Percussion});
    document.TuningTable.clear();
    const char* const cells[] = {"36.5", "35.5", " 38 ", "40000", "", ">"};
    for (int row = 0; row < 6; ++row)
        put(0, row, cells[row]);
    document.setNote(0, 5, "x");
    EXPECT_EQ(firstColumn(), (Messages{{0x99, 36, 100}, {0x99, 36, 100}, {0x99, 38, 100}}));
}

} // namespace
} // namespace tabrova::testing
