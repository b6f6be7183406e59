// The control's properties and commands, each by its number.
#include "sound/midi_file_control.h"
#include "tests/sound/midi_file_reader.h"

#include <cmath>
#include <limits>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

MIDIFile::Property property(int number) { return static_cast<MIDIFile::Property>(number); }

class MidiFileControl : public ::testing::Test {
  protected:
    void command(int number) { control.setInteger(property(1), static_cast<std::int16_t>(number)); }
    void startTrack(int number) {
        command(3);
        command(4);
        control.setNumber(property(16), 125.0);
        command(9);
        control.setInteger(property(8), static_cast<std::int16_t>(number));
    }
    void event(int status, int data1, int data2, int time) {
        control.setInteger(property(10), static_cast<std::int16_t>(status));
        control.setInteger(property(11), static_cast<std::int16_t>(data1));
        control.setInteger(property(12), static_cast<std::int16_t>(data2));
        control.setInteger(property(13), static_cast<std::int16_t>(time));
        command(6);
    }
    ReadMidiFile read() const { return readMidiFile(control.bytes()); }
    // The events of the first track.
    MidiFileEvents events() const {
        const ReadMidiFile file = read();
        return file.tracks.size() > 1 ? file.tracks[1] : MidiFileEvents{};
    }

    static constexpr std::size_t Most = 100'000; // bytes
    MIDIFile control{Most};
};

TEST_F(MidiFileControl, AddsEventsInTheirOrderWithTheTimeBeforeEach) {
    startTrack(1);
    event(0x90, 60, 100, 0);
    event(0x80, 60, 0, 125);
    event(0x9E, 61, 1, 3000);
    EXPECT_EQ(events(), (MidiFileEvents{{0, 0x90, 60, 100}, {125, 0x80, 60, 0}, {3000, 0x9E, 61, 1}}));
}

TEST_F(MidiFileControl, PropertiesKeepTheirValues) {
    startTrack(1);
    event(0x90, 60, 100, 7);
    command(6);
    control.setInteger(property(11), 62);
    command(6);
    EXPECT_EQ(events(), (MidiFileEvents{{7, 0x90, 60, 100}, {7, 0x90, 60, 100}, {7, 0x90, 62, 100}}));
}

TEST_F(MidiFileControl, TheFirstDataByteIsTakenAsANumber) {
    startTrack(1);
    event(0x90, 1, 1, 0);
    control.setText(property(11), " 24 ");
    command(6);
    control.setNumber(property(11), 60.5); // half to even
    command(6);
    control.setNumber(property(11), 61.5);
    command(6);
    control.setText(property(11), "nylon"); // no number, so that the last one stays
    command(6);
    control.setNumber(property(11), std::nan(""));
    command(6);
    std::vector<int> first;
    for (const MidiFileEvent& each : events())
        first.push_back(each.data1);
    EXPECT_EQ(first, (std::vector{1, 24, 60, 62, 62, 62}));
}

TEST_F(MidiFileControl, DataBytesTakeTheNearestValueOfTheirRange) {
    startTrack(1);
    event(0x90, 128, 300, 0);
    event(0x90, -1, -200, 0);
    control.setNumber(property(11), 1e300);
    control.setText(property(11), "1e300");
    command(6);
    EXPECT_EQ(events(), (MidiFileEvents{{0, 0x90, 127, 127}, {0, 0x90, 0, 0}, {0, 0x90, 127, 0}}));
}

TEST_F(MidiFileControl, NoTimeIsNegative) {
    startTrack(1);
    event(0x90, 1, 1, -5);
    EXPECT_EQ(events(), (MidiFileEvents{{0, 0x90, 1, 1}}));
}

TEST_F(MidiFileControl, TracksAreNumberedFromOneBehindThatOfTheTempo) {
    startTrack(1);
    event(0x90, 1, 1, 0);
    command(9);
    control.setInteger(property(8), 3);
    event(0x91, 2, 2, 0);
    control.setInteger(property(8), 2);
    command(9);
    event(0x92, 3, 3, 0);
    const ReadMidiFile file = read();
    EXPECT_EQ(file.format, 1);
    ASSERT_EQ(file.tracks.size(), 4U);
    EXPECT_EQ(file.tracks[0], (MidiFileEvents{{0, 0xFF, 500000, 0}}));
    EXPECT_EQ(file.tracks[1], (MidiFileEvents{{0, 0x90, 1, 1}}));
    EXPECT_EQ(file.tracks[2], (MidiFileEvents{{0, 0x92, 3, 3}}));
    EXPECT_EQ(file.tracks[3], (MidiFileEvents{{0, 0x91, 2, 2}}));
}

TEST_F(MidiFileControl, AnEventWithoutATrackOrAFileIsNotTaken) {
    event(0x90, 1, 1, 0);
    control.setNumber(property(16), 125.0);
    command(3);
    EXPECT_EQ(read().tracks.size(), 1U);
    event(0x90, 1, 1, 0);
    control.setInteger(property(8), -1);
    event(0x90, 1, 1, 0);
    EXPECT_EQ(read().tracks, std::vector<MidiFileEvents>{{}});
}

TEST_F(MidiFileControl, StartBeginsAFileAfresh) {
    startTrack(1);
    event(0x90, 1, 1, 0);
    startTrack(2);
    event(0x90, 2, 2, 0);
    EXPECT_EQ(read().tracks[1], MidiFileEvents{});
    EXPECT_EQ(read().tracks[2], (MidiFileEvents{{0, 0x90, 2, 2}}));
}

// Unknown commands and properties, and kinds of values that a property does not have.
TEST_F(MidiFileControl, WhatItDoesNotKnowIsPassedOver) {
    startTrack(1);
    event(0x90, 1, 1, 2);
    const std::string before = control.bytes();
    for (const int number : {-1, 0, 1, 5, 7, 8, 10, 11, 32767})
        command(number);
    control.setText(property(12), "5");
    control.setNumber(property(13), 5);
    control.setPath(property(10), "path");
    control.setInteger(property(9), 5);
    control.setInteger(property(2), 5);
    EXPECT_EQ(control.bytes(), before);
    EXPECT_EQ(control.fileName(), "");
    command(6);
    EXPECT_EQ(events().back(), (MidiFileEvent{2, 0x90, 1, 1}));
}

TEST_F(MidiFileControl, WritesToItsFile) {
    const fs::path path = fs::path(::testing::TempDir()) / "control.mid";
    control.setPath(property(9), path);
    EXPECT_EQ(control.fileName(), path);
    startTrack(1);
    event(0x90, 1, 1, 2);
    EXPECT_FALSE(fs::exists(path));
    command(2);
    EXPECT_EQ(fileBytes(path), control.bytes());
    fs::remove(path);
}

TEST_F(MidiFileControl, AFileThatCannotBeWrittenIsNoHarm) {
    for (const char* path : {"", "/nowhere/at/all.mid", "/dev/full", "/"}) {
        control.setPath(property(9), path);
        startTrack(1);
        event(0x90, 1, 1, 2);
        command(2);
    }
}

// At every speed that the slider has, and beyond: a rounded column is exactly one column in the file, and an
// hour of them is wrong by less than 15 ms, which is what a tempo in whole
// microseconds can do.
TEST_F(MidiFileControl, AColumnLastsItsStepAndNoRoundingAddsUp) {
    for (int tempo = 2; tempo <= 2000; ++tempo) {
        const double step = 60000.0 / tempo;
        command(3);
        control.setNumber(property(16), step);
        const ReadMidiFile file = read();
        ASSERT_EQ(file.tracks[0].size(), 1U);
        const int ticks = static_cast<int>(std::nearbyint(step));
        EXPECT_EQ(file.division, ticks <= 4000 ? 4 * ticks : 16000) << tempo;
        const double column = static_cast<double>(file.tracks[0][0].data1) / file.division * ticks / 1000;
        const double columnsOfHour = 3600000.0 / step;
        EXPECT_NEAR(column * columnsOfHour, 3600000.0, 15.0) << tempo;
        if (60000 % tempo == 0 && tempo >= 15) {
            EXPECT_EQ(column, step) << tempo;
        }
    }
}

TEST_F(MidiFileControl, AStepWithoutLengthGivesNoTempo) {
    for (const double step : {0.0, -125.0, -1e300}) {
        command(3);
        control.setNumber(property(16), step);
        EXPECT_EQ(read().tracks, std::vector<MidiFileEvents>{{}});
    }
}

TEST_F(MidiFileControl, StepsBeyondAnyMusicAreHeld) {
    for (const double step : {1e-300, 0.3, 60000.0, 1e300, std::numeric_limits<double>::infinity()}) {
        command(3);
        control.setNumber(property(16), step);
        const ReadMidiFile file = read();
        EXPECT_GE(file.division, 1);
        ASSERT_EQ(file.tracks[0].size(), 1U);
        EXPECT_LE(file.tracks[0][0].data1, 0xFFFFFF);
    }
}

TEST_F(MidiFileControl, TakesNoMoreThanItsMostBytes) {
    startTrack(1);
    event(0x90, 1, 1, 0);
    while (!control.isFull())
        command(6);
    const std::size_t full = control.bytes().size();
    EXPECT_LT(full, Most + 100);
    EXPECT_GE(full, Most);
    command(6);
    EXPECT_EQ(control.bytes().size(), full);
    command(3);
    EXPECT_FALSE(control.isFull());
}

} // namespace
} // namespace tabrova::testing
