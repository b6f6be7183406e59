// The metronome without its window: each tick with all that is sent.
#include "tools/metronome/metronome.h"

#include "tests/tools/sent_bytes.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

class Metronomes : public ::testing::Test {
  protected:
    Metronomes() {
        timers.setFrozen(true);
        output.OpenMidiDevice(MidiMapperId);
        metronome.changed = [this] { ++changes; };
    }
    bool tick() { return timers.timers()["tmr_Metronome"]->fire(); }
    int interval() { return timers.timers()["tmr_Metronome"]->timerInterval(); }
    bool runs() { return timers.timers()["tmr_Metronome"]->timerEnabled(); }
    // How many ticks come until it ends, at most `most`.
    int ticksToTheEnd(int most) {
        for (int ticks = 1; ticks <= most; ++ticks) {
            tick();
            if (!runs()) return ticks;
        }
        return most + 1;
    }

    TimerList timers;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) {}};
    Metronome metronome{output, timers, nullptr};
    int changes = 0;
};

TEST_F(Metronomes, RestUntilTheyAreStarted) {
    EXPECT_FALSE(runs());
    EXPECT_FALSE(metronome.running());
    EXPECT_FALSE(tick());
    EXPECT_EQ(metronome.soundingBeat(), -1);
    EXPECT_EQ(metronome.clickRate, 120);
    EXPECT_EQ(metronome.beatsPerBar, 4);
    EXPECT_EQ(metronome.numberOfBars, 8);
    EXPECT_EQ(metronome.clickPitch, 60);
    EXPECT_TRUE(device.take().empty());
}

TEST_F(Metronomes, SoundAsAWoodblock) {
    metronome.chooseSound();
    EXPECT_EQ(sentBytes(device), (Sent{"be 00 80", "ce 73 00"}));
}

TEST_F(Metronomes, StartSilentAndClickOnceABeat) {
    metronome.start();
    EXPECT_TRUE(runs());
    EXPECT_TRUE(metronome.running());
    EXPECT_EQ(interval(), 500);
    EXPECT_TRUE(device.take().empty());
    EXPECT_EQ(metronome.soundingBeat(), -1);
    for (int click = 0; click < 9; ++click) {
        EXPECT_TRUE(tick());
        EXPECT_EQ(sentBytes(device), (Sent{"9e 3c 00", "9e 3c 7f"}));
        EXPECT_EQ(metronome.soundingBeat(), click % 4);
    }
    EXPECT_EQ(changes, 10);
}

TEST_F(Metronomes, EndAfterTheirBarsByThemselves) {
    metronome.start();
    for (int click = 0; click < 32; ++click)
        tick();
    EXPECT_TRUE(metronome.running());
    sentBytes(device);
    tick();
    Sent end = {"9e 3c 00"};
    for (const std::string& off : allNotesOff())
        end.push_back(off);
    EXPECT_EQ(sentBytes(device), end);
    EXPECT_FALSE(metronome.running());
    EXPECT_FALSE(runs());
    EXPECT_EQ(metronome.soundingBeat(), -1);
}

TEST_F(Metronomes, CountTheirBeatsAndBars) {
    for (int beats = 1; beats <= 4; ++beats)
        for (const int bars : {1, 2, 3, 50}) {
            metronome.beatsPerBar = static_cast<std::int16_t>(beats);
            metronome.numberOfBars = static_cast<std::int16_t>(bars);
            metronome.start();
            EXPECT_EQ(ticksToTheEnd(1000), beats * bars + 1);
        }
}

TEST_F(Metronomes, WithoutBarsRunUntilTheyAreStopped) {
    for (const int bars : {0, -1, -32768}) {
        metronome.numberOfBars = static_cast<std::int16_t>(bars);
        metronome.beatsPerBar = 1;
        metronome.start();
        EXPECT_EQ(ticksToTheEnd(70000), 70001) << bars;
        metronome.stop();
        device.take();
    }
    metronome.numberOfBars = 32767;
    metronome.start();
    EXPECT_EQ(ticksToTheEnd(40000), 32768);
}

TEST_F(Metronomes, StopAtOnceAndSilenceTheGuitarsChannelsOnly) {
    metronome.start();
    tick();
    sentBytes(device);
    metronome.stop();
    EXPECT_EQ(sentBytes(device), allNotesOff());
    EXPECT_FALSE(runs());
    EXPECT_FALSE(tick());
    EXPECT_EQ(metronome.soundingBeat(), -1);
}

TEST_F(Metronomes, BeginAnewAtTheFirstBeatAndBar) {
    metronome.numberOfBars = 2;
    metronome.start();
    for (int click = 0; click < 6; ++click)
        tick();
    metronome.stop();
    metronome.start();
    EXPECT_EQ(ticksToTheEnd(100), 9);
}

TEST_F(Metronomes, TakeAnotherRateAtTheNextTick) {
    const std::pair<int, int> intervals[] = {{30, 2000}, {70, 857}, {110, 545}, {220, 273},
                                             {480, 125}, {960, 62}, {1920, 31}};
    metronome.start();
    for (const auto& [rate, milliseconds] : intervals) {
        const int before = interval();
        metronome.clickRate = static_cast<std::int16_t>(rate);
        EXPECT_EQ(interval(), before);
        tick();
        EXPECT_EQ(interval(), milliseconds);
    }
    metronome.clickRate = 60;
    metronome.start();
    EXPECT_EQ(interval(), 1000);
}

TEST_F(Metronomes, LeaveANoteOfAnotherPitchSounding) {
    metronome.start();
    tick();
    metronome.clickPitch = 72;
    sentBytes(device);
    tick();
    EXPECT_EQ(sentBytes(device), (Sent{"9e 48 00", "9e 48 7f"}));
}

TEST_F(Metronomes, PlayAtTheVelocityOfTheTools) {
    output.FixedVelocity = 90;
    metronome.start();
    tick();
    EXPECT_EQ(sentBytes(device), (Sent{"9e 3c 00", "9e 3c 5a"}));
}

TEST_F(Metronomes, LeaveWithoutAMessage) {
    metronome.start();
    tick();
    device.take();
    metronome.leave();
    EXPECT_FALSE(runs());
    EXPECT_TRUE(device.take().empty());
}

} // namespace
} // namespace tabrova::testing
