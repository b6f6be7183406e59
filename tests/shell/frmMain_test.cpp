// The main window by itself: what stands still during playback, and the sharpness of the page on finer
// screens.
#include "tests/shell/main_window.h"

#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class MainWindow : public testing::MainWindowTest {
  protected:
    bool enabled(const char* name) { return window.menu().action(name)->isEnabled(); }

    frmMain& window = load();
};

TEST_F(MainWindow, ToggleMenusHoldsTheEditorClosed) {
    const char* const menus[] = {"mnuFile", "mnuEdit",  "mnuView",  "mnuStaff",
                                 "mnuNote", "mnuTrack", "mnuTools", "mnuHelp"};
    auto* page = window.findChild<QWidget*>("picDocument");
    window.ToggleMenus(false);
    for (const char* menu : menus)
        EXPECT_FALSE(enabled(menu)) << menu;
    EXPECT_TRUE(enabled("mnuSound"));
    for (const char* name : {"picDocument", "picFretboard", "VScroll1", "StatusBar1"})
        EXPECT_FALSE(window.findChild<QWidget*>(name)->isEnabled()) << name;
    for (const QToolButton* button : window.findChild<QWidget*>("Toolbar1")->findChildren<QToolButton*>())
        EXPECT_EQ(button->isEnabled(), button->objectName() == "Toolbar1(stop)")
            << button->objectName().toStdString();
    window.clientArea()->setFocus();
    window.ToggleMenus(true);
    for (const char* menu : menus)
        EXPECT_TRUE(enabled(menu)) << menu;
    EXPECT_TRUE(page->isEnabled());
    EXPECT_EQ(window.focusWidget(), page);
}

TEST_F(MainWindow, ADisabledPageTakesNoKeys) {
    window.ToggleMenus(false);
    QTest::keyClick(window.findChild<QWidget*>("picDocument"), Qt::Key_7);
    EXPECT_EQ(window.document().note(0, 0), "");
}

TEST_F(MainWindow, AFailingDeviceEndsTheProgram) {
    midi.setFailing(RecordingMidiDevice::Operation::Send, true);
    window.editor().DrawAndStoreNote('5');
    EXPECT_GT(ends, 0);
    EXPECT_EQ(boxes.take().first().box.title, "Error: Sound Card Unavailable");
}

TEST_F(MainWindow, EveryItemHasItsCommandAndOneWithoutIsDisabled) {
    int items = 0;
    for (const QAction* action : window.menuBar()->findChildren<QAction*>()) {
        if (action->isSeparator() || action->menu() || action->objectName().isEmpty()) continue;
        // A list of recent documents that is shorter hides the rest.
        if (!action->isVisible()) continue;
        EXPECT_EQ(action->isEnabled(), action->objectName() != "mnuPercussionEditor")
            << action->objectName().toStdString();
        ++items;
    }
    EXPECT_GT(items, 60);
    QMenuBar bar;
    const MainMenu alone(bar);
    EXPECT_FALSE(alone.isEnabled("mnuFileSave"));
}

TEST_F(MainWindow, TheModesExcludeEachOtherAndIntelligentStandsAlone) {
    MainMenu& menu = window.menu();
    menu.action("mnuCCP")->trigger();
    menu.action("mnuCCP")->trigger();
    EXPECT_TRUE(menu.isChecked("mnuCCP"));
    EXPECT_FALSE(menu.isChecked("mnuStandard"));
    EXPECT_TRUE(window.editor().modes.powerChord);
    menu.action("mnuIntelligent")->trigger();
    menu.action("mnuStandard")->trigger();
    EXPECT_TRUE(menu.isChecked("mnuStandard"));
    EXPECT_FALSE(menu.isChecked("mnuCCP"));
    EXPECT_TRUE(window.editor().modes.intelligent);
    menu.action("mnuIntelligent")->trigger();
    EXPECT_FALSE(window.editor().modes.intelligent);
}

TEST_F(MainWindow, TheNotationCannotBeOpenedOnAPercussionTrackButClosed) {
    MainMenu& menu = window.menu();
    window.document().GuitarTrackFlags[0] = False16;
    menu.action("mnuViewNotation")->trigger();
    EXPECT_FALSE(window.commands().views.layout().stripShown);
    menu.action("mnuViewNotation")->trigger();
    EXPECT_FALSE(window.commands().views.layout().stripShown);
    EXPECT_FALSE(menu.isChecked("mnuViewNotation"));
}

TEST_F(MainWindow, ThePagesPixelsReachTheScreenUnchanged) {
    window.editor().cursor().objects.nCursor.left = 5000;
    window.editor().DrawAndStoreNote('7');
    window.editor().refreshdrawing();
    window.editor().cursor().objects.nCursor.left = 5000;
    auto* page = window.findChild<QWidget*>("picDocument");
    const QImage seen = page->grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(seen, window.view().picDocument.image());
}

TEST_F(MainWindow, ADoubleClickOnTheFretboardRunsTheChordManagersCommand) {
    window.menu().action("mnuVirtualFretboard")->trigger();
    auto* neck = window.findChild<QWidget*>("picFretboard");
    const QPoint place(40, 100);
    // Without a command nothing happens, but its first press is a click.
    QTest::mouseClick(neck, Qt::LeftButton, {}, place);
    const std::string fret(window.document().note(0, 3));
    EXPECT_FALSE(fret.empty());
    window.document().setNote(0, 3, "");
    QTest::mouseDClick(neck, Qt::LeftButton, {}, place);
    int runs = 0;
    window.menu().connectItem("mnuChordManager", [&runs] { ++runs; });
    QTest::mouseClick(neck, Qt::LeftButton, {}, place);
    EXPECT_EQ(runs, 0);
    QTest::mouseDClick(neck, Qt::LeftButton, {}, place);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(window.document().note(0, 3), fret);
    window.ToggleMenus(false);
    QTest::mouseDClick(neck, Qt::LeftButton, {}, place);
    EXPECT_EQ(runs, 1);
}

TEST_F(MainWindow, TheViewsPixelsReachTheScreenUnchanged) {
    window.menu().action("mnuVirtualFretboard")->trigger();
    auto* neck = window.findChild<QWidget*>("picFretboard");
    EXPECT_EQ(neck->grab().toImage().convertToFormat(QImage::Format_RGB32),
              window.view().picFretboard.image());
}

TEST_F(MainWindow, InlaysTakeTheirColorFromTheTheme) {
    window.menu().action("mnuVirtualFretboard")->trigger();
    const auto inlay = [this] {
        const Surface& neck = window.view().picFretboard;
        const int pitch = fretPitch(neck.height());
        return neck.image().pixel(45, pitch * 2 + 15 + 6) | 0xFF000000u;
    };
    for (const QRgb theme : {0xFFA0B0C0u, 0xFFB8B8B8u}) {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Mid, QColor(theme));
        window.setPalette(palette);
        window.editor().refreshdrawing();
        EXPECT_EQ(inlay(), theme);
    }
}

TEST_F(MainWindow, AnySizeOfTheWindowIsDrawnWithBothViews) {
    const auto shows = [this](const char* name, const Surface& surface) {
        auto* widget = window.findChild<QWidget*>(name);
        return widget->size() == QSize(surface.width(), surface.height()) &&
               widget->grab().toImage().convertToFormat(QImage::Format_RGB32) == surface.image();
    };
    window.menu().action("mnuVirtualFretboard")->trigger();
    for (const int width : {200, 783, 784, 900, 1700})
        for (const int height : {40, 203, 206, 230, 300, 479, 480, 900, 1400}) {
            SCOPED_TRACE(std::to_string(width) + " by " + std::to_string(height));
            window.resizeClient(width, height);
            window.menu().action("mnuViewNotation")->trigger();
            window.menu().action("mnuVirtualFretboard")->trigger();
            window.editor().cursor().objects.nCursor.left = 5000;
            window.editor().cursor().objects.placeLines();
            if (width > 783) {
                const int neck = window.commands().views.layout().fretboardShown ? 89 : 0;
                EXPECT_EQ(window.view().picDocument.width(), width - 16 - neck);
            }
            EXPECT_TRUE(shows("picDocument", window.view().picDocument));
            EXPECT_TRUE(shows("picFretboard", window.view().picFretboard));
            const int pitch = fretPitch(window.view().picFretboard.height());
            const auto place = neckPlaceAt(40, 12, pitch);
            window.document().setNote(0, 3, "old");
            QTest::mouseClick(window.findChild<QWidget*>("picFretboard"), Qt::LeftButton, {}, {40, 12});
            EXPECT_EQ(window.document().note(0, 3), place ? std::to_string(place->fret) : "old");
        }
}

TEST_F(MainWindow, TheWheelScrollsByStaves) {
    for (int staff = 0; staff < 9; ++staff)
        window.editor().AppendStaff();
    auto* page = window.findChild<QWidget*>("picDocument");
    QWheelEvent down({50, 50}, page->mapToGlobal(QPointF(50, 50)), {}, {0, -240}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(page, &down);
    EXPECT_EQ(window.document().TopStaff, 2);
}

} // namespace
} // namespace tabrova
