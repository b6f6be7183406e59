// The drum machine without its window: patterns, both ways of playing, speed, and files that fail.
#include "tools/drum_machine/drum_machine.h"

#include "tests/tools/sent_bytes.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include <sys/stat.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class DrumMachines : public ::testing::Test {
  protected:
    DrumMachines() {
        timers.setFrozen(true);
        output.OpenMidiDevice(MidiMapperId);
        machine.changed = [this](DrumMachine::Change change) { changes.push_back(change); };
    }
    bool tick() { return timers.timers()["tmrplayback"]->fire(); }
    int interval() { return timers.timers()["tmrplayback"]->timerInterval(); }
    bool runs() { return timers.timers()["tmrplayback"]->timerEnabled(); }
    Sent played() {
        tick();
        return sentBytes(device);
    }
    fs::path path(const char* name) const { return folder.filePath(name).toStdString(); }
    void set(int row, int position) {
        machine.song.rows[static_cast<std::size_t>(row)].Steps[static_cast<std::size_t>(position)] = true;
    }
    bool isSet(int row, int position) const {
        return machine.song.rows[static_cast<std::size_t>(row)].Steps[static_cast<std::size_t>(position)];
    }

    QTemporaryDir folder;
    TimerList timers;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) {}};
    DrumMachine machine{output, timers, nullptr};
    std::vector<DrumMachine::Change> changes;
};

TEST_F(DrumMachines, BeginWithAnEmptySongOfSixteenDrums) {
    for (std::size_t row = 0; row < 16; ++row) {
        EXPECT_EQ(machine.song.rows[row].drum, static_cast<int>(row));
        EXPECT_EQ(machine.song.rows[row].volume, 100);
        EXPECT_TRUE(machine.song.rows[row].Steps.none());
    }
    EXPECT_EQ(machine.song.speed, 480);
    EXPECT_EQ(machine.pattern(), 0);
    EXPECT_FALSE(machine.playing() || machine.locked() || machine.playsAll || runs());
    EXPECT_EQ(machine.soundingPosition(), -1);
    EXPECT_EQ(interval(), 125);
    EXPECT_FALSE(timers.timers()["tmrplaysong"]->timerEnabled());
}

TEST_F(DrumMachines, AStepIsSetAndClearedInThePatternThatIsShown) {
    machine.choosePattern(7);
    machine.pressStep(3, 5);
    EXPECT_TRUE(machine.isShown(3, 5));
    EXPECT_TRUE(isSet(3, 7 * 16 + 5));
    EXPECT_EQ(machine.song.rows[3].Steps.count(), 1u);
    machine.choosePattern(6);
    EXPECT_FALSE(machine.isShown(3, 5));
    machine.choosePattern(7);
    machine.pressStep(3, 5);
    EXPECT_FALSE(machine.isShown(3, 5));
    EXPECT_TRUE(machine.song.rows[3].Steps.none());
}

TEST_F(DrumMachines, CountTheStepsOfEachPattern) {
    set(0, 0);
    set(15, 15);
    set(4, 16);
    set(9, 1599);
    EXPECT_EQ(machine.song.stepsOfPattern(0), 2);
    EXPECT_EQ(machine.song.stepsOfPattern(1), 1);
    EXPECT_EQ(machine.song.stepsOfPattern(2), 0);
    EXPECT_EQ(machine.song.stepsOfPattern(99), 1);
}

TEST_F(DrumMachines, OnePatternLoopsForEver) {
    machine.choosePattern(2);
    set(0, 32);
    set(1, 47);
    set(2, 48);
    machine.song.rows[1].volume = 90;
    machine.playOrStop();
    EXPECT_TRUE(device.take().empty());
    for (int round = 0; round < 300; ++round)
        for (int step = 0; step < 16; ++step) {
            const Sent expected = step == 0 ? Sent{"99 23 64"} : step == 15 ? Sent{"99 24 5a"} : Sent{};
            ASSERT_EQ(played(), expected) << round << " " << step;
            EXPECT_EQ(machine.soundingPosition(), 32 + step);
        }
    EXPECT_TRUE(machine.playing());
    machine.playOrStop();
    EXPECT_EQ(sentBytes(device), allNotesOff());
    EXPECT_FALSE(machine.playing() || machine.locked() || runs());
    EXPECT_EQ(machine.soundingPosition(), -1);
}

TEST_F(DrumMachines, TheWholeSongPlaysOnceAndStops) {
    std::mt19937 chance(1);
    std::array<std::array<bool, 1600>, 16> steps{};
    for (int row = 0; row < 16; ++row)
        for (int position = 0; position < 1600; ++position)
            if (chance() % 4 == 0) {
                steps[static_cast<std::size_t>(row)][static_cast<std::size_t>(position)] = true;
                set(row, position);
            }
    for (std::size_t row = 0; row < 16; ++row) {
        machine.song.rows[row].drum = static_cast<int>(45 - row);
        machine.song.rows[row].volume = static_cast<int>(20 + row);
    }
    machine.choosePattern(50);
    machine.playsAll = true;
    machine.playOrStop();
    for (std::size_t position = 0; position < 1600; ++position) {
        ASSERT_TRUE(tick());
        std::vector<ShortMessage> expected;
        for (std::size_t row = 0; row < 16; ++row)
            if (steps[row][position])
                expected.push_back(
                    {0x99, static_cast<std::uint8_t>(80 - row), static_cast<std::uint8_t>(20 + row)});
        ASSERT_EQ(device.take(), expected) << position;
        EXPECT_EQ(machine.soundingPosition(), static_cast<int>(position));
    }
    EXPECT_TRUE(machine.playing());
    EXPECT_TRUE(tick());
    EXPECT_EQ(sentBytes(device), allNotesOff());
    EXPECT_FALSE(machine.playing() || machine.locked() || tick());
    EXPECT_EQ(machine.pattern(), 50);
}

TEST_F(DrumMachines, ARowWithoutADrumTakesThatOfItsNumberAsItIsPlayed) {
    machine.song.rows[4].drum = -1;
    machine.playOrStop();
    EXPECT_EQ(machine.song.rows[4].drum, -1);
    tick();
    EXPECT_EQ(machine.song.rows[4].drum, 4);
    EXPECT_EQ(changes.back(), DrumMachine::Change::Rows);
}

TEST_F(DrumMachines, TheSpeedChangesAtOnce) {
    const std::pair<int, int> speeds[] = {{20, 3000}, {1200, 50}, {480, 125}, {700, 86}, {960, 62}};
    for (const auto& [speed, milliseconds] : speeds) {
        machine.setSpeed(speed);
        EXPECT_EQ(interval(), milliseconds);
        EXPECT_FALSE(runs());
    }
    machine.playOrStop();
    machine.setSpeed(240);
    EXPECT_EQ(interval(), 250);
    EXPECT_TRUE(runs());
}

TEST_F(DrumMachines, AnotherPatternEndsPlaybackAndGivesNothingFree) {
    set(0, 0);
    set(0, 20);
    machine.playOrStop();
    tick();
    device.take();
    machine.choosePattern(0);
    EXPECT_TRUE(machine.playing());
    machine.choosePattern(1);
    EXPECT_FALSE(machine.playing() || runs());
    EXPECT_TRUE(machine.locked());
    EXPECT_TRUE(machine.isShown(0, 4));
    EXPECT_EQ(machine.soundingPosition(), -1);
    EXPECT_TRUE(device.take().empty());
    machine.playOrStop();
    EXPECT_TRUE(machine.playing() && machine.locked());
    machine.playOrStop();
    EXPECT_FALSE(machine.playing() || machine.locked());
}

TEST_F(DrumMachines, ASavedSongOpensAgain) {
    set(3, 33);
    machine.song.rows[2].drum = 40;
    machine.song.rows[2].volume = 21;
    machine.setSpeed(99);
    EXPECT_TRUE(machine.save(path("song")));
    DrumMachine other(output, timers, nullptr);
    other.choosePattern(2);
    other.open(path("song"));
    EXPECT_TRUE(other.isShown(3, 1));
    EXPECT_EQ(other.song.rows[2].drum, 40);
    EXPECT_EQ(other.song.rows[2].volume, 21);
    EXPECT_EQ(other.song.speed, 99);
    EXPECT_EQ(timers.timers()["tmrplayback"]->timerInterval(), 606);
    EXPECT_EQ(other.pattern(), 2);
}

TEST_F(DrumMachines, SavingCompletesRowsIfTheFileOpens) {
    machine.song.rows[9].drum = -1;
    EXPECT_FALSE(machine.save(path("missing/song")));
    EXPECT_EQ(machine.song.rows[9].drum, -1);
    fs::create_directory(path("folder"));
    EXPECT_FALSE(machine.save(path("folder")));
    EXPECT_EQ(machine.song.rows[9].drum, -1);
    EXPECT_TRUE(machine.save(path("song")));
    EXPECT_EQ(machine.song.rows[9].drum, 9);
}

TEST_F(DrumMachines, ADamagedFileLeavesTheButtonsAndWhatTheyShowDecides) {
    set(0, 0);
    machine.choosePattern(1);
    machine.choosePattern(0);
    std::ofstream file(path("song"));
    for (int row = 0; row < 16; ++row)
        file << row + 1 << "\r\n";
    for (int row = 0; row < 16; ++row)
        file << "50\r\n";
    file << "200\r\nFalse\r\nTrue\r\nrubbish\r\n";
    file.close();
    changes.clear();
    machine.open(path("song"));
    EXPECT_EQ(changes, std::vector{DrumMachine::Change::Rows});
    EXPECT_EQ(machine.song.rows[15].drum, 16);
    EXPECT_EQ(machine.song.rows[15].volume, 50);
    EXPECT_EQ(interval(), 300);
    EXPECT_FALSE(isSet(0, 0));
    EXPECT_TRUE(isSet(0, 1));
    EXPECT_TRUE(machine.isShown(0, 0));
    EXPECT_FALSE(machine.isShown(0, 1));
    machine.pressStep(0, 0); // blue: it becomes white
    EXPECT_FALSE(machine.isShown(0, 0) || isSet(0, 0));
    machine.pressStep(0, 1); // white: it becomes blue
    EXPECT_TRUE(machine.isShown(0, 1) && isSet(0, 1));
}

TEST_F(DrumMachines, WhatIsNoFileChangesNothing) {
    set(0, 0);
    fs::create_directory(path("folder"));
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    for (const char* name : {"missing", "folder", "pipe"}) {
        machine.open(path(name));
        EXPECT_TRUE(isSet(0, 0)) << name;
    }
    EXPECT_FALSE(machine.save(path("pipe")));
    machine.open("/dev/zero");
    EXPECT_TRUE(changes == std::vector{DrumMachine::Change::Rows}); // of the pipe that was opened for saving
    EXPECT_TRUE(isSet(0, 0));
}

TEST_F(DrumMachines, LeaveWithoutAMessage) {
    machine.playOrStop();
    tick();
    device.take();
    machine.leave();
    EXPECT_FALSE(runs());
    EXPECT_TRUE(device.take().empty());
}

} // namespace
} // namespace tabrova::testing
