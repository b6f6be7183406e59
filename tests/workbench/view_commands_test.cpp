// The views' commands: the strip, the neck, the window's size, the statistics line.
#include "tests/workbench/tool_bench.h"

namespace tabrova::testing {
namespace {

class ViewSteps : public ToolBench {
  protected:
    ViewSteps() {
        commands.views.windowIsLoaded();
        commands.views.Form_Resize();
        log.clear();
    }
    ViewCommands& views = commands.views;
    const WindowLayout& layout() { return commands.views.layout(); }
    void setStrip(bool shown) {
        menus.setChecked("mnuViewNotation", shown);
        commands.views.mnuViewNotation();
    }
};

TEST_F(ViewSteps, NothingIsLaidOutBeforeTheWindowIsLoaded) {
    ViewCommands early(bench, menus);
    bench.surroundings.clientHeight = 300;
    early.Form_Resize();
    EXPECT_EQ(log, Log{});
    EXPECT_EQ(early.layout().picDocument, WindowLayout().picDocument);
    early.windowIsLoaded();
    early.Form_Resize();
    EXPECT_EQ(log, Log{"act Form_Resize"});
}

TEST_F(ViewSteps, TheStripComesAndGoesWithThePageAndItsLine) {
    setStrip(true);
    EXPECT_TRUE(layout().stripShown);
    EXPECT_EQ(layout().picDocument.top, 204);
    EXPECT_EQ(bench.surroundings.page, layout().picDocument);
    EXPECT_EQ(bench.view.picDocument.height(), layout().picDocument.height);
    EXPECT_EQ(bench.view.picStandardNotation.height(), 168);
    EXPECT_FALSE(bench.editor.page().vLine1Visible);
    EXPECT_TRUE(watcher.last.layout && watcher.last.page);
    EXPECT_EQ(watcher.last.redraws, 2);
    setStrip(false);
    EXPECT_FALSE(layout().stripShown);
    EXPECT_EQ(layout().picDocument.top, 38);
    EXPECT_TRUE(bench.editor.page().vLine1Visible);
    EXPECT_EQ(log, (Log{"act mnuViewNotation", "act mnuViewNotation"}));
}

TEST_F(ViewSteps, TheStripOpensOnlyOnAGuitarTrackAndClosesOnAny) {
    document().GuitarTrackFlags[0] = False16;
    setStrip(true);
    EXPECT_FALSE(menus.isChecked("mnuViewNotation"));
    EXPECT_FALSE(layout().stripShown);
    EXPECT_EQ(log, Log{});
    document().GuitarTrackFlags[0] = True16;
    setStrip(true);
    document().GuitarTrackFlags[0] = False16;
    setStrip(false);
    EXPECT_FALSE(layout().stripShown);
}

TEST_F(ViewSteps, TheNeckTakesItsRoomFromThePage) {
    const int width = layout().picDocument.width;
    menus.setChecked("mnuVirtualFretboard", true);
    commands.views.mnuVirtualFretboard();
    EXPECT_TRUE(layout().fretboardShown);
    EXPECT_EQ(layout().picDocument.width, width - layout().picFretboard.width);
    EXPECT_EQ(bench.view.picFretboard.height(), layout().picFretboard.height);
    EXPECT_EQ(bench.view.picFretboard.width(), layout().picFretboard.width);
    menus.setChecked("mnuVirtualFretboard", false);
    commands.views.mnuVirtualFretboard();
    EXPECT_EQ(layout().picDocument.width, width);
}

TEST_F(ViewSteps, AFinerScreenHasFinerSurfaces) {
    bench.surroundings.scale = 2;
    commands.views.Form_Resize();
    EXPECT_EQ(bench.view.picDocument.scale(), 2);
    EXPECT_EQ(bench.view.picSource().scale(), 2);
}

TEST_F(ViewSteps, TheStatisticsLineIsShownAndHidden) {
    EXPECT_FALSE(commands.views.statisticsShown());
    commands.views.showStatistics(true);
    EXPECT_TRUE(commands.views.statisticsShown());
    EXPECT_TRUE(watcher.last.layout);
    EXPECT_EQ(watcher.last.redraws, 0);
    commands.views.showStatistics(false);
    EXPECT_FALSE(commands.views.statisticsShown());
}

TEST_F(ViewSteps, DebugModeIsWrittenAtOnce) {
    commands.views.setDebugMode(true);
    EXPECT_TRUE(bench.texts.statistics.starts_with("horizontal spacing: "));
    commands.views.setDebugMode(false);
    EXPECT_EQ(bench.texts.statistics, "Track 1 of 1, Staff 1 of 1");
}

TEST_F(ViewSteps, RefreshRedraws) {
    CommandTable table;
    commands.views.registerRows(table);
    ASSERT_EQ(table.items().size(), 9u);
    EXPECT_EQ(table.items()[2].item, "mnuViewRefresh");
    table.items()[2].run();
    EXPECT_EQ(watcher.last.redraws, 1);
}

TEST_F(ViewSteps, TheZoomIsRememberedCheckedAndLaidOut) {
    views.takeClientArea(1600, 848, 1.0);
    views.windowIsLoaded();
    views.setZoom(200);
    EXPECT_EQ(views.zoom(), 200);
    EXPECT_EQ(bench.surroundings.clientWidth, 800);
    EXPECT_EQ(bench.surroundings.clientHeight, 448);
    EXPECT_EQ(bench.view.picDocument.scale(), 2);
    EXPECT_EQ(layout().picDocument.width, 784);
    EXPECT_TRUE(watcher.last.layout);
    EXPECT_EQ(services.settings.GetSetting("Options", "Zoom", ""), "200");
    EXPECT_EQ(menus.checked, (std::set<QString>{"mnuZoom(3)"}));
    views.stepZoom(1);
    EXPECT_EQ(views.zoom(), 200);
    views.stepZoom(-1);
    EXPECT_EQ(views.zoom(), 150);
    views.stepZoom(-9);
    EXPECT_EQ(views.zoom(), 100);
    EXPECT_EQ(bench.surroundings.clientWidth, 1600);
    EXPECT_EQ(menus.checked, (std::set<QString>{"mnuZoom(0)"}));
}

TEST_F(ViewSteps, AWindowTooNarrowForTheZoomShowsTheNarrowestPage) {
    views.takeClientArea(1400, 848, 1.0);
    views.windowIsLoaded();
    views.setZoom(150);
    EXPECT_EQ(layout().picDocument.width, 933 - 16);
    views.setZoom(200);
    EXPECT_EQ(layout().picDocument.width, 767);
    EXPECT_EQ(layout().VScroll1.left, 767);
}

TEST_F(ViewSteps, NoZoomIsLargerThanTheLargest) {
    views.setLargestZoom(125);
    views.setZoom(200);
    EXPECT_EQ(views.zoom(), 125);
    views.stepZoom(1);
    EXPECT_EQ(views.zoom(), 125);
    views.stepZoom(-1);
    EXPECT_EQ(views.zoom(), 100);
}

TEST_F(ViewSteps, TheRememberedZoomIsTheNearestThatThereIs) {
    for (const auto& [stored, zoom] :
         {std::pair{"150", 150}, {"140", 150}, {"1000", 200}, {"-1", 100}, {"none", 100}, {"", 125}}) {
        services.settings.SaveSetting("Options", "Zoom", stored);
        views.setFirstZoom(125);
        views.restoreZoom();
        EXPECT_EQ(views.zoom(), zoom) << stored;
        EXPECT_EQ(services.settings.GetSetting("Options", "Zoom", ""), stored);
    }
}

} // namespace
} // namespace tabrova::testing
