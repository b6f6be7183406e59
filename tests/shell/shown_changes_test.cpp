// The screen shows what a window painted afresh would show, though each act paints only what it changed.
#include "tests/shell/main_window.h"
#include "tests/tabview/plain_blitter.h"

#include <QScreen>
#include <QTest>

#include <array>
#include <random>

namespace tabrova {
namespace {

using testing::sameImage;

class ShownChanges : public testing::MainWindowTest, public ::testing::WithParamInterface<int> {
  protected:
    ShownChanges() {
        load();
        for (int staff = 1; staff < 6; ++staff)
            window->editor().AppendStaff();
        window->commands().views.setZoom(GetParam());
        settle();
    }
    static void settle() {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
    QImage onScreen() {
        return window->screen()->grabWindow(window->winId()).toImage().convertToFormat(QImage::Format_RGB32);
    }
    QImage afresh() { return window->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    void expectAllShown(const std::string& after) {
        settle();
        const QImage seen = onScreen();
        const QImage expected = afresh();
        for (const char* name : {"picDocument", "picStandardNotation", "picFretboard"}) {
            const auto* surface = window->findChild<QWidget*>(name);
            if (!surface->isVisible()) continue;
            const QRect place(surface->mapTo(window.get(), QPoint(0, 0)), surface->size());
            ASSERT_TRUE(sameImage(seen.copy(place), expected.copy(place), "shown"))
                << name << " after " << after;
        }
    }
    int choose(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
    std::string act() {
        constexpr std::array Keys = {Qt::Key_1, Qt::Key_7,     Qt::Key_0,      Qt::Key_H,    Qt::Key_V,
                                     Qt::Key_L, Qt::Key_B,     Qt::Key_Space,  Qt::Key_Home, Qt::Key_End,
                                     Qt::Key_X, Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,   Qt::Key_Down,
                                     Qt::Key_R, Qt::Key_Right, Qt::Key_Delete, Qt::Key_Up,   Qt::Key_Down};
        constexpr std::array Items = {"mnuViewNotation",
                                      "mnuVirtualFretboard",
                                      "mnuInsertSeparator",
                                      "mnuNoteDeleteNote",
                                      "mnuEditInsertNoteOnAllTracks",
                                      "mnuEditRemoveNoteonCurrentTrack",
                                      "clearstaffcurrentnotes",
                                      "mnuGoPageDown",
                                      "mnuGoDocumentStart",
                                      "mnuGoDocumentEnd",
                                      "mnuCopyStaff",
                                      "mnuEditPaste(0)",
                                      "mnuNextTrack",
                                      "mnuEditNewBarAfterCurrentBar",
                                      "mnuZoomIn",
                                      "mnuZoomOut"};
        for (const char* panel : {"picBend", "picRepeat", "picNoteSelector"}) {
            auto* open = window->findChild<QWidget*>(panel);
            if (!open->isVisible() || choose(2) != 0) continue;
            QTest::keyClick(open, Qt::Key_Escape);
            return std::string("Escape in ") + panel;
        }
        auto* page = window->findChild<QWidget*>("picDocument");
        const int kind = choose(9);
        if (kind < 6) {
            const Qt::Key key = Keys[static_cast<std::size_t>(choose(Keys.size() - 1))];
            page->setFocus();
            QTest::keyClick(page, key, choose(5) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
            return "key " + std::to_string(key);
        }
        if (kind < 8) {
            const QPoint place(choose(page->width() - 1), choose(page->height() - 1));
            QTest::mouseClick(page, choose(3) ? Qt::LeftButton : Qt::RightButton, {}, place);
            return "a click at " + std::to_string(place.x()) + ", " + std::to_string(place.y());
        }
        const char* item = Items[static_cast<std::size_t>(choose(Items.size() - 1))];
        trigger(item);
        return item;
    }

    std::mt19937 random{static_cast<unsigned>(GetParam())};
};

TEST_P(ShownChanges, TheCursorLeavesNothingBehind) {
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up, Qt::Key_End}) {
        QTest::keyClick(window->findChild<QWidget*>("picDocument"), key);
        expectAllShown("key " + std::to_string(key));
    }
}

TEST_P(ShownChanges, ATypedNoteIsSeen) {
    const QImage before = onScreen();
    QTest::keyClick(window->findChild<QWidget*>("picDocument"), Qt::Key_7);
    expectAllShown("a note");
    EXPECT_NE(onScreen(), before);
}

TEST_P(ShownChanges, AreSeenAfterAnyActs) {
    for (const BoxAnswer percussion : {BoxAnswer::No, BoxAnswer::Yes}) {
        boxes.queueAnswer(percussion);
        trigger("mnuAddTrack");
    }
    ASSERT_EQ(window->document().TrackCount, 3);
    for (int step = 0; step < 150; ++step) {
        const std::string what = act();
        expectAllShown("step " + std::to_string(step) + ", " + what);
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(AtPercent, ShownChanges, ::testing::Values(100, 125, 150, 200));

} // namespace
} // namespace tabrova
