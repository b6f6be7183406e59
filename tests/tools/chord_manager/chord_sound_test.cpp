// Every message of a chord: at once, note by note, strummed, entered; and the two timers.
#include "tools/chord_manager/chord_sound.h"

#include "tools/chord_manager/new_chord.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class ChordSounds : public ::testing::Test {
  protected:
    ChordSounds() {
        timers.setFrozen(true);
        output.OpenMidiDevice(MidiMapperId);
        display.frets = {"0", "3", "2", "0", "1", "0"};
    }

    // The notes on the tools' channel since the last call; "off" where the guitar's channels are silenced.
    std::vector<std::string> heard() {
        std::vector<std::string> notes;
        for (const ShortMessage& message : device.take()) {
            if (message[0] == 0x9E && message[2] == 127) notes.push_back(std::to_string(message[1]));
            if (message[0] == 0xB0 && message[1] == 0x78) notes.emplace_back("off");
            EXPECT_NE(message[0], 0xBE); // nothing silences the tools' channel
        }
        return notes;
    }
    using Heard = std::vector<std::string>;
    bool player() { return timers.timers()["tmrChordPlayer"]->fire(); }
    bool stopper() { return timers.timers()["tmrChordStopper"]->fire(); }
    bool enabled(const char* timer) { return timers.timers()[timer]->timerEnabled(); }

    TimerList timers;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) {}};
    ChordDisplay display;
    ChordSound sound{output, timers, display, nullptr};
};

TEST_F(ChordSounds, AtOnceFromTheLowestStringUntilTheStopperComes) {
    sound.PlayChordNow(false);
    EXPECT_EQ(heard(), (Heard{"40", "48", "52", "55", "60", "64"}));
    EXPECT_TRUE(enabled("tmrChordStopper"));
    EXPECT_FALSE(enabled("tmrChordPlayer"));
    EXPECT_EQ(timers.timers()["tmrChordStopper"]->timerInterval(), 2000);
    EXPECT_TRUE(stopper());
    EXPECT_EQ(heard(), Heard{"off"});
    EXPECT_FALSE(stopper());
}

TEST_F(ChordSounds, SilentStringsAreLeftOut) {
    display.frets = {" ", "", "2", "x", "9", "\x80"};
    sound.PlayChordNow(false);
    EXPECT_EQ(heard(), (Heard{"52", "68"}));
}

TEST_F(ChordSounds, NoteByNoteTheFirstTickIsSilentAndTheTwentyFirstTheEnd) {
    sound.PlayChordNow(true);
    EXPECT_TRUE(heard().empty());
    EXPECT_FALSE(enabled("tmrChordStopper"));
    Heard notes;
    for (int tick = 0; tick < 20; ++tick) {
        EXPECT_TRUE(player());
        const Heard each = heard();
        EXPECT_EQ(each.empty(), tick == 0 || tick > 6) << tick;
        notes.insert(notes.end(), each.begin(), each.end());
    }
    EXPECT_EQ(notes, (Heard{"40", "48", "52", "55", "60", "64"}));
    EXPECT_TRUE(enabled("tmrChordPlayer"));
    EXPECT_TRUE(player());
    EXPECT_EQ(heard(), Heard{"off"});
    EXPECT_FALSE(player());
}

TEST_F(ChordSounds, ASilentStringTakesItsTickAllTheSame) {
    display.frets = {"0", " ", "2", " ", " ", "0"};
    sound.PlayChordNow(true);
    std::vector<Heard> ticks;
    for (int tick = 0; tick < 7; ++tick) {
        player();
        ticks.push_back(heard());
    }
    EXPECT_EQ(ticks, (std::vector<Heard>{{}, {"40"}, {}, {"52"}, {}, {}, {"64"}}));
}

TEST_F(ChordSounds, AnotherChordBeginsAtTheFirstStep) {
    sound.PlayChordNow(true);
    for (int tick = 0; tick < 4; ++tick)
        player();
    heard();
    sound.PlayChordNow(true);
    player();
    EXPECT_TRUE(heard().empty());
    player();
    EXPECT_EQ(heard(), Heard{"40"});
}

TEST_F(ChordSounds, TheSpeedIsWhatIsLessThan750) {
    EXPECT_EQ(timers.timers()["tmrChordPlayer"]->timerInterval(), 120);
    sound.setPlaySpeed(700);
    EXPECT_EQ(timers.timers()["tmrChordPlayer"]->timerInterval(), 50);
    sound.setPlaySpeed(50);
    EXPECT_EQ(timers.timers()["tmrChordPlayer"]->timerInterval(), 700);
}

// The strum strip

TEST_F(ChordSounds, EveryEdgeOfABandBelongsToNone) {
    const int edges[] = {0, 165, 315, 465, 615, 765, 900};
    for (std::size_t band = 0; band < ChordStrings; ++band) {
        EXPECT_EQ(strumBand(edges[band]), std::nullopt);
        EXPECT_EQ(strumBand(edges[band] + 0.5), band);
        EXPECT_EQ(strumBand(edges[band] + 1), band);
        EXPECT_EQ(strumBand(edges[band + 1] - 1), band);
        EXPECT_EQ(strumBand(edges[band + 1] - 0.5), band);
    }
    for (const double outside : {900.0, 901.0, -1.0, 1e9, -1e9})
        EXPECT_EQ(strumBand(outside), std::nullopt) << outside;
}

TEST_F(ChordSounds, EachStringSoundsOnceAStrokeAndTheLastOneTwice) {
    sound.strumMoved(0);
    EXPECT_TRUE(heard().empty()); // no button is held down
    sound.strumPressed();
    EXPECT_TRUE(heard().empty());
    for (const std::size_t band : {0u, 0u, 1u, 0u, 2u})
        sound.strumMoved(band);
    EXPECT_EQ(heard(), (Heard{"64", "60", "55"}));
    EXPECT_TRUE(enabled("tmrChordStopper"));
    sound.strumReleased(2);
    EXPECT_EQ(heard(), Heard{"55"});
    sound.strumMoved(0);
    EXPECT_TRUE(heard().empty());
    sound.strumPressed();
    sound.strumMoved(0);
    EXPECT_EQ(heard(), Heard{"64"}); // a stroke of its own
}

TEST_F(ChordSounds, AStringThatWasSilentIsNotCountedAsPlayed) {
    display.frets[5] = " ";
    sound.strumPressed();
    sound.strumMoved(0);
    display.frets[5] = "3";
    sound.strumMoved(0);
    EXPECT_EQ(heard(), Heard{"67"});
}

TEST_F(ChordSounds, BetweenTheBandsNothingSoundsAndTheStopperStartsAfreshOnlyInAStroke) {
    sound.strumMoved(std::nullopt);
    EXPECT_FALSE(enabled("tmrChordStopper"));
    sound.strumReleased(std::nullopt);
    EXPECT_FALSE(enabled("tmrChordStopper"));
    sound.strumPressed();
    sound.strumMoved(std::nullopt);
    EXPECT_TRUE(enabled("tmrChordStopper"));
    EXPECT_TRUE(heard().empty());
    sound.strumReleased(3);
    EXPECT_EQ(heard(), Heard{"52"});
}

TEST_F(ChordSounds, LettingGoInABandStartsTheStopper) {
    sound.strumReleased(5);
    EXPECT_EQ(heard(), Heard{"40"});
    EXPECT_TRUE(enabled("tmrChordStopper"));
}

// Entering and saving

TEST_F(ChordSounds, WhatIsEnteredSoundsButItsSilentStrings) {
    sound.playEntered({SilentMark, 3, 2, 0, 1, 6});
    EXPECT_EQ(heard(), (Heard{"48", "52", "55", "60", "70"}));
    EXPECT_TRUE(enabled("tmrChordStopper"));
}

TEST_F(ChordSounds, WhileAChordIsSavedTheUsersChordsAreSilentAndTheCalculatorsAreNot) {
    sound.SavingChord = true;
    sound.PlayChordNow(false);
    EXPECT_EQ(heard().size(), 6u);
    display.userChord = true;
    sound.PlayChordNow(false);
    EXPECT_TRUE(heard().empty());
    sound.SavingChord = false;
    sound.PlayChordNow(false);
    EXPECT_EQ(heard().size(), 6u);
}

TEST_F(ChordSounds, NothingTicksBehindItsEnd) {
    sound.PlayChordNow(true);
    sound.PlayChordNow(false);
    sound.stop();
    EXPECT_FALSE(player());
    EXPECT_FALSE(stopper());
}

} // namespace
} // namespace tabrova
