// The order of a redraw, the scroll bar, and what a new page size does.
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

using Redraw = EditorTest;
using Scrolling = EditorTest;
using PageSize = EditorTest;

TEST_F(Redraw, TellsOnceOfAllThatItHasMadeAnew) {
    window.take();
    editor.refreshdrawing();
    Changes expected;
    expected.redraws = 1;
    expected.page = expected.strip = expected.cursor = expected.scrollBar = expected.title =
        expected.statistics = true;
    expected.techniques = true;
    EXPECT_EQ(window.take(), expected);
}

TEST_F(Redraw, StartsFromAnEmptyPage) {
    const QImage before = view.picDocument.image();
    view.picDocument.image().fill(qRgb(1, 2, 3));
    view.picStandardNotation.image().fill(qRgb(1, 2, 3));
    editor.refreshdrawing();
    EXPECT_EQ(view.picDocument.image(), before);
    EXPECT_EQ(view.picStandardNotation.image().pixel(0, 0), 0xFFFFFFFF);
}

TEST_F(Redraw, FollowsTheColumnButLeavesTheCursorsTop) {
    document.ColumnInStaff = 9;
    document.CurrentString = 4;
    editor.refreshdrawing();
    EXPECT_EQ(editor.page().nCursor, (Rect{29 * 9 + 22, 25, 13, 10}));
    EXPECT_EQ(editor.page().vLine1, (Line{29 * 9 + 28, 0, 29 * 9 + 28, 25}));
}

TEST_F(Redraw, TakesStavesAndColumnsFromThePage) {
    view.picDocument.resize(1904, 1080);
    editor.refreshdrawing();
    EXPECT_EQ(document.VisibleStaves, 10);
    EXPECT_EQ(document.ColumnWidth, 58);
    view.picDocument.resize(640, 40);
    editor.refreshdrawing();
    EXPECT_EQ(document.VisibleStaves, 1);
    EXPECT_EQ(document.ColumnWidth, 18);
}

TEST_F(Redraw, TheTitleNamesPieceAndAuthor) {
    document.Title = "A";
    document.Author = "B";
    editor.refreshdrawing();
    EXPECT_EQ(texts.title, "Tabrova - A by B");
}

TEST_F(Redraw, TheTechniqueButtonsFollowTheTrack) {
    makePercussionTrack();
    editor.refreshdrawing();
    EXPECT_TRUE(window.take().techniques);
}

TEST_F(Scrolling, TheRangeFollowsTheStaves) {
    for (int staves = 1; staves <= 12; ++staves) {
        grow(staves);
        EXPECT_EQ(editor.scroll().minimum, 1);
        EXPECT_EQ(editor.scroll().maximum, staves <= 4 ? 1 : staves - 4 + 1) << staves;
        EXPECT_TRUE(window.take().scrollBar);
    }
}

TEST_F(Scrolling, LeavesTheCursorWhereItIsOnTheScreen) {
    grow(10);
    moveTo(2, 3);
    keys({key::Down});
    const Rect marker = editor.page().nCursor;
    for (const int value : {2, 7, 4, 1}) {
        editor.VScroll1_Change(value);
        expectAt(2 + value - 1, 3, 1, value - 1);
        EXPECT_EQ(editor.page().nCursor, marker);
    }
}

TEST_F(Scrolling, HoldsTheValueInItsRange) {
    grow(10);
    editor.VScroll1_Change(99);
    expectAt(7, 0, 0, 6);
    EXPECT_TRUE(window.take().scrollBar);
    editor.VScroll1_Change(-3);
    expectAt(1, 0, 0, 0);
    EXPECT_TRUE(window.take().scrollBar);
}

TEST_F(Scrolling, ACursorOneStaffBelowThePageFallsByThePage) {
    grow(10);
    document.CurrentStaff = 5; // TopStaff + VisibleStaves + 1
    editor.VScroll1_Change(2);
    EXPECT_EQ(document.CurrentStaff, 2);
    EXPECT_EQ(document.TopStaff, 1);
}

TEST_F(Scrolling, TheCursorStepsOffThePageToTheNextStaffAlsoWhereNoClickCouldPlaceIt) {
    grow(10);
    for (const int width : {984, 60, 20}) {
        editor.VScroll1_Change(1);
        resizePage(width, 472);
        while (document.CurrentStaff > 4)
            editor.MoveCursor(Direction::Left);
        moveTo(4, 31);
        expectAt(4, 31, 0, 0);
        editor.MoveCursor(Direction::Right);
        EXPECT_EQ(document.ColumnWidth, width == 984 ? 29 : width == 60 ? 0 : -1);
        expectAt(5, 0, 0, 1);
    }
}

TEST_F(Scrolling, FocusesThePageRewritesTheLineAndRedraws) {
    grow(10);
    window.take();
    editor.VScroll1_Change(3);
    const Changes told = window.take();
    EXPECT_TRUE(told.pageTakesKeyboard);
    EXPECT_TRUE(told.statistics);
    EXPECT_EQ(told.redraws, 1);
    EXPECT_EQ(texts.statistics, "Track 1 of 1, Staff 3 of 10");
}

TEST_F(Scrolling, ShowsTheOtherStaves) {
    grow(10);
    document.setNote(5 * 32, 0, "7");
    editor.VScroll1_Change(6);
    EXPECT_EQ(view.picDocument.image().copy(24, 26, 9, 7), view.picSource().image().copy(71, 1, 9, 7));
}

TEST_F(Scrolling, AnUnchangedValueIsNoChange) {
    grow(10);
    editor.VScroll1_Change(3);
    window.take();
    editor.VScroll1_Change(3);
    EXPECT_EQ(window.take(), Changes());
}

TEST_F(Scrolling, TypingGoesToTheStaffUnderTheCursor) {
    grow(10);
    editor.VScroll1_Change(4);
    keys({'5'});
    EXPECT_EQ(document.note(3 * 32, 0), "5");
    EXPECT_EQ(document.note(0, 0), "");
}

TEST_F(PageSize, ALowerPagePullsTheCursorBackStaffByStaff) {
    for (int height = 110; height < 480; height += 30)
        for (int staff = 1; staff <= 4; ++staff)
            for (int string = 0; string < 6; ++string) {
                editor.MakeNewDocument();
                resizePage(984, 472);
                grow(4);
                moveTo(staff, 2);
                for (int step = 0; step < string; ++step)
                    editor.MoveCursor(Direction::Down);
                resizePage(984, height);
                EXPECT_EQ(document.VisibleStaves, height / 100);
                SCOPED_TRACE(::testing::Message() << height << ' ' << staff << ' ' << string);
                expectAt(std::min(staff, height / 100), 2, string, 0);
            }
}

TEST_F(PageSize, ACursorOnThePageStays) {
    grow(4);
    moveTo(2, 2);
    resizePage(984, 230);
    expectAt(2, 2, 0, 0);
}

TEST_F(PageSize, ACursorInTheFirstSlotStaysOnThePageOfOneStaff) {
    keys({key::Down, key::Down});
    resizePage(984, 20);
    expectAt(1, 0, 2, 0);
    EXPECT_EQ(document.VisibleStaves, 1);
}

TEST_F(PageSize, AScrolledPageIsPulledBackTheSameWay) {
    grow(10);
    editor.VScroll1_Change(5);
    while (document.CurrentStaff < 8)
        editor.MoveCursor(Direction::Right);
    expectAt(8, 0, 0, 4);
    resizePage(984, 250);
    expectAt(6, 0, 0, 4);
}

TEST_F(PageSize, AHigherPageLowersTheScrollBarsEndAndScrollsWithIt) {
    grow(10);
    moveTo(9, 1);
    expectAt(9, 1, 0, 5);
    resizePage(984, 830);
    EXPECT_EQ(editor.scroll().maximum, 3);
    EXPECT_EQ(document.TopStaff, 2);
    expectAt(6, 1, 0, 2);
}

TEST_F(PageSize, AWiderPageMovesTheCursorWithItsColumn) {
    moveTo(1, 10);
    resizePage(1904, 472);
    EXPECT_EQ(document.ColumnWidth, 58);
    EXPECT_EQ(editor.page().nCursor.left, 58 * 10 + 22);
    expectAt(1, 10, 0, 0);
}

TEST_F(PageSize, IsRedrawnBeforeAndAfterTheCursorIsPulledBack) {
    grow(4);
    moveTo(4, 2);
    window.redraws = 0;
    resizePage(984, 230);
    EXPECT_EQ(window.redraws, 2);
    EXPECT_EQ(texts.statistics, "Track 1 of 1, Staff 2 of 4");
}

} // namespace
} // namespace tabrova::testing
