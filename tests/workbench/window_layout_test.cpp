// The window-size rules, one by one.
#include "workbench/window_layout.h"

#include <gtest/gtest.h>

#include <tuple>

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

TEST(Zoom, AtAHundredPercentNothingMoves) {
    for (const Rect& place : {Rect{0, 204, 984, 472}, Rect{-8, 24, 1010, 168}, Rect{3, -7, 1, 1}})
        EXPECT_EQ(zoomed(place, 100), place);
    for (const int length : {0, 1, 48, 783, 784, 4000}) {
        EXPECT_EQ(unzoomedWidth(length, 100), length);
        EXPECT_EQ(unzoomedHeight(length, 100), length);
    }
}

TEST(Zoom, TakesWhatStandsBelowTheToolbar) {
    EXPECT_EQ(zoomed({0, 24, 100, 168}, 200), (Rect{0, 24, 200, 336}));
    EXPECT_EQ(zoomed({0, 204, 800, 100}, 150), (Rect{0, 294, 1200, 150}));
    EXPECT_EQ(zoomed({-8, 24, 101, 168}, 125), (Rect{-10, 24, 126, 210}));
    // The toolbar's and the status bar's heights stay.
    EXPECT_EQ(unzoomedHeight(748, 200), 48 + 350);
    EXPECT_EQ(unzoomedHeight(748, 125), 48 + 560);
    EXPECT_EQ(unzoomedWidth(1001, 200), 500);
    EXPECT_EQ(unzoomedWidth(999, 150), 666);
}

TEST(Zoom, NeighboursStayNeighbours) {
    for (const int percent : ZoomSteps)
        for (int width = 700; width < 1400; width += 7) {
            const WindowLayout layout = layOutWindow(withStrip({}, true), width, 700, 4);
            const Rect page = zoomed(layout.picDocument, percent), bar = zoomed(layout.VScroll1, percent);
            EXPECT_EQ(page.right(), bar.left) << percent << " " << width;
            EXPECT_EQ(page.top, bar.top);
            EXPECT_EQ(page.bottom(), bar.bottom());
        }
}

TEST(Zoom, APageNeverReachesBelowTheStatusBar) {
    for (const int percent : ZoomSteps)
        for (int height = 300; height < 900; ++height) {
            const WindowLayout layout =
                layOutWindow(withStrip({}, true), 1000, unzoomedHeight(height, percent), 4);
            const int bottom = zoomed(layout.picDocument, percent).bottom();
            if (layout.picDocument.height > 1) {
                EXPECT_LE(bottom, height - StatusBarHeight) << percent << " " << height;
                EXPECT_GE(bottom, height - StatusBarHeight - 2) << percent << " " << height;
            }
        }
}

TEST(Zoom, SurfacesHaveTheNextWholeScale) {
    for (const auto& [ratio, percent, scale] : {std::tuple{1.0, 100, 1},
                                                {1.0, 125, 2},
                                                {1.0, 150, 2},
                                                {1.0, 200, 2},
                                                {1.5, 100, 2},
                                                {1.5, 125, 2},
                                                {1.5, 150, 3},
                                                {1.5, 200, 3},
                                                {2.0, 100, 2},
                                                {2.0, 125, 3},
                                                {2.0, 150, 3},
                                                {2.0, 200, 4},
                                                {3.0, 200, 4},
                                                {0.5, 100, 1}})
        EXPECT_EQ(surfaceScale(ratio, percent), scale) << ratio << " " << percent;
}

} // namespace
} // namespace tabrova
