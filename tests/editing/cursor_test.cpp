// The cursor by key and by mouse, scrolling, and what a new size does.
#include "editing/key_codes.h"
#include "tests/editing/fake_host.h"

namespace tabrova::testing {
namespace {

class Cursor : public EditorTest {
  protected:
    void expectAt(int staff, int column, int string, int topStaff) {
        EXPECT_EQ(document.CurrentStaff, staff);
        EXPECT_EQ(document.ColumnInStaff, column);
        EXPECT_EQ(document.CurrentString, string);
        EXPECT_EQ(document.TopStaff, topStaff);
        EXPECT_EQ(editor.scroll().value, topStaff + 1);
        EXPECT_EQ(editor.page().nCursor,
                  (Rect{29 * column + 22, 100 * (staff - topStaff - 1) + 10 * string + 25, 13, 10}));
        EXPECT_EQ(editor.page().vLine1.x1, editor.page().nCursor.left + 6);
        EXPECT_EQ(editor.page().vLine1.y2, editor.page().nCursor.top);
        EXPECT_EQ(editor.page().NoteLine.x2, editor.page().nCursor.left + 14);
    }
};

TEST_F(Cursor, RightAtTheEndOfTheDocumentMakesANewStaff) {
    moveTo(1, 31);
    expectAt(1, 31, 0, 0);
    keys({key::Right});
    EXPECT_EQ(document.StaffCount, 2);
    EXPECT_EQ(document.ColumnCapacity, 64);
    expectAt(2, 0, 0, 0);
}

TEST_F(Cursor, RightBelowThePageScrollsByOne) {
    keys({key::Down, key::Down});
    moveTo(4, 31);
    expectAt(4, 31, 2, 0);
    keys({key::Right});
    expectAt(5, 0, 2, 1);
    moveTo(9, 5);
    expectAt(9, 5, 2, 5);
    EXPECT_EQ(editor.scroll().maximum, 9 - 4 + 1);
}

TEST_F(Cursor, LeftAboveThePageScrollsBack) {
    moveTo(9, 0);
    expectAt(9, 0, 0, 5);
    for (int step = 0; step < 32 * 3; ++step)
        keys({key::Left});
    expectAt(6, 0, 0, 5);
    keys({key::Left});
    expectAt(5, 31, 0, 4);
    for (int step = 0; step < 32 * 5 - 1; ++step)
        keys({key::Left});
    expectAt(1, 0, 0, 0);
}

TEST_F(Cursor, LeftAtTheStartChangesNothing) {
    keys({key::Left});
    expectAt(1, 0, 0, 0);
    EXPECT_EQ(document.StaffCount, 1);
}

TEST_F(Cursor, UpAndDownStopAtTheTrack) {
    keys({key::Up});
    expectAt(1, 0, 0, 0);
    for (int step = 0; step < 9; ++step)
        keys({key::Down});
    expectAt(1, 0, 5, 0);
    keys({key::Up});
    expectAt(1, 0, 4, 0);
}

TEST_F(Cursor, NowhereOnlyBringsTheLinesUpToDate) {
    editor.page().nCursor.left = 500;
    editor.page().nCursor.top = 99;
    editor.MoveCursor(Direction::Nowhere);
    EXPECT_EQ(editor.page().vLine1, (Line{506, 0, 506, 99}));
    EXPECT_EQ(editor.page().NoteLine.x1, 514);
    EXPECT_EQ(document.ColumnInStaff, 0);
}

TEST_F(Cursor, AClickIsMappedToItsCell) {
    grow(3);
    editor.picDocument_MouseDown(MouseButton::Left, 22 + 29 * 7, 100 + 25 + 34);
    expectAt(2, 7, 3, 0);
    editor.picDocument_MouseDown(MouseButton::Left, 22 + 29 * 8 - 1, 25);
    expectAt(1, 7, 0, 0);
    // Halves go to the even string: 5 below the first line stays there, 15 below goes on.
    editor.picDocument_MouseDown(MouseButton::Left, 30, 25 + 5);
    expectAt(1, 0, 0, 0);
    editor.picDocument_MouseDown(MouseButton::Left, 30, 25 + 15);
    expectAt(1, 0, 2, 0);
}

TEST_F(Cursor, AClickInAStaffsLowerPartLandsOnStringFive) {
    editor.picDocument_MouseDown(MouseButton::Left, 30, 25 + 99);
    expectAt(1, 0, 5, 0);
}

TEST_F(Cursor, AClickInTheMarginOrBelowTheLastStaffMovesNothing) {
    moveTo(1, 4);
    for (const auto& [x, y] :
         {std::pair{21, 100}, {100, 24}, {-5, 50}, {100, 130}, {100, 400}, {22 + 29 * 32, 50}}) {
        editor.picDocument_MouseDown(MouseButton::Left, x, y);
        expectAt(1, 4, 0, 0);
    }
}

TEST_F(Cursor, ARightClickOpensThePaletteAlsoWhereNothingMoves) {
    editor.picDocument_MouseDown(MouseButton::Right, 100, 400);
    EXPECT_EQ(host.selectorsOpened, 1);
    expectAt(1, 0, 0, 0);
    EXPECT_EQ(host.selectorPlace, (Rect{100, 400 - 82 - 10, 228, 82})); // flipped above the pointer
    editor.picDocument_MouseDown(MouseButton::Right, 900, 50);
    EXPECT_EQ(host.selectorPlace, (Rect{900 - 228 - 10, 50, 228, 82}));
    EXPECT_EQ(document.ColumnInStaff, 30);
    for (const auto& [x, y] : {std::pair{21, 100}, {100, 24}})
        editor.picDocument_MouseDown(MouseButton::Right, x, y);
    EXPECT_EQ(host.selectorsOpened, 2);
    makePercussionTrack();
    editor.picDocument_MouseDown(MouseButton::Right, 200, 50);
    EXPECT_EQ(host.selectorsOpened, 2);
}

TEST_F(Cursor, ScrollingLeavesTheCursorWhereItIsOnTheScreen) {
    grow(10);
    moveTo(2, 3);
    editor.VScroll1_Change(4);
    expectAt(5, 3, 0, 3);
    EXPECT_GT(host.focused, 0);
    editor.VScroll1_Change(99);
    expectAt(8, 3, 0, 6);
    editor.VScroll1_Change(-3);
    expectAt(2, 3, 0, 0);
}

TEST_F(Cursor, TheScrollRangeFollowsTheStaves) {
    EXPECT_EQ(editor.scroll().maximum, 1);
    grow(4);
    EXPECT_EQ(editor.scroll().maximum, 1);
    grow(5);
    EXPECT_EQ(editor.scroll().maximum, 2);
    grow(10);
    EXPECT_EQ(editor.scroll().maximum, 7);
    EXPECT_EQ(host.scrollMaximum, 7);
}

TEST_F(Cursor, ALowerPagePullsTheCursorBackStaffByStaff) {
    grow(4);
    moveTo(4, 2);
    view.picDocument.resize(984, 230);
    editor.pageResized();
    EXPECT_EQ(document.VisibleStaves, 2);
    EXPECT_LE(editor.page().nCursor.top, 200);
    expectAt(2, 2, 0, 0);
}

TEST_F(Cursor, AWiderPageMovesTheCursorWithItsColumn) {
    moveTo(1, 10);
    view.picDocument.resize(1904, 472);
    editor.pageResized();
    EXPECT_EQ(document.ColumnWidth, 58);
    EXPECT_EQ(editor.page().nCursor.left, 58 * 10 + 22);
}

TEST_F(Cursor, ANewDocumentPutsEverythingHome) {
    moveTo(7, 9);
    keys({key::Down, '5'});
    editor.MakeNewDocument();
    expectAt(1, 0, 0, 0);
    EXPECT_EQ(host.trackPanel, "Untitled Track selected");
    EXPECT_EQ(host.unloaded, 2); // once at the start of this test
    EXPECT_EQ(document.StaffCount, 1);
}

TEST_F(Cursor, TheTitleNamesPieceAndAuthor) {
    document.Title = "A";
    document.Author = "B";
    editor.refreshdrawing();
    EXPECT_EQ(host.title, "Tabrova - A by B");
}

TEST_F(Cursor, TheStatisticsLineCountsTracksAndStaves) {
    grow(3);
    moveTo(2, 0);
    EXPECT_EQ(host.statistics, "Track 1 of 1, Staff 2 of 3");
    host.debug = true;
    keys({key::Right, key::Down});
    EXPECT_EQ(host.statistics, "horizontal spacing: 29. note number: 33. String number: 1. Total Staves: 3. "
                               "Staffnum: 2 YSIZE 6 XSIZE 96 "
                               "XPOS 33 Top Staff 0 visible Staffs 4");
}

TEST_F(Cursor, TheTechniqueButtonsFollowTheTrack) {
    EXPECT_TRUE(host.guitarButtons);
    makePercussionTrack();
    editor.refreshdrawing();
    EXPECT_FALSE(host.guitarButtons);
}

TEST_F(Cursor, ADocumentThatCannotGrowKeepsTheCursorInside) {
    moveTo(1, 31);
    document.StaffCount = document.CurrentStaff = MostStaves;
    editor.MoveCursor(Direction::Right);
    EXPECT_EQ(document.ColumnInStaff, 31);
    EXPECT_EQ(document.CurrentStaff, MostStaves);
}

} // namespace
} // namespace tabrova::testing
