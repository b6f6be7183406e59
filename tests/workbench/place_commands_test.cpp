// Going to places, by the menu items' commands.
#include "tests/workbench/tool_bench.h"

namespace tabrova::testing {
namespace {

class Places : public ToolBench {
  protected:
    Places() {
        bench.view.picDocument.resize(984, 472);
        bench.editor.refreshdrawing();
        for (int staff = 1; staff < 12; ++staff)
            bench.editor.AppendStaff();
        commands.registerRows(table);
    }
    void go(const std::string& item) {
        for (const CommandTable::ItemRow& row : table.items())
            if (row.item == item) return row.run();
        FAIL() << item;
    }
    // The marker stands where the cursor's numbers say.
    void expectAt(int staff, int column, int top) {
        EXPECT_EQ(document().CurrentStaff, staff);
        EXPECT_EQ(document().ColumnInStaff, column);
        EXPECT_EQ(document().TopStaff, top);
        EXPECT_EQ(bench.editor.scroll().value, top + 1);
        const Rect& marker = bench.editor.page().nCursor;
        EXPECT_EQ(marker.left, column * document().ColumnWidth + CursorLeft);
        EXPECT_EQ(marker.top,
                  SlotHeight * (staff - top - 1) + CursorTop + StringSpacing * document().CurrentString);
    }

    CommandTable table;
};

TEST_F(Places, TheEndsOfTheStaff) {
    bench.editor.goTo(3, 7);
    document().CurrentString = 4;
    go("mnuGoStaffEnd");
    expectAt(3, 31, 0);
    go("mnuGoStaffEnd");
    expectAt(3, 31, 0);
    go("mnuGoStaffStart");
    expectAt(3, 0, 0);
    EXPECT_EQ(document().CurrentString, 4);
    EXPECT_EQ(document().StaffCount, 12) << "the document does not grow";
    EXPECT_TRUE(watcher.last.cursor);
}

TEST_F(Places, TheEndsOfTheDocumentScrollAsFarAsTheyMust) {
    ASSERT_EQ(document().VisibleStaves, 4);
    go("mnuGoDocumentEnd");
    expectAt(12, 31, 8);
    EXPECT_EQ(document().CurrentColumn, 12 * 32 - 1);
    go("mnuGoStaffStart");
    expectAt(12, 0, 8);
    go("mnuGoDocumentStart");
    expectAt(1, 0, 0);
    EXPECT_EQ(document().CurrentColumn, 0);
}

TEST_F(Places, AStaffThatIsSeenDoesNotScroll) {
    bench.editor.VScroll1_Change(5);
    bench.editor.goTo(5, 2);
    expectAt(5, 2, 4);
    bench.editor.goTo(8, 3);
    expectAt(8, 3, 4);
    bench.editor.goTo(9, 3);
    expectAt(9, 3, 5);
    bench.editor.goTo(4, 3);
    expectAt(4, 3, 3);
}

TEST_F(Places, WhatIsNotThereIsBroughtToItsNearest) {
    bench.editor.goTo(100, 100);
    expectAt(12, 31, 8);
    bench.editor.goTo(-100, -100);
    expectAt(1, 0, 0);
    document().StaffCount = 0;
    bench.editor.goTo(1, 5);
    EXPECT_EQ(document().ColumnInStaff, 0);
}

TEST_F(Places, PagesTurnByWhatTheyShow) {
    go("mnuGoPageDown");
    EXPECT_EQ(document().TopStaff, 4);
    EXPECT_EQ(document().CurrentStaff, 5);
    go("mnuGoPageDown");
    go("mnuGoPageDown");
    EXPECT_EQ(document().TopStaff, 8);
    go("mnuGoPageUp");
    EXPECT_EQ(document().TopStaff, 4);
}

TEST_F(Places, TheNextAndThePreviousTrack) {
    for (int track = 0; track < 2; ++track) {
        boxes.queueAnswer(BoxAnswer::No);
        bench.tracks.AddTrack();
    }
    ASSERT_EQ(document().CurrentTrack, 3);
    go("mnuNextTrack");
    EXPECT_EQ(document().CurrentTrack, 3);
    go("mnuPreviousTrack");
    EXPECT_EQ(document().CurrentTrack, 2);
    EXPECT_TRUE(watcher.last.trackChosen);
    go("mnuPreviousTrack");
    go("mnuPreviousTrack");
    EXPECT_EQ(document().CurrentTrack, 1);
    go("mnuNextTrack");
    EXPECT_EQ(document().CurrentTrack, 2);
}

TEST_F(Places, ADamagedDocumentsTracksEndWhereItsNamesDo) {
    document().TrackCount = 1024;
    go("mnuNextTrack");
    EXPECT_EQ(document().CurrentTrack, 1);
}

} // namespace
} // namespace tabrova::testing
