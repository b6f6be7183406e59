// The fret palette under a real pointer: the events reach the window, which finds the control below them.
#include "shell/note_selector.h"
#include "tests/shell/main_window.h"

#include <QTest>

namespace tabrova {
namespace {

class FretPalette : public testing::MainWindowTest {
  protected:
    FretPalette() {
        QTest::mouseClick(page, Qt::RightButton, {}, QPoint(60, 40));
        palette = main.findChild<QWidget*>("picNoteSelector");
        highlight = main.findChild<QWidget*>("shpNoteSelector");
    }
    QPoint inWindow(int x, int y) const { return palette->mapTo(&main, QPoint(x, y)); }
    void pointAt(int x, int y) { QTest::mouseMove(main.windowHandle(), inWindow(x, y)); }
    void clickAt(int x, int y) { QTest::mouseClick(main.windowHandle(), Qt::LeftButton, {}, inWindow(x, y)); }
    QPoint cell() const { return highlight->pos(); }

    frmMain& main = load();
    QWidget* page = main.findChild<QWidget*>("picDocument");
    QWidget* palette = nullptr;
    QWidget* highlight = nullptr;
};

TEST_F(FretPalette, OpensWithItsHighlightParked) {
    ASSERT_TRUE(palette->isVisible());
    EXPECT_EQ(palette->pos(), QPoint(60, 40));
    EXPECT_EQ(highlight->geometry(), QRect(300, 18, 20, 18));
}

// The left edge of a cell still lies under the highlight of the next.
TEST_F(FretPalette, AMoveOverTheHighlightReachesThePalette) {
    pointAt(30, 30);
    EXPECT_EQ(cell(), QPoint(21, 18));
    ASSERT_TRUE(highlight->geometry().contains(22, 30));
    pointAt(22, 30);
    EXPECT_EQ(cell(), QPoint(1, 18));
    EXPECT_EQ(palette->childAt(10, 30), nullptr);
}

TEST_F(FretPalette, AClickOnTheHighlightChoosesItsFret) {
    pointAt(70, 50);
    EXPECT_EQ(cell(), QPoint(61, 38));
    clickAt(70, 50);
    EXPECT_FALSE(palette->isVisible());
    EXPECT_EQ(main.document().note(1, 2), "13");
}

} // namespace
} // namespace tabrova
