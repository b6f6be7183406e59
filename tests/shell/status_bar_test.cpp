// The status bar's three panels: what they tell, and that mouse and keyboard press them.
#include "tests/shell/main_window.h"

#include "organisers/options/frmOptions.h"
#include "shell/status_bar.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QTabWidget>
#include <QTest>

namespace tabrova {
namespace {

class StatusBarOfTheWindow : public testing::MainWindowTest {
  protected:
    StatusBarOfTheWindow() {
        timers.setFrozen(true);
        load();
        activate();
    }
    void activate() {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QWidget& at(const char* name) { return *window->findChild<QWidget*>(name); }
    QLabel& panel(int number) {
        return *window->findChild<QLabel*>("StatusBar1(" + QString::number(number) + ")");
    }
    std::string place() { return panel(3).text().toStdString(); }
    void press(const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&at(name), key, modifiers);
    }
    void setTrouble(const char* trouble) {
        synthesizer.told.running = true;
        synthesizer.told.trouble = trouble;
        synthesizer.tellChange();
    }
    bool isOpen(const char* name) { return form(name) && form(name)->isVisible(); }
};

TEST_F(StatusBarOfTheWindow, TheThirdFollowsTheCursor) {
    EXPECT_EQ(place(), "Staff 1 of 1, column 1 · 480 columns a minute, ♩ = 120 · not saved yet");
    press("picDocument", Qt::Key_Right);
    press("picDocument", Qt::Key_Right);
    EXPECT_EQ(place(), "Staff 1 of 1, column 3 · 480 columns a minute, ♩ = 120 · not saved yet");
    press("picDocument", Qt::Key_End);
    press("picDocument", Qt::Key_Right);
    EXPECT_EQ(place(), "Staff 2 of 2, column 1 · 480 columns a minute, ♩ = 120 · not saved yet");
    press("picDocument", Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(place().substr(0, 22), "Staff 1 of 2, column 1");
    EXPECT_EQ(panel(3).toolTip().toStdString(), place());
}

TEST_F(StatusBarOfTheWindow, TheThirdNamesTheFileAndTheSpeedOfTheProperties) {
    files.queueAnswer(home.filePath("my tune.tr3"));
    trigger("mnuFileSave");
    EXPECT_EQ(place(), "Staff 1 of 1, column 1 · 480 columns a minute, ♩ = 120 · my tune.tr3");
    trigger("mnuFileProperties");
    auto* properties = form("frmFileProperties");
    control<QAbstractSlider>(*properties, "sldSpeed")->setValue(400);
    EXPECT_EQ(control<QLabel>(*properties, "lblQuarters")->text().toStdString(), "♩ = 100");
    control<QAbstractButton>(*properties, "chkSpeedBoost")->setChecked(true);
    EXPECT_EQ(control<QLabel>(*properties, "lblQuarters")->text().toStdString(), "♩ = 200");
    properties->close();
    EXPECT_EQ(place(), "Staff 1 of 1, column 1 · 800 columns a minute, ♩ = 200 · my tune.tr3");
}

TEST_F(StatusBarOfTheWindow, TheThirdTellsWhatPlaysAndStaysAwake) {
    trigger("mnuSoundPlayAll");
    EXPECT_EQ(place(), "Playing: staff 1 of 1, column 1");
    for (int tick = 0; tick < 17; ++tick)
        window->commands().playback.HiTime1_Timer();
    EXPECT_EQ(place(), "Playing: staff 1 of 1, column 17");
    const QPalette colors = panel(3).palette();
    EXPECT_EQ(colors.color(QPalette::Disabled, QPalette::WindowText),
              colors.color(QPalette::Active, QPalette::WindowText));
    trigger("mnuPlaybackStop");
    EXPECT_EQ(place().substr(0, 22), "Staff 1 of 1, column 1");
}

TEST_F(StatusBarOfTheWindow, EscapeAndSpaceStopTheMusicAndNothingElse) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space}) {
        trigger("mnuSoundPlayAll");
        ASSERT_TRUE(window->bench().player.playing);
        QTest::keyClick(window.get(), key);
        EXPECT_FALSE(window->bench().player.playing);
        EXPECT_EQ(window->document().barMark(0), "");
    }
    press("picDocument", Qt::Key_Space);
    EXPECT_EQ(window->document().barMark(0), "r") << "the page's key again";
}

TEST_F(StatusBarOfTheWindow, WhyNothingIsHeardStandsThereWithTheWayToMendIt) {
    setTrouble(sound_trouble::NoBank);
    EXPECT_EQ(place(),
              "Staff 1 of 1, column 1 · No sound: there is no sound bank. Click here to choose one.");
    EXPECT_EQ(panel(3).toolTip(), sound_trouble::NoBank);
    QTest::mouseClick(&panel(3), Qt::LeftButton);
    EXPECT_TRUE(isOpen("frmOptions"));
    EXPECT_EQ(control<QTabWidget>(*form("frmOptions"), "OptionsTabs")->currentIndex(), OptionsTab::Sound);
    setTrouble(sound_trouble::NoOutput);
    EXPECT_EQ(place(),
              "Staff 1 of 1, column 1 · No sound: there is no audio output. Click here for what to do.");
    setTrouble("");
    EXPECT_NE(place().find("480 columns"), std::string::npos);
    synthesizer.told.running = false;
    synthesizer.told.trouble = sound_trouble::NoBank;
    synthesizer.tellChange();
    EXPECT_NE(place().find("480 columns"), std::string::npos) << "another device is in use";
}

TEST_F(StatusBarOfTheWindow, TheThirdLeadsToTheSpeed) {
    QTest::mouseClick(&panel(3), Qt::LeftButton);
    EXPECT_TRUE(isOpen("frmFileProperties"));
}

TEST_F(StatusBarOfTheWindow, AreReachedFromThePageAndPressedByKeys) {
    at("picDocument").setFocus();
    for (int number = 1; number <= 3; ++number) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window->focusWidget(), &panel(number)) << number;
    }
    QTest::keyClick(&panel(3), Qt::Key_Escape);
    EXPECT_EQ(window->focusWidget(), &at("picDocument"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        panel(1).setFocus();
        QTest::keyClick(&panel(1), key);
        EXPECT_TRUE(at("picTrackChooser").isVisible()) << key;
        QTest::keyClick(&at("TrackNames"), Qt::Key_Escape);
        EXPECT_FALSE(at("picTrackChooser").isVisible());
    }
    panel(2).setFocus();
    QTest::keyClick(&panel(2), Qt::Key_Return);
    EXPECT_TRUE(isOpen("frmOptions"));
    EXPECT_EQ(control<QTabWidget>(*form("frmOptions"), "OptionsTabs")->currentIndex(),
              OptionsTab::Appearance);
}

TEST_F(StatusBarOfTheWindow, AFocusedPanelIsMarkedAndAClickLeavesTheKeyboard) {
    at("picDocument").setFocus();
    const QImage before = panel(2).grab().toImage();
    panel(2).setFocus();
    EXPECT_NE(panel(2).grab().toImage(), before);
    at("picDocument").setFocus();
    QTest::mouseClick(&panel(2), Qt::LeftButton);
    EXPECT_EQ(window->focusWidget(), &at("picDocument"));
}

TEST_F(StatusBarOfTheWindow, TheStatisticsHaveRoomBesideThem) {
    window->commands().views.showStatistics(true);
    QApplication::processEvents();
    EXPECT_LE(panel(3).mapTo(window->clientArea(), panel(3).rect().topRight()).x(), at("lbldebug").x());
    window->commands().views.showStatistics(false);
    QApplication::processEvents();
    EXPECT_GT(panel(3).mapTo(window->clientArea(), panel(3).rect().topRight()).x(), 980);
}

TEST_F(StatusBarOfTheWindow, TheWholeTextIsTheHintWhereThereIsNoRoom) {
    window->resizeClient(500, 600);
    EXPECT_LT(panel(3).width(), panel(3).sizeHint().width());
    EXPECT_EQ(panel(3).toolTip().toStdString(), place());
}

} // namespace
} // namespace tabrova
