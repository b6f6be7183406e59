// The window-size rules, one by one.
#include "workbench/window_layout.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(WindowLayout, ThePageTakesTheWidthThatTheScrollBarLeaves) {
    const WindowLayout layout = layOutWindow(withStrip({}, true), 1000, 700, 1);
    EXPECT_EQ(layout.picDocument, (Rect{0, 204, 984, 700 - 204 - StatusBarHeight}));
    EXPECT_EQ(layout.VScroll1, (Rect{984, 204, 16, layout.picDocument.height}));
    EXPECT_EQ(layout.picStandardNotation.top, 24);
    EXPECT_EQ(layout.picStandardNotation.width, 984 + 16 + 10);
    EXPECT_EQ(layout.picStandardNotation.height, 168);
    EXPECT_EQ(layout.lbldebug.left, 984 - layout.lbldebug.width - 10);
}

TEST(WindowLayout, TheFretboardTakesItsWidthFromThePage) {
    WindowLayout layout = withStrip({}, true);
    layout.fretboardShown = true;
    layout = layOutWindow(layout, 1000, 700, 1);
    EXPECT_EQ(layout.picDocument.width, 1000 - 16 - 89);
    EXPECT_EQ(layout.picFretboard, (Rect{895 + 16, 24, 89, 168 + layout.picDocument.height + 14}));
    layout = layOutWindow(withStrip(layout, false), 1000, 700, 1);
    EXPECT_EQ(layout.picFretboard, (Rect{911, 38, 89, layout.picDocument.height}));
}

TEST(WindowLayout, WithoutTheStripThePageBeginsHigher) {
    const WindowLayout layout = layOutWindow(withStrip({}, false), 1000, 700, 1);
    EXPECT_EQ(layout.picDocument, (Rect{0, 38, 984, 700 - 38 - StatusBarHeight}));
    EXPECT_EQ(layout.VScroll1.top, 38);
}

TEST(WindowLayout, ANarrowWindowKeepsThePagesWidth) {
    WindowLayout layout = layOutWindow({}, 1000, 700, 1);
    layout = layOutWindow(layout, 783, 700, 1);
    EXPECT_EQ(layout.picDocument.width, 984);
    layout = layOutWindow(layout, 784, 700, 1);
    EXPECT_EQ(layout.picDocument.width, 768);
    EXPECT_EQ(layOutWindow({}, 300, 700, 1).picDocument.width, 767);
}

TEST(WindowLayout, TheHeightFollowsOnlyWhenStavesAreVisible) {
    EXPECT_EQ(layOutWindow({}, 1000, 700, 0).picDocument.height, WindowLayout().picDocument.height);
    EXPECT_EQ(layOutWindow({}, 1000, 10, 1).picDocument.height, 1);
}

TEST(WindowLayout, TheTrackListStandsAboveTheBottom) {
    const WindowLayout layout = layOutWindow({}, 1000, 700, 1);
    EXPECT_EQ(layout.picTrackChooser.bottom(), 700 - 16);
}

} // namespace
} // namespace tabrova
