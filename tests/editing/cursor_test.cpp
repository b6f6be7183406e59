// The cursor by key and by mouse.
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

#include <algorithm>

namespace tabrova::testing {
namespace {

using Cursor = EditorTest;

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

TEST_F(Cursor, RightAndLeftWithinAStaffMoveByOneColumn) {
    for (int column = 1; column <= 31; ++column) {
        editor.MoveCursor(Direction::Right);
        expectAt(1, column, 0, 0);
    }
    for (int column = 30; column >= 0; --column) {
        editor.MoveCursor(Direction::Left);
        expectAt(1, column, 0, 0);
    }
    EXPECT_EQ(document.StaffCount, 1);
}

TEST_F(Cursor, RightAtAStaffsEndGoesToTheNextStaffWithoutGrowing) {
    grow(3);
    moveTo(1, 31);
    keys({key::Right});
    expectAt(2, 0, 0, 0);
    EXPECT_EQ(document.StaffCount, 3);
}

TEST_F(Cursor, LeftAtAStaffsStartGoesToTheLastColumnAbove) {
    grow(3);
    moveTo(3, 0);
    keys({key::Down, key::Left});
    expectAt(2, 31, 1, 0);
}

TEST_F(Cursor, RightOnAPageOfOneStaffScrollsEveryTime) {
    resizePage(984, 150);
    keys({key::Down, key::Down, key::Down});
    for (int staff = 2; staff <= 5; ++staff) {
        moveTo(staff, 0);
        expectAt(staff, 0, 3, staff - 1);
    }
    for (int staff = 4; staff >= 1; --staff) {
        keys({key::Left});
        expectAt(staff, 31, 3, staff - 1);
        while (document.ColumnInStaff > 0)
            keys({key::Left});
    }
}

TEST_F(Cursor, AGrownStaffIsEmptyAndTheOldOnesStay) {
    document.setNote(31, 5, "7");
    document.setTechnique(31, 5, "h");
    document.setBarMark(31, "r3");
    moveTo(1, 31);
    keys({key::Right});
    EXPECT_EQ(document.note(31, 5), "7");
    EXPECT_EQ(document.technique(31, 5), "h");
    EXPECT_EQ(document.barMark(31), "r3");
    for (int column = 32; column < 64; ++column) {
        EXPECT_EQ(document.barMark(column), "");
        for (int row = 0; row < 6; ++row)
            EXPECT_EQ(document.note(column, row), "");
    }
}

TEST_F(Cursor, TheMovesDoNotLeaveTheTrack) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    for (int step = 0; step < 9; ++step)
        keys({key::Down});
    expectAt(1, 0, 5, 0);
    for (int step = 0; step < 9; ++step)
        keys({key::Up});
    expectAt(1, 0, 0, 0);
    EXPECT_EQ(document.CurrentTrack, 2);
}

TEST_F(Cursor, TheCurrentColumnFollowsEveryKey) {
    moveTo(2, 3);
    keys({key::Right});
    EXPECT_EQ(document.CurrentColumn, 36);
    document.CurrentColumn = 999;
    keys({key::RedrawOnly});
    EXPECT_EQ(document.CurrentColumn, 36);
}

TEST_F(Cursor, EveryMoveShowsThePositionOnTheFretboard) {
    for (const Direction direction :
         {Direction::Right, Direction::Left, Direction::Up, Direction::Down, Direction::Nowhere}) {
        window.take();
        editor.MoveCursor(direction);
        EXPECT_TRUE(window.take().cursor);
    }
}

TEST_F(Cursor, LeftAtTheStartStillRedrawsThePage) {
    window.redraws = 0;
    editor.MoveCursor(Direction::Left);
    EXPECT_EQ(window.redraws, 1);
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
    editor.MoveCursor(Direction::Nowhere);
    expectAt(1, 0, 0, 0);
    tabrova::Cursor elsewhere(document);
    elsewhere.objects.nCursor.left = 500;
    elsewhere.objects.nCursor.top = 99;
    elsewhere.placeLines();
    EXPECT_EQ(elsewhere.objects.vLine1, (Line{506, 0, 506, 99}));
    EXPECT_EQ(elsewhere.objects.NoteLine.x1, 514);
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

TEST_F(Cursor, AClicksStringIsRoundedHalfToEven) {
    const int strings[] = {0, 1, 1, 2, 2, 2, 3, 3, 4, 4, 4, 5, 5, 5};
    const int offsets[] = {0, 6, 14, 15, 16, 25, 26, 34, 35, 44, 45, 46, 54, 55};
    for (std::size_t each = 0; each < std::size(offsets); ++each) {
        editor.picDocument_MouseDown(MouseButton::Left, 100, 25 + offsets[each]);
        EXPECT_EQ(document.CurrentString, strings[each]) << offsets[each];
        EXPECT_EQ(editor.page().nCursor.top, 25 + 10 * strings[each]) << offsets[each];
    }
}

TEST_F(Cursor, AClickOnAScrolledPageCountsFromItsTopStaff) {
    grow(10);
    editor.VScroll1_Change(4);
    editor.picDocument_MouseDown(MouseButton::Left, 22 + 29 * 31, 200 + 25);
    expectAt(6, 31, 0, 3);
}

TEST_F(Cursor, EveryButtonPlacesTheCursor) {
    int column = 3;
    for (const MouseButton button :
         {MouseButton::Left, MouseButton::Right, MouseButton::Middle, MouseButton::None}) {
        editor.picDocument_MouseDown(button, 22 + 29 * column, 25);
        expectAt(1, column++, 0, 0);
    }
    EXPECT_EQ(window.selectorsOpened, 1);
}

TEST_F(Cursor, AClickBelowTheVisibleStavesMovesNothing) {
    grow(9);
    moveTo(2, 4);
    editor.picDocument_MouseDown(MouseButton::Left, 100, 400 + 25);
    expectAt(2, 4, 0, 0);
    editor.picDocument_MouseDown(MouseButton::Left, 100, 400 + 24);
    expectAt(4, 2, 5, 0);
}

TEST_F(Cursor, AClickInTheMarginAsksNothingOfTheWindow) {
    window.take();
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right})
        for (const auto& [x, y] : {std::pair{21, 100}, {100, 24}, {-1, -1}})
            editor.picDocument_MouseDown(button, x, y);
    EXPECT_EQ(window.take(), Changes());
}

TEST_F(Cursor, ARightClickPlacesTheCursorFirst) {
    window.take();
    editor.picDocument_MouseDown(MouseButton::Right, 22 + 29 * 5, 45);
    expectAt(1, 5, 2, 0);
    EXPECT_EQ(window.take().redraws, 1);
    EXPECT_EQ(window.selectorPlace, (Rect{22 + 29 * 5, 45, 228, 82}));
}

TEST_F(Cursor, ThePaletteFlipsOnlyWhenItsEdgePassesThePages) {
    grow(4);
    editor.picDocument_MouseDown(MouseButton::Right, 984 - 228, 472 - 82);
    EXPECT_EQ(window.selectorPlace, (Rect{984 - 228, 472 - 82, 228, 82}));
    editor.picDocument_MouseDown(MouseButton::Right, 984 - 227, 472 - 81);
    EXPECT_EQ(window.selectorPlace, (Rect{984 - 227 - 238, 472 - 81 - 92, 228, 82}));
}

TEST_F(Cursor, ThePaletteStaysShutOnPercussionTracks) {
    makeThreeTracks();
    document.CurrentTrack = 3;
    editor.picDocument_MouseDown(MouseButton::Right, 22 + 29 * 5, 45);
    expectAt(1, 5, 2, 0);
    EXPECT_EQ(window.selectorsOpened, 0);
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
    EXPECT_EQ(window.selectorsOpened, 1);
    expectAt(1, 0, 0, 0);
    EXPECT_EQ(window.selectorPlace, (Rect{100, 400 - 82 - 10, 228, 82})); // flipped above the pointer
    editor.picDocument_MouseDown(MouseButton::Right, 900, 50);
    EXPECT_EQ(window.selectorPlace, (Rect{900 - 228 - 10, 50, 228, 82}));
    EXPECT_EQ(document.ColumnInStaff, 30);
    for (const auto& [x, y] : {std::pair{21, 100}, {100, 24}})
        editor.picDocument_MouseDown(MouseButton::Right, x, y);
    EXPECT_EQ(window.selectorsOpened, 2);
    makePercussionTrack();
    editor.picDocument_MouseDown(MouseButton::Right, 200, 50);
    EXPECT_EQ(window.selectorsOpened, 2);
}

TEST_F(Cursor, ANewDocumentPutsEverythingHome) {
    moveTo(7, 9);
    keys({key::Down, '5'});
    editor.MakeNewDocument();
    expectAt(1, 0, 0, 0);
    EXPECT_EQ(texts.trackPanel, "Untitled Track selected (Click here to change)");
    EXPECT_EQ(document.StaffCount, 1);
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
