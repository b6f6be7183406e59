// What the main window draws itself, pixel by pixel: the cursor's frame and its line on the page, the
// cursor's line on the strip, and the ruler.
#include "tests/shell/main_window.h"
#include "tests/tabview/plain_blitter.h"

namespace tabrova {
namespace {

using testing::colorAt;
using testing::sameImage;

constexpr QRgb Frame = 0xFF1A57BD;
constexpr QRgb StripLine = 0xFF800080;

class PageObjectsOnScreen : public testing::MainWindowTest {
  protected:
    static QImage seen(QWidget& widget, const QRect& part = {0, 0, -1, -1}) {
        return widget.grab(part).toImage().convertToFormat(QImage::Format_RGB32);
    }
    QImage seenPage() { return seen(*window->findChild<QWidget*>("picDocument")); }
    void setLook(int borderWidth) {
        PageObjects& objects = window->editor().cursor().objects;
        objects.color = Frame;
        objects.noteLineColor = StripLine;
        objects.borderWidth = borderWidth;
    }
    // The page's own pixels with the points of the cursor over them.
    template <class IsCursor>
    void expectPage(IsCursor isCursor, const char* name) {
        QImage expected = window->view().picDocument.image().copy();
        for (int y = 0; y < expected.height(); ++y)
            for (int x = 0; x < expected.width(); ++x)
                if (isCursor(x, y)) expected.setPixel(x, y, Frame);
        EXPECT_TRUE(sameImage(seenPage(), expected, name));
    }

    frmMain& main = load();
};

bool within(int x, int y, int left, int top, int right, int bottom) {
    return x >= left && x <= right && y >= top && y <= bottom;
}

TEST_F(PageObjectsOnScreen, TheCursorIsAHollowRectangleOf13By10) {
    setLook(1);
    expectPage([](int x, int y) { return within(x, y, 22, 25, 34, 34) && !within(x, y, 23, 26, 33, 33); },
               "frame");
}

TEST_F(PageObjectsOnScreen, ACursorThatStandsOutGrowsOutwards) {
    setLook(2);
    expectPage([](int x, int y) { return within(x, y, 21, 24, 35, 35) && !within(x, y, 23, 26, 33, 33); },
               "wide_frame");
}

TEST_F(PageObjectsOnScreen, WithoutTheStripALineRunsFromThePagesTopToTheCursor) {
    trigger("mnuViewNotation");
    main.editor().picDocument_MouseDown(MouseButton::Left, 22 + 29 * 5, 25 + 50);
    ASSERT_EQ(main.editor().page().nCursor, (Rect{22 + 29 * 5, 25 + 50, 13, 10}));
    main.editor().MoveCursor(Direction::Up);
    setLook(1);
    expectPage(
        [](int x, int y) {
            return (within(x, y, 167, 65, 179, 74) && !within(x, y, 168, 66, 178, 73)) ||
                   within(x, y, 173, 0, 173, 64);
        },
        "frame_with_line");
    setLook(2);
    expectPage(
        [](int x, int y) {
            return (within(x, y, 166, 64, 180, 75) && !within(x, y, 168, 66, 178, 73)) ||
                   within(x, y, 173, 0, 174, 64);
        },
        "wide_frame_with_line");
    trigger("mnuViewNotation");
    main.editor().cursor().objects.color = Frame;
    expectPage([](int x, int y) { return within(x, y, 166, 64, 180, 75) && !within(x, y, 168, 66, 178, 73); },
               "wide_frame_without_line");
}

TEST_F(PageObjectsOnScreen, OnTheStripALineOfItsWholeHeightMarksTheColumn) {
    main.findChild<QWidget*>("lblNotationTitle")->hide();
    main.editor().picDocument_MouseDown(MouseButton::Left, 22 + 29 * 5, 25);
    for (const int width : {1, 2}) {
        setLook(width);
        QWidget& strip = *main.findChild<QWidget*>("picStandardNotation");
        QImage expected = main.view().picStandardNotation.image().copy();
        ASSERT_EQ(expected.height(), 168);
        for (int y = 0; y < 168; ++y)
            for (int x = 173 + 8; x < 173 + 8 + width; ++x)
                expected.setPixel(x, y, StripLine);
        EXPECT_TRUE(sameImage(seen(strip), expected, "strip_line"));
    }
}

class Ruler : public PageObjectsOnScreen {
  protected:
    Ruler() {
        QPalette palette = main.palette();
        palette.setColor(QPalette::Window, QColor(Window));
        palette.setColor(QPalette::Dark, QColor(Dark));
        main.setPalette(palette);
    }
    // The ticks of 32 columns from this line of the client area on, six high, and nothing else in this band.
    void expectTicks(int top, int bandTop, int bandHeight, int columnWidth) {
        QImage expected(1000, bandHeight, QImage::Format_RGB32);
        expected.fill(Window);
        for (int column = 0; column < 32; ++column)
            for (int y = top; y < top + 6; ++y) {
                const bool beat = column % 4 == 0;
                const int x = columnWidth * column + (beat ? 31 : 30);
                expected.setPixel(x, y - bandTop, beat ? Black : Dark);
                expected.setPixel(x + 2, y - bandTop, White);
            }
        EXPECT_TRUE(sameImage(seen(*main.clientArea(), {0, bandTop, 1000, bandHeight}), expected, "ruler"));
    }

    static constexpr QRgb Window = 0xFFE0E4E8, Dark = 0xFF707C88, Black = 0xFF000000, White = 0xFFFFFFFF;
};

TEST_F(Ruler, StandsBetweenStripAndPage) { expectTicks(194, 192, 12, 29); }

TEST_F(Ruler, StandsAbovePageWhenTheStripIsHidden) {
    trigger("mnuViewNotation");
    expectTicks(24, 24, 14, 29);
}

TEST_F(Ruler, FollowsTheColumnsOfThePage) {
    window->menu().action("mnuVirtualFretboard")->trigger();
    ASSERT_EQ(main.document().ColumnWidth, 26);
    trigger("mnuViewNotation");
    expectTicks(24, 24, 14, 26);
}

} // namespace
} // namespace tabrova
