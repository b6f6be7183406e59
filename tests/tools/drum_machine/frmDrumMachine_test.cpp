// The drum machine's window: what its controls show and do, and what playback disables.
#include "tests/tools/drum_machine/drum_window.h"

#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(DrumWindow, OpensWithAnEmptySong) {
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Drum Machine");
    EXPECT_TRUE(blue().empty());
    for (int row = 0; row < 16; ++row) {
        EXPECT_EQ(control<QComboBox>("lstInstrument", row).currentIndex(), row);
        EXPECT_EQ(control<QComboBox>("lstInstrument", row).count(), 46);
        EXPECT_EQ(control<QSlider>("sldVolume", row).value(), 100);
        EXPECT_EQ(control<QSlider>("sldVolume", row).minimum(), 20);
        EXPECT_EQ(control<QSlider>("sldVolume", row).maximum(), 127);
    }
    EXPECT_EQ(control<QComboBox>("lstInstrument", 0).itemText(33), "Cabasa");
    EXPECT_EQ(control<QComboBox>("lstInstrument", 0).itemText(45), "Open Triangle");
    const auto& pattern = control<QSlider>("sldPattern");
    EXPECT_EQ(std::tuple(pattern.minimum(), pattern.maximum(), pattern.value()), std::tuple(0, 99, 0));
    const auto& speed = control<QSlider>("sldSpeed");
    EXPECT_EQ(std::tuple(speed.minimum(), speed.maximum(), speed.value()), std::tuple(20, 1200, 480));
    EXPECT_EQ(control<QLineEdit>("Text1").text(), "0");
    EXPECT_EQ(control<QPushButton>("Command1").text(), "Play");
    EXPECT_EQ(control<QPushButton>("Command2").text(), "Save this Song");
    EXPECT_EQ(control<QPushButton>("Command3").text(), "Open a Song");
    EXPECT_EQ(control<QCheckBox>("chkPlayAll").text(), "Play entire song");
    EXPECT_FALSE(control<QCheckBox>("chkPlayAll").isChecked());
    EXPECT_TRUE(midi.take().empty());
}

TEST_F(DrumWindow, EveryButtonIsPressedByARealClick) {
    open();
    setPattern(42);
    for (int row = 0; row < 16; ++row)
        for (int at = 0; at < 16; ++at) {
            ASSERT_EQ(color(row, at), "#ffffff");
            pressStep(row, at);
            ASSERT_EQ(color(row, at), "#12378f") << row << " " << at;
        }
    EXPECT_EQ(blue().size(), 256u);
    EXPECT_EQ(control<QLabel>("lblSteps").text(), "Steps: 256");
    pressStep(11, 3);
    EXPECT_EQ(color(11, 3), "#ffffff");
    setPattern(41);
    EXPECT_TRUE(blue().empty());
    setPattern(42);
    EXPECT_EQ(blue().size(), 255u);
}

TEST_F(DrumWindow, ThePatternsNumberAndItsSliderFollowEachOther) {
    open();
    pressStep(1, 2);
    const std::tuple<const char*, int, const char*> texts[] = {
        {"5", 5, "5"},    {" 7 ", 7, "7"},   {"x", 7, "x"},
        {"", 7, ""},      {"2.5", 2, "2"},   {"150", 99, "99"},
        {"-3", 0, "0"},   {"1e1", 10, "10"}, {"99999999999", 10, "99999999999"},
        {"10", 10, "10"}, {"0", 0, "0"}};
    for (const auto& [text, pattern, shown] : texts) {
        control<QLineEdit>("Text1").setText(text);
        EXPECT_EQ(control<QSlider>("sldPattern").value(), pattern) << text;
        EXPECT_EQ(control<QLineEdit>("Text1").text(), shown);
        EXPECT_EQ(blue().size(), pattern == 0 ? 1u : 0u);
    }
    setPattern(63);
    EXPECT_EQ(control<QLineEdit>("Text1").text(), "63");
}

TEST_F(DrumWindow, PlaybackDisablesAllButTheStepsTheSpeedAndTheStop) {
    open();
    std::vector<QString> disabled = {"Command2", "Command3", "chkPlayAll", "sldPattern"};
    for (int row = 0; row < 16; ++row)
        for (const char* array : {"lstInstrument", "sldVolume"})
            disabled.push_back(QString("%1(%2)").arg(array).arg(row));
    const auto expectEnabled = [&](bool enabled) {
        for (const QString& name : disabled)
            EXPECT_EQ(control(name).isEnabled(), enabled) << name.toStdString();
        for (const char* name : {"Command1", "sldSpeed", "Text1", "cmdTrack0(0)"})
            EXPECT_TRUE(control(name).isEnabled()) << name;
        EXPECT_EQ(control<QPushButton>("Command1").text(), enabled ? "Play" : "Stop");
    };
    expectEnabled(true);
    press("Command1");
    expectEnabled(false);
    press("Command1");
    expectEnabled(true);
    EXPECT_EQ(sentBytes(midi), allNotesOff());
}

TEST_F(DrumWindow, DrumsAndVolumesAreThoseOfTheirRows) {
    open();
    pressStep(4, 0);
    pressStep(9, 0);
    auto& drum = control<QComboBox>("lstInstrument", 9);
    drum.setCurrentIndex(33);
    emit drum.activated(33);
    control<QSlider>("sldVolume", 9).setValue(77);
    press("Command1");
    EXPECT_EQ(played(), (Sent{"99 27 64", "99 44 4d"}));
    EXPECT_EQ(control<QSlider>("sldVolume", 9).toolTip(), "77");
}

TEST_F(DrumWindow, StepsCanBeWrittenWhileItPlays) {
    open();
    press("Command1");
    EXPECT_TRUE(played().empty());
    pressStep(0, 1);
    EXPECT_EQ(played(), Sent{"99 23 64"});
}

TEST_F(DrumWindow, TheSpeedIsLive) {
    open();
    press("Command1");
    control<QSlider>("sldSpeed").setValue(600);
    EXPECT_EQ(timers.timers()["tmrplayback"]->timerInterval(), 100);
    EXPECT_EQ(control<QSpinBox>("spnSpeed").value(), 600);
    control<QSpinBox>("spnSpeed").setValue(1200);
    EXPECT_EQ(control<QSlider>("sldSpeed").value(), 1200);
    EXPECT_EQ(timers.timers()["tmrplayback"]->timerInterval(), 50);
}

TEST_F(DrumWindow, TheEntireSongPlaysFromItsBeginning) {
    open();
    pressStep(0, 0);
    setPattern(99);
    pressStep(1, 15);
    control<QCheckBox>("chkPlayAll").setChecked(true);
    press("Command1");
    EXPECT_EQ(played(), Sent{"99 23 64"});
    for (int position = 1; position < 1599; ++position)
        ASSERT_TRUE(played().empty()) << position;
    EXPECT_EQ(played(), Sent{"99 24 64"});
    EXPECT_EQ(played(), allNotesOff());
    EXPECT_EQ(control<QPushButton>("Command1").text(), "Play");
    EXPECT_TRUE(control("sldPattern").isEnabled());
    EXPECT_FALSE(tick());
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 99);
}

TEST_F(DrumWindow, ATypedPatternEndsPlaybackAndLeavesTheControlsDisabled) {
    open();
    press("Command1");
    tick();
    midi.take();
    control<QLineEdit>("Text1").setText("3");
    EXPECT_EQ(control<QPushButton>("Command1").text(), "Play");
    EXPECT_FALSE(tick());
    EXPECT_TRUE(midi.take().empty());
    EXPECT_FALSE(control("sldPattern").isEnabled());
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 3);
    press("Command1");
    press("Command1");
    EXPECT_TRUE(control("sldPattern").isEnabled());
}

TEST_F(DrumWindow, SavesAndOpensWhereTheUserChooses) {
    open();
    pressStep(2, 3);
    control<QSlider>("sldSpeed").setValue(333);
    press("Command2"); // cancelled
    EXPECT_TRUE(fs::is_empty(folder()));
    files.queueAnswer(QString::fromStdString(file("song")));
    press("Command2");
    pressStep(2, 3);
    pressStep(0, 0);
    control<QSlider>("sldSpeed").setValue(20);
    press("Command3"); // cancelled
    EXPECT_EQ(blue(), (Places{{0, 0}}));
    files.queueAnswer(QString::fromStdString(file("song")));
    press("Command3");
    EXPECT_EQ(blue(), (Places{{2, 3}}));
    EXPECT_EQ(control<QSlider>("sldSpeed").value(), 333);
    EXPECT_EQ(control<QSpinBox>("spnSpeed").value(), 333);
    const auto asked = files.take();
    ASSERT_EQ(asked.size(), 4);
    EXPECT_EQ(asked[0].question.kind, FileQuestion::Kind::Save);
    EXPECT_EQ(asked[3].question.kind, FileQuestion::Kind::Open);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(DrumWindow, AFileWithoutADrumLeavesItsListEmptyUntilItIsNeeded) {
    open();
    std::ofstream song(file("song"), std::ios::binary);
    song << "-1\r\n7\r\n-1\r\n";
    song.close();
    files.queueAnswer(QString::fromStdString(file("song")));
    press("Command3");
    EXPECT_EQ(control<QComboBox>("lstInstrument", 0).currentIndex(), -1);
    EXPECT_EQ(control<QComboBox>("lstInstrument", 1).currentIndex(), 7);
    EXPECT_EQ(control<QComboBox>("lstInstrument", 3).currentIndex(), 3);
    press("Command1");
    EXPECT_EQ(control<QComboBox>("lstInstrument", 0).currentIndex(), -1);
    tick();
    EXPECT_EQ(control<QComboBox>("lstInstrument", 0).currentIndex(), 0);
    EXPECT_EQ(control<QComboBox>("lstInstrument", 2).currentIndex(), 2);
}

TEST_F(DrumWindow, ADamagedFileChangesNoButton) {
    open();
    pressStep(0, 0);
    std::ofstream song(file("song"), std::ios::binary);
    for (int row = 0; row < 16; ++row)
        song << "1\r\n";
    song << "50\r\n50\r\nrubbish";
    song.close();
    files.queueAnswer(QString::fromStdString(file("song")));
    press("Command3");
    EXPECT_EQ(blue(), (Places{{0, 0}}));
    EXPECT_EQ(control<QComboBox>("lstInstrument", 15).currentIndex(), 1);
    EXPECT_EQ(control<QSlider>("sldVolume", 1).value(), 50);
    EXPECT_EQ(control<QSlider>("sldVolume", 2).value(), 100);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(DrumWindow, MarksTheStepThatSoundsWhileItsPatternIsShown) {
    open();
    const auto pictured = [&](int at) { return step(8, at).grab().toImage(); };
    const QImage plain = pictured(0);
    press("Command1");
    EXPECT_EQ(pictured(0), plain);
    tick();
    const QImage marked = pictured(0);
    EXPECT_NE(marked, plain);
    EXPECT_EQ(color(8, 0), "#ffffff");
    tick();
    EXPECT_EQ(pictured(0), plain);
    EXPECT_EQ(pictured(1), marked);
    press("Command1");
    EXPECT_EQ(pictured(1), plain);
    setPattern(1);
    control<QCheckBox>("chkPlayAll").setChecked(true);
    press("Command1");
    tick();
    EXPECT_EQ(pictured(0), plain);
    for (int position = 1; position <= 16; ++position)
        tick();
    EXPECT_EQ(pictured(0), marked);
}

TEST_F(DrumWindow, PageKeysGoThroughThePatterns) {
    open();
    QWidget* at = form->focusWidget();
    EXPECT_EQ(at, &step(0, 0));
    QTest::keyClick(at, Qt::Key_PageUp);
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 0);
    QTest::keyClick(at, Qt::Key_PageDown);
    QTest::keyClick(at, Qt::Key_PageDown);
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 2);
    QTest::keyClick(at, Qt::Key_PageUp);
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 1);
    press("Command1");
    QTest::keyClick(at, Qt::Key_PageDown);
    EXPECT_EQ(control<QSlider>("sldPattern").value(), 1);
}

TEST_F(DrumWindow, PlaysAndStopsByF7WhereverTheFocusIs) {
    open();
    form->activateWindow();
    for (const char* shown : {"Stop", "Play"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_F7);
        EXPECT_EQ(control<QPushButton>("Command1").text(), shown);
    }
}

TEST_F(DrumWindow, ClosesWithoutAMessageAndTheTimerEnds) {
    open();
    pressStep(0, 0);
    press("Command1");
    tick();
    midi.take();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    form->Form_Unload();
    EXPECT_FALSE(timers.timers()["tmrplayback"]->timerEnabled());
    EXPECT_TRUE(midi.take().empty());
    EXPECT_TRUE(boxes.take().isEmpty());
    open();
    EXPECT_TRUE(blue().empty());
}

TEST_F(DrumWindow, HasItsTextsFromTheLanguageFile) {
    std::ofstream lines(file("lang.trl"));
    for (int line = 1; line <= 535; ++line)
        lines << "L" << line << "\n";
    lines.close();
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - L210");
    EXPECT_EQ(control<QPushButton>("Command1").text(), "L216");
    press("Command1");
    EXPECT_EQ(control<QPushButton>("Command1").text(), "L217");
    EXPECT_EQ(control<QLabel>("lblSteps").text(), "L535 0");
    EXPECT_EQ(control("lstInstrument", 4).accessibleName(), "L533 5");
    EXPECT_EQ(control("sldVolume", 4).accessibleName(), "L534 5");
    EXPECT_EQ(step(4, 8).accessibleName(), "L533 5, 9");
}

} // namespace
} // namespace tabrova::testing
