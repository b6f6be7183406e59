// The metronome's window: lists, presets, the number of bars, the marker, and what is disabled while it runs.
#include "tests/tools/sent_bytes.h"
#include "tests/workbench/tool_bench.h"
#include "tools/metronome/frmMetronome.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include <fstream>

namespace tabrova::testing {
namespace {

class MetronomeWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmMetronome>(context, nullptr);
        form->Form_Load();
        form->show();
        form->closed = [this] { ++closings; };
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& control(const QString& name) {
        auto* found = form->findChild<Control*>(name);
        if (!found) throw std::runtime_error("no control " + name.toStdString());
        return *found;
    }
    void press() { QTest::mouseClick(&control("Command1"), Qt::LeftButton); }
    void chooseRate(int row) {
        auto& rates = control<QListWidget>("lst_Metronome_speed");
        rates.scrollToItem(rates.item(row));
        QTest::mouseClick(rates.viewport(), Qt::LeftButton, {},
                          rates.visualItemRect(rates.item(row)).center());
    }
    void choosePreset(int row) {
        auto& presets = control<QComboBox>("Combo1");
        presets.setCurrentIndex(row);
        emit presets.activated(row);
    }
    bool tick() { return timers.timers()["tmr_Metronome"]->fire(); }
    int interval() { return timers.timers()["tmr_Metronome"]->timerInterval(); }
    std::string caption() { return control<QPushButton>("Command1").text().toStdString(); }
    std::string bars() { return control<QLineEdit>("txt_BTp").text().toStdString(); }
    // How many clicks it gives by itself.
    int clicks() {
        press();
        int count = 0;
        while (tick() && control("Command1").property("text") == "Stop")
            ++count;
        return count;
    }
    bool markerIsOver(int beat) {
        const QRect picture = control(QString("imgMetronome(%1)").arg(beat)).geometry();
        const QRect marker = control("line_Metronome").geometry();
        return marker.left() == picture.left() && marker.width() == picture.width() &&
               marker.top() == picture.top();
    }

    std::unique_ptr<frmMetronome> form;
    int closings = 0;
};

TEST_F(MetronomeWindow, OpensAtRest) {
    open();
    EXPECT_EQ(sentBytes(midi), (Sent{"be 00 80", "ce 73 00"}));
    EXPECT_EQ(form->windowTitle(), "Tabrova - Metronome");
    EXPECT_EQ(caption(), "Start");
    EXPECT_EQ(bars(), "8");
    EXPECT_EQ(control<QSlider>("sld_BPB").value(), 4);
    EXPECT_EQ(control<QSlider>("sld_BPB").minimum(), 1);
    EXPECT_EQ(control<QSlider>("sld_BPB").maximum(), 4);
    auto& pitch = control<QSlider>("sld_ClickPitch");
    EXPECT_EQ(pitch.value(), 60);
    EXPECT_EQ(pitch.minimum(), 30);
    EXPECT_EQ(pitch.maximum(), 100);
    EXPECT_EQ(pitch.tickInterval(), 5);
    EXPECT_NE(pitch.tickPosition(), QSlider::NoTicks);
    EXPECT_EQ(control<QListWidget>("lst_Metronome_speed").count(), 24);
    EXPECT_EQ(control<QListWidget>("lst_Metronome_speed").currentItem()->text(), "120 BPM");
    EXPECT_EQ(control<QComboBox>("Combo1").count(), 40);
    EXPECT_EQ(control<QComboBox>("Combo1").currentText(), "<none specified>");
    EXPECT_EQ(control<QComboBox>("Combo1").currentIndex(), -1);
    EXPECT_TRUE(markerIsOver(0));
    EXPECT_EQ(form->focusWidget(), &control("Command1"));
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(MetronomeWindow, GivesThirtyTwoClicksAndEnds) {
    open();
    EXPECT_EQ(clicks(), 32);
    EXPECT_EQ(caption(), "Start");
}

TEST_F(MetronomeWindow, EachRateTakesEffectAndOnlyTheFastestIsWarnedOf) {
    open();
    const int rates[] = {30,  40,  50,  60,  70,  80,  90,  100, 110, 120, 130, 140,
                         150, 160, 170, 180, 190, 200, 210, 220, 240, 480, 960, 1920};
    for (int row = 0; row < 24; ++row) {
        chooseRate(row);
        press();
        const double exact = 60000.0 / rates[row];
        EXPECT_LE(std::abs(interval() - exact), 0.5) << rates[row];
        press();
        const auto asked = boxes.take();
        EXPECT_EQ(asked.size(), row == 23 ? 1 : 0) << rates[row];
        if (asked.isEmpty()) continue;
        EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
        EXPECT_EQ(asked.first().box.text,
                  "1920 beats a minute is very fast. Not every computer can keep up with it.");
        EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
    }
    EXPECT_EQ(interval(), 31);
    chooseRate(23);
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(MetronomeWindow, EveryPresetSetsRatePitchBeatsAndBars) {
    const int rates[] = {30, 50, 60, 70, 80, 110, 140, 160, 190, 240};
    open();
    for (int row = 0; row < 40; ++row) {
        chooseRate(23);
        boxes.take();
        control<QSlider>("sld_ClickPitch").setValue(99);
        control<QLineEdit>("txt_BTp").setText("3");
        choosePreset(row);
        EXPECT_EQ(control<QListWidget>("lst_Metronome_speed").currentItem()->text(),
                  QString("%1 BPM").arg(rates[row % 10]));
        EXPECT_EQ(control<QSlider>("sld_ClickPitch").value(), 64);
        EXPECT_EQ(control<QSlider>("sld_BPB").value(), row / 10 + 1);
        EXPECT_EQ(bars(), "50");
        EXPECT_EQ(control<QComboBox>("Combo1").currentIndex(), row);
        midi.take();
        EXPECT_EQ(clicks(), (row / 10 + 1) * 50);
        EXPECT_EQ(interval(), qRound(60000.0 / rates[row % 10])) << row;
        EXPECT_EQ(sentBytes(midi)[1], "9e 40 7f");
        EXPECT_TRUE(boxes.take().isEmpty());
    }
}

TEST_F(MetronomeWindow, TheMarkerGoesFromBeatToBeatAndBack) {
    open();
    press();
    EXPECT_TRUE(markerIsOver(0));
    for (int click = 0; click < 8; ++click) {
        tick();
        EXPECT_TRUE(markerIsOver(click % 4)) << click;
    }
    tick();
    tick();
    EXPECT_TRUE(markerIsOver(1));
    press();
    EXPECT_TRUE(markerIsOver(0));
}

TEST_F(MetronomeWindow, TheMarkerStaysOverItsBeatInAWindowOfAnotherSize) {
    open();
    press();
    tick();
    tick();
    tick();
    form->resize(form->width() + 200, form->height() + 90);
    QApplication::processEvents();
    EXPECT_TRUE(markerIsOver(2));
    EXPECT_GT(control("imgMetronome(2)").width(), 100);
}

TEST_F(MetronomeWindow, DisablesItsSettingsButNotThePitchWhileItRuns) {
    open();
    press();
    EXPECT_EQ(caption(), "Stop");
    for (const char* disabled : {"Frame1", "Combo1", "lst_Metronome_speed", "sld_BPB", "txt_BTp"})
        EXPECT_FALSE(control(disabled).isEnabled()) << disabled;
    EXPECT_TRUE(control("sld_ClickPitch").isEnabled());
    chooseRate(0);
    tick();
    EXPECT_EQ(interval(), 500);
    press();
    EXPECT_EQ(caption(), "Start");
    for (const char* enabled : {"Frame1", "Combo1", "lst_Metronome_speed", "sld_BPB", "txt_BTp"})
        EXPECT_TRUE(control(enabled).isEnabled()) << enabled;
}

TEST_F(MetronomeWindow, ANewPitchLeavesTheOldNoteUntilTheEnd) {
    open();
    press();
    tick();
    midi.take();
    control<QSlider>("sld_ClickPitch").setValue(75);
    EXPECT_TRUE(midi.take().empty());
    tick();
    EXPECT_EQ(sentBytes(midi), (Sent{"9e 4b 00", "9e 4b 7f"}));
    press();
    EXPECT_EQ(sentBytes(midi), allNotesOff());
}

TEST_F(MetronomeWindow, ANumberOfBarsThatIsNoneBecomesEight) {
    open();
    for (const char* text : {"", "x", "1 2", "40000", "-40000", "1e400", "8th", "-"}) {
        control<QLineEdit>("txt_BTp").setText("3");
        control<QLineEdit>("txt_BTp").setText(text);
        EXPECT_EQ(bars(), "8") << text;
        EXPECT_EQ(clicks(), 32) << text;
    }
}

TEST_F(MetronomeWindow, TheNumberOfBarsIsReadAsAnInteger) {
    open();
    const std::pair<const char*, int> texts[] = {{"1", 1},    {" 2 ", 2}, {"2.5", 2}, {"3.5", 4},
                                                 {"1e1", 10}, {"+5", 5},  {"0008", 8}};
    for (const auto& [text, number] : texts) {
        control<QLineEdit>("txt_BTp").setText(text);
        EXPECT_EQ(bars(), text);
        EXPECT_EQ(clicks(), 4 * number) << text;
    }
}

TEST_F(MetronomeWindow, TheEightThatCameBackIsReplacedByTheNextKey) {
    open();
    auto& box = control<QLineEdit>("txt_BTp");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(bars(), "8");
    QTest::keyClicks(&box, "12");
    EXPECT_EQ(bars(), "12");
}

TEST_F(MetronomeWindow, BeatsPerBarFollowTheSlider) {
    open();
    for (int beats = 1; beats <= 4; ++beats) {
        control<QSlider>("sld_BPB").setValue(beats);
        EXPECT_EQ(control<QLabel>("lblBPB").text(), QString::number(beats));
        EXPECT_EQ(clicks(), 8 * beats);
    }
    control<QSlider>("sld_ClickPitch").setValue(41);
    EXPECT_EQ(control<QLabel>("lblClickPitch").text(), "41");
}

TEST_F(MetronomeWindow, StartsAndStopsByTheSpaceBar) {
    open();
    QTest::keyClick(form->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(caption(), "Stop");
    QTest::keyClick(form->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(caption(), "Start");
}

TEST_F(MetronomeWindow, StartsAndStopsByF7WhereverTheFocusIs) {
    open();
    form->activateWindow();
    control("sld_ClickPitch").setFocus();
    for (const char* shown : {"Stop", "Start"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_F7);
        EXPECT_EQ(caption(), shown);
    }
}

TEST_F(MetronomeWindow, ClosesWithoutAMessageAndTheTimerEnds) {
    open();
    press();
    tick();
    midi.take();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(closings, 1);
    form->Form_Unload();
    EXPECT_FALSE(timers.timers()["tmr_Metronome"]->timerEnabled());
    EXPECT_TRUE(midi.take().empty());
}

TEST_F(MetronomeWindow, HasItsTextsFromTheLanguageFile) {
    std::ofstream file(folder() / "lang.trl");
    for (int line = 1; line <= 258; ++line)
        file << "L" << line << "\n";
    file.close();
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - L249");
    EXPECT_EQ(caption(), "L250");
    press();
    EXPECT_EQ(caption(), "L251");
    press();
    chooseRate(23);
    EXPECT_EQ(boxes.take().first().box.text, "L258");
}

} // namespace
} // namespace tabrova::testing
