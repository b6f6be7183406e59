// The tuner: each press, each tick and each change of a list, with all that is sent.
#include "tools/tuning_manager/tuner.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Tuners : public ::testing::Test {
  protected:
    Tuners() {
        timers.setFrozen(true);
        output.OpenMidiDevice(MidiMapperId);
        tuner.changed = [this] { ++changes; };
    }

    // Notes of the tools' channel, and "off" for each silencing of the guitar's channels.
    std::vector<std::string> heard() {
        std::vector<std::string> words;
        for (const ShortMessage& message : device.take()) {
            if (message[0] == 0x9E && message[2] == 127) words.push_back(std::to_string(message[1]));
            if (message[0] == 0xB0 && message[1] == 0x78) words.emplace_back("off");
        }
        return words;
    }
    using Heard = std::vector<std::string>;
    bool tick(const char* timer) { return timers.timers()[timer]->fire(); }
    bool runs(const char* timer) { return timers.timers()[timer]->timerEnabled(); }
    int pressed() const {
        int which = -1;
        for (int string = 0; string < 6; ++string)
            if (tuner.state().pressed[static_cast<std::size_t>(string)]) which = which < 0 ? string : 99;
        return which;
    }

    TimerList timers;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) {}};
    Tuner tuner{output, timers, nullptr};
    int changes = 0;
};

TEST_F(Tuners, BeginAtTheStandardTuningAndSilent) {
    EXPECT_EQ(tuner.line(), "MMMMMM");
    EXPECT_FALSE(runs("tmrTuner") || runs("tmrTuneAll"));
    EXPECT_EQ(timers.timers()["tmrTuner"]->timerInterval(), 1000);
    EXPECT_EQ(timers.timers()["tmrTuneAll"]->timerInterval(), 290);
    EXPECT_EQ(pressed(), -1);
    EXPECT_TRUE(tuner.state().stringsEnabled);
    EXPECT_FALSE(tuner.state().custom);
}

TEST_F(Tuners, AStringSoundsOnceASecondUntilItsButtonIsPressedAgain) {
    const int notes[] = {40, 45, 50, 55, 59, 64};
    for (std::size_t string = 0; string < TuningStrings; ++string) {
        tuner.pressString(string);
        EXPECT_TRUE(heard().empty());
        EXPECT_EQ(pressed(), static_cast<int>(string));
        for (int second = 0; second < 3; ++second) {
            EXPECT_TRUE(tick("tmrTuner"));
            EXPECT_EQ(heard(), Heard{std::to_string(notes[string])});
        }
        tuner.pressString(string);
        EXPECT_EQ(heard(), Heard{"off"});
        EXPECT_FALSE(tick("tmrTuner"));
        EXPECT_EQ(pressed(), -1);
    }
}

TEST_F(Tuners, AnotherStringsButtonStopsTheOneThatSounds) {
    tuner.pressString(0);
    tuner.pressString(3);
    EXPECT_FALSE(runs("tmrTuner"));
    EXPECT_EQ(pressed(), 0); // only its own button is released
    tuner.pressString(3);
    EXPECT_EQ(pressed(), 3);
    tick("tmrTuner");
    EXPECT_EQ(heard().back(), "55");
}

TEST_F(Tuners, AllStringsSoundInRoundsOfTenSteps) {
    tuner.pressAll();
    EXPECT_TRUE(tuner.state().allPressed);
    EXPECT_FALSE(tuner.state().stringsEnabled);
    for (int round = 0; round < 3; ++round) {
        std::vector<Heard> steps;
        for (int step = 0; step < 10; ++step) {
            EXPECT_TRUE(tick("tmrTuneAll"));
            steps.push_back(heard());
        }
        EXPECT_EQ(steps,
                  (std::vector<Heard>{{}, {"40"}, {"45"}, {"50"}, {"55"}, {"59"}, {"64"}, {}, {}, {}}));
    }
    tuner.pressAll();
    EXPECT_EQ(heard(), Heard{"off"});
    EXPECT_FALSE(tuner.state().allPressed);
    EXPECT_TRUE(tuner.state().stringsEnabled);
    EXPECT_FALSE(tick("tmrTuneAll"));
}

TEST_F(Tuners, ARoundBeginsAnewAtEachPress) {
    tuner.pressAll();
    for (int step = 0; step < 4; ++step)
        tick("tmrTuneAll");
    tuner.pressAll();
    heard();
    tuner.pressAll();
    tick("tmrTuneAll");
    EXPECT_TRUE(heard().empty());
    tick("tmrTuneAll");
    EXPECT_EQ(heard(), Heard{"40"});
}

TEST_F(Tuners, TheTimersStopEachOther) {
    tuner.pressString(2);
    tuner.pressAll();
    EXPECT_TRUE(runs("tmrTuner") && runs("tmrTuneAll"));
    EXPECT_EQ(pressed(), -1);
    tick("tmrTuneAll");
    EXPECT_FALSE(runs("tmrTuner"));
    tuner.pressString(2);
    EXPECT_FALSE(runs("tmrTuneAll"));
    EXPECT_FALSE(tuner.state().allPressed);
    tuner.pressAll();
    EXPECT_TRUE(runs("tmrTuner") && runs("tmrTuneAll"));
    tick("tmrTuner");
    EXPECT_FALSE(runs("tmrTuneAll"));
}

TEST_F(Tuners, AListThatIsChangedLeavesASilentTunerSilent) {
    tuner.changeList(0, 10);
    EXPECT_EQ(heard(), Heard{"off"});
    EXPECT_FALSE(runs("tmrTuner"));
    EXPECT_EQ(pressed(), -1);
    EXPECT_TRUE(tuner.state().custom);
    EXPECT_EQ(tuner.line(), "KMMMMM");
    tuner.changeList(0, 10); // the same item is a change too
    EXPECT_EQ(heard(), Heard{"off"});
}

TEST_F(Tuners, AStringThatSoundsGoesOnAtItsNewPitch) {
    tuner.pressString(1);
    tick("tmrTuner");
    heard();
    tuner.changeList(1, 0);
    EXPECT_EQ(heard(), Heard{"off"});
    EXPECT_EQ(pressed(), 1);
    tick("tmrTuner");
    EXPECT_EQ(heard(), Heard{"33"});
    tuner.changeList(1, 24);
    tick("tmrTuner");
    EXPECT_EQ(heard(), (Heard{"off", "57"}));
}

TEST_F(Tuners, APresetChangesAllListsAndKeepsItsName) {
    for (const TuningPreset& preset : tuningPresets()) {
        tuner.changeList(0, 3);
        heard();
        tuner.choosePreset(preset);
        EXPECT_EQ(tuner.state().items, preset.items) << preset.caption;
        EXPECT_FALSE(tuner.state().custom);
        EXPECT_EQ(heard(), Heard(6, "off"));
    }
    EXPECT_EQ(tuner.line(), "HHHHII");
}

TEST_F(Tuners, NashvilleRaisesFourStringsByAnOctave) {
    tuner.choosePreset(tuningPresets()[18]);
    tuner.pressAll();
    Heard all;
    for (int step = 0; step < 10; ++step) {
        tick("tmrTuneAll");
        for (const std::string& note : heard())
            if (note != "off") all.push_back(note);
    }
    EXPECT_EQ(all, (Heard{"52", "57", "62", "67", "59", "64"}));
}

TEST_F(Tuners, ALineSetsTheListsOfItsLetters) {
    tuner.takeLine("ABYZm M");
    EXPECT_EQ(tuner.state().items, (TuningPlaces{0, 1, 24, 12, 12, 12}));
    EXPECT_EQ(heard(), Heard(3, "off"));
    tuner.takeLine("CC");
    EXPECT_EQ(tuner.state().items, (TuningPlaces{2, 2, 24, 12, 12, 12}));
    tuner.takeLine("MMMMMMAAAA");
    EXPECT_EQ(tuner.line(), "MMMMMM");
    EXPECT_TRUE(tuner.state().custom);
}

TEST_F(Tuners, AListWithoutAChoiceIsTheStandardNote) {
    tuner.changeList(4, -1);
    EXPECT_EQ(tuner.state().items[4], StandardItem); // the presses complete it
    tuner.completeLists();
    EXPECT_EQ(tuner.line(), "MMMMMM");
}

TEST_F(Tuners, NothingSoundsBehindTheirEnd) {
    tuner.pressString(0);
    tuner.pressAll();
    tuner.stop();
    EXPECT_EQ(heard().back(), "off");
    EXPECT_FALSE(tick("tmrTuner") || tick("tmrTuneAll"));
}

TEST_F(Tuners, TellOfEachPressAndChange) {
    tuner.pressString(0);
    EXPECT_EQ(changes, 1);
    tuner.pressAll();
    EXPECT_EQ(changes, 2);
    tuner.changeList(0, 1);
    EXPECT_GT(changes, 2);
}

} // namespace
} // namespace tabrova
