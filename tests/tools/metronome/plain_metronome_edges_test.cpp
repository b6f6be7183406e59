// The metronome's rules at their edges, each by itself.
#include "tests/tools/metronome/plain_metronome.h"
#include "tests/tools/random_window_acts.h"
#include "tools/metronome/frmMetronome.h"

#include <QSlider>

namespace tabrova::testing {
namespace {

class PlainMetronomeEdges : public RandomWindowActs<frmMetronome> {
  protected:
    void SetUp() override {
        window = std::make_unique<frmMetronome>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
        midi.take();
    }
    ListedTimer& timer() { return *timers.timers()["tmr_Metronome"]; }
    // Ticks until it stops by itself, but no more than `most`; the clicks among them.
    int clicks(int most) {
        int count = 0;
        for (int ticks = 0; ticks < most && timer().fire(); ++ticks)
            for (const ShortMessage& message : midi.take())
                count += message[0] == 0x9E && message[2] == 127;
        return count;
    }
    void setBars(const std::string& text) { enter(at<QLineEdit>("txt_BTp"), text); }
    void expectStopped() {
        EXPECT_FALSE(timer().timerEnabled());
        EXPECT_EQ(at<QPushButton>("Command1").text(), "Start");
        EXPECT_TRUE(at("Frame1").isEnabled());
        EXPECT_TRUE(at("Combo1").isEnabled());
    }
    void choosePreset(int row) {
        at<QComboBox>("Combo1").setCurrentIndex(row);
        emit at<QComboBox>("Combo1").activated(row);
    }
};

TEST_P(PlainMetronomeEdges, FourBeatsAndEightBarsAre32Clicks) {
    press("Command1");
    EXPECT_EQ(clicks(100), 32);
    expectStopped();
}

TEST_P(PlainMetronomeEdges, OneBarIsOneBar) {
    at<QSlider>("sld_BPB").setValue(3);
    setBars("1");
    press("Command1");
    EXPECT_EQ(clicks(100), 3);
    expectStopped();
}

TEST_P(PlainMetronomeEdges, ASecondRunBeginsAtTheFirstBarAgain) {
    setBars("2");
    press("Command1");
    EXPECT_EQ(clicks(7), 7);
    press("Command1");
    press("Command1");
    EXPECT_EQ(clicks(100), 8);
}

TEST_P(PlainMetronomeEdges, AChangedPitchLeavesTheOldNoteToSound) {
    press("Command1");
    timer().fire();
    at<QSlider>("sld_ClickPitch").setValue(77);
    midi.take();
    timer().fire();
    EXPECT_EQ(sentText(), midiText({{0x9E, 77, 0}, {0x9E, 77, 127}}));
}

TEST_P(PlainMetronomeEdges, TheLastTickEndsTheClickAndThenAllNotes) {
    at<QSlider>("sld_BPB").setValue(1);
    setBars("1");
    press("Command1");
    timer().fire();
    midi.take();
    timer().fire();
    desk.midi = {{0x9E, 60, 0}};
    desk.AllNotesOff();
    EXPECT_EQ(sentText(), midiText(desk.midi));
}

TEST_P(PlainMetronomeEdges, NoRateIsChosenWhileItRuns) {
    press("Command1");
    clickRow("lst_Metronome_speed", 23);
    QTest::keyClick(&at("lst_Metronome_speed"), Qt::Key_Up);
    EXPECT_EQ(chosenRow("lst_Metronome_speed"), 9);
    EXPECT_TRUE(boxes.take().isEmpty());
    timer().fire();
    EXPECT_EQ(timer().timerInterval(), 500);
}

TEST_P(PlainMetronomeEdges, EveryRateHasItsInterval) {
    const std::vector<int> intervals = {2000, 1500, 1200, 1000, 857, 750, 667, 600, 545, 500, 462, 429,
                                        400,  375,  353,  333,  316, 300, 286, 273, 250, 125, 62,  31};
    for (std::size_t row = 0; row < intervals.size(); ++row) {
        clickRow("lst_Metronome_speed", row);
        press("Command1");
        EXPECT_EQ(timer().timerInterval(), intervals[row]) << row;
        press("Command1");
    }
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].box.title, "Tabrova for Windows");
}

TEST_P(PlainMetronomeEdges, TheFastestRateWarnsEachTimeItIsChosen) {
    clickRow("lst_Metronome_speed", 22);
    QTest::keyClick(&at("lst_Metronome_speed"), Qt::Key_Down);
    EXPECT_EQ(boxes.take().size(), 1);
    clickRow("lst_Metronome_speed", 0);
    EXPECT_EQ(boxes.take().size(), 0);
    clickRow("lst_Metronome_speed", 23);
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_P(PlainMetronomeEdges, AClickOnTheChosenRateKeepsItWhateverKeyIsHeldDown) {
    auto& list = at<QListWidget>("lst_Metronome_speed");
    list.scrollToItem(list.item(4));
    const QPoint place = list.visualItemRect(list.item(4)).center();
    for (const auto held : {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, place);
        EXPECT_EQ(chosenRow("lst_Metronome_speed"), 4);
    }
}

TEST_P(PlainMetronomeEdges, EveryPresetSetsAllFive) {
    ASSERT_EQ(at<QComboBox>("Combo1").count(), 40);
    for (int row = 0; row < 40; ++row) {
        choosePreset(row);
        const auto plain = static_cast<std::size_t>(row);
        EXPECT_EQ(at<QComboBox>("Combo1").currentText().toStdString(), plainBeat(plain));
        EXPECT_EQ(PlainRates[static_cast<std::size_t>(chosenRow("lst_Metronome_speed"))],
                  PlainTempi[plain % 10].second);
        EXPECT_EQ(at<QSlider>("sld_ClickPitch").value(), 64);
        EXPECT_EQ(at<QSlider>("sld_BPB").value(), row / 10 + 1);
        EXPECT_EQ(at<QLineEdit>("txt_BTp").text(), "50");
    }
    EXPECT_TRUE(boxes.take().isEmpty());
}

// Also behind the bar that no number of 16 bits names.
TEST_P(PlainMetronomeEdges, NoBarsOrLessRunOn) {
    at<QSlider>("sld_BPB").setValue(1);
    for (const char* bars : {"0", "-1", "-32768", "-0.5"}) {
        setBars(bars);
        press("Command1");
        EXPECT_EQ(clicks(70000), 70000) << bars;
        press("Command1");
    }
}

TEST_P(PlainMetronomeEdges, TheGreatestNumberOfBarsEnds) {
    at<QSlider>("sld_BPB").setValue(1);
    setBars("32767");
    press("Command1");
    EXPECT_EQ(clicks(70000), 32767);
    expectStopped();
}

TEST_P(PlainMetronomeEdges, WhatIsNoNumberOfBarsIsEight) {
    for (const char* bars : {"", "abc", "40000", "-40000", " ", "1 2", "1e400", "32767.5"}) {
        setBars("5");
        setBars(bars);
        EXPECT_EQ(at<QLineEdit>("txt_BTp").text(), "8") << bars;
        EXPECT_EQ(at<QLineEdit>("txt_BTp").selectedText(), "8") << bars;
    }
    press("Command1");
    EXPECT_EQ(clicks(100), 32);
}

TEST_P(PlainMetronomeEdges, ANumberOfBarsIsRoundedToTheEvenNeighbour) {
    at<QSlider>("sld_BPB").setValue(1);
    const std::pair<const char*, int> wanted[] = {{"2.5", 2}, {"3.5", 4}, {" 5 ", 5}, {"1e1", 10},
                                                  {"+7", 7},  {"0.6", 1}, {"12.", 12}};
    for (const auto& [text, count] : wanted) {
        setBars(text);
        EXPECT_EQ(at<QLineEdit>("txt_BTp").text(), text);
        press("Command1");
        EXPECT_EQ(clicks(100), count) << text;
    }
}

TEST_P(PlainMetronomeEdges, ClosingEndsTheTimerAndSendsNothing) {
    press("Command1");
    timer().fire();
    midi.take();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    window->Form_Unload();
    EXPECT_FALSE(timers.timers().contains("tmr_Metronome") && timer().timerEnabled());
    window.reset();
    EXPECT_TRUE(midi.take().empty());
}

INSTANTIATE_TEST_SUITE_P(One, PlainMetronomeEdges, ::testing::Values(0u));

} // namespace
} // namespace tabrova::testing
