// The editor's commands that change the grid's shape: cells, cursor, questions and redraws.
#include "editing/clipboard.h"
#include "editing/key_codes.h"
#include "editing/statistics_line.h"
#include "tests/editing/fake_window.h"
#include "tests/editing/plain_grid.h"

#include <algorithm>
#include <functional>

namespace tabrova::testing {
namespace {

class EditorStructure : public EditorTest {
  protected:
    PlainGrid now() {
        GetCurrentXPosition(document);
        return PlainGrid(document);
    }
    // A cell of each kind in every column that the list names.
    void fillColumns(std::initializer_list<int> columns) {
        for (const int column : columns) {
            document.setNote(column, 0, std::to_string(column));
            document.setTechnique(column, 1, "h");
            document.setBarMark(column, ".");
        }
    }
    bool filled(int column) const {
        return document.note(column, 0) != "" && document.technique(column, 1) == "h" &&
               document.barMark(column) == ".";
    }
    bool empty(int column) const {
        for (int row = 0; row < document.RowCapacity; ++row)
            if (document.note(column, row) != "" || document.technique(column, row) != "") return false;
        return document.barMark(column).empty();
    }
    // The page was drawn after the last change of a cell, and the statistics line follows.
    void expectRedraw(const std::function<void()>& command) {
        window.take();
        window.redraws = 0;
        command();
        EXPECT_GE(window.redraws, 1);
        const Changes told = window.take();
        EXPECT_TRUE(told.page);
        EXPECT_TRUE(told.statistics);
        EXPECT_EQ(texts.statistics, statisticsLine(document, words));
        const QImage shown = view.picDocument.image().copy();
        editor.refreshdrawing();
        EXPECT_EQ(view.picDocument.image(), shown);
    }
};

TEST_F(EditorStructure, EveryCommandRedraws) {
    grow(3);
    fillColumns({0, 1, 5, 33});
    copyColumns(document, 2);
    const std::function<void()> commands[] = {
        [&] { editor.mnuEditNewBarAfterCurrentBar(); },
        [&] { editor.mnuEditNewBarBeforeCurrent(); },
        [&] { editor.mnuEditnewBarAtEndofDocument(); },
        [&] { editor.mnuDeleteBar(); },
        [&] { editor.InsertColumnAllTracks(); },
        [&] { editor.InsertColumnOnTrack(); },
        [&] { editor.RemoveColumnAllTracks(); },
        [&] { editor.RemoveColumnOnTrack(); },
        [&] { editor.pasteColumns(Rows::AllTracks); },
        [&] { editor.pasteColumns(Rows::CurrentTrack); },
        [&] { editor.SetNoteLength(4); },
        [&] {
            editor.clearCurrentStaff({Rows::CurrentTrack, true, false, false});
        },
    };
    int number = 0;
    for (const auto& command : commands) {
        SCOPED_TRACE(number++);
        expectRedraw(command);
    }
}

TEST_F(EditorStructure, AClearEmptiesTheNamedCellsAndMovesNothing) {
    grow(2);
    fillColumns({0, 31, 32, 63});
    moveTo(2, 3);
    editor.clearCurrentStaff({Rows::AllTracks, true, false, false});
    EXPECT_EQ(document.note(32, 0), "");
    EXPECT_EQ(document.technique(32, 1), "h");
    EXPECT_EQ(document.barMark(63), ".");
    editor.clearCurrentStaff({Rows::CurrentTrack, true, true, true});
    EXPECT_TRUE(empty(32) && empty(63));
    EXPECT_TRUE(filled(0) && filled(31));
    expectAt(2, 3, 0, 0);
}

TEST_F(EditorStructure, AClearOnOneTrackEmptiesTheSharedMarks) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    fillColumns({4});
    editor.clearCurrentStaff({Rows::CurrentTrack, true, true, true});
    EXPECT_EQ(document.note(4, 0), "4");
    EXPECT_EQ(document.technique(4, 1), "h");
    EXPECT_EQ(document.barMark(4), "");
}

TEST_F(EditorStructure, ANewStaffAtTheEndIsEmptyAndTheCursorStays) {
    fillColumns({31});
    moveTo(1, 7);
    editor.mnuEditnewBarAtEndofDocument();
    EXPECT_EQ(document.StaffCount, 2);
    EXPECT_TRUE(filled(31));
    for (int column = 32; column < 64; ++column)
        EXPECT_TRUE(empty(column));
    expectAt(1, 7, 0, 0);
}

TEST_F(EditorStructure, ANewStaffAfterTheCurrentStandsBehindTheCursor) {
    grow(2);
    fillColumns({0, 31, 32, 63});
    moveTo(1, 31);
    editor.mnuEditNewBarAfterCurrentBar();
    EXPECT_EQ(document.StaffCount, 3);
    EXPECT_TRUE(filled(0) && filled(31) && filled(64) && filled(95));
    for (int column = 32; column < 64; ++column)
        EXPECT_TRUE(empty(column));
    expectAt(1, 31, 0, 0);
}

TEST_F(EditorStructure, ANewStaffBeforeTheFirstPushesAllNotesOn) {
    grow(2);
    fillColumns({0, 31, 32, 63});
    moveTo(1, 8);
    editor.mnuEditNewBarBeforeCurrent();
    EXPECT_EQ(document.StaffCount, 3);
    EXPECT_TRUE(filled(32) && filled(63) && filled(64) && filled(95));
    for (int column = 0; column < 32; ++column)
        EXPECT_TRUE(empty(column));
    expectAt(1, 8, 0, 0);
}

TEST_F(EditorStructure, NewStavesReachTheScrollBar) {
    for (int staves = 2; staves <= 7; ++staves) {
        editor.mnuEditNewBarAfterCurrentBar();
        EXPECT_EQ(editor.scroll().maximum, std::max(1, staves - 4 + 1));
        EXPECT_TRUE(window.take().scrollBar);
    }
    expectAt(1, 0, 0, 0);
}

TEST_F(EditorStructure, TheOnlyStaffIsCleared) {
    fillColumns({0, 9, 31});
    moveTo(1, 9);
    editor.mnuDeleteBar();
    EXPECT_EQ(document.StaffCount, 1);
    EXPECT_EQ(document.ColumnCapacity, 32);
    for (int column = 0; column < 32; ++column)
        EXPECT_TRUE(empty(column));
    expectAt(1, 9, 0, 0);
}

TEST_F(EditorStructure, AllTracksOfTheOnlyStaffAreCleared) {
    makeThreeTracks();
    document.CurrentTrack = 3;
    document.setNote(3, 0, "1");
    document.setNote(3, 17, "36");
    document.setTechnique(31, 7, "g");
    editor.mnuDeleteBar();
    EXPECT_TRUE(empty(3) && empty(31));
    EXPECT_EQ(document.CurrentTrack, 3);
}

TEST_F(EditorStructure, AStaffOfSeveralGoes) {
    grow(3);
    fillColumns({0, 32, 63, 64, 95});
    moveTo(2, 12);
    editor.mnuDeleteBar();
    EXPECT_EQ(document.StaffCount, 2);
    EXPECT_EQ(document.ColumnCapacity, 64);
    EXPECT_TRUE(filled(0) && filled(32) && filled(63));
    EXPECT_TRUE(empty(31) && empty(33));
    expectAt(2, 12, 0, 0);
    editor.mnuDeleteBar();
    editor.mnuDeleteBar();
    EXPECT_EQ(document.StaffCount, 1);
}

TEST_F(EditorStructure, DeletingTheLastStaffLeavesTheCursorAtTheEndOfTheNewLast) {
    for (const int column : {0, 1, 17, 30, 31}) {
        editor.MakeNewDocument();
        grow(3);
        fillColumns({63, 64});
        moveTo(3, column);
        keys({key::Down, key::Down});
        editor.mnuDeleteBar();
        EXPECT_EQ(document.StaffCount, 2);
        EXPECT_TRUE(filled(63));
        expectAt(2, 31, 2, 0);
        EXPECT_EQ(document.CurrentColumn, 63);
    }
}

TEST_F(EditorStructure, DeletingTheLastStaffWorksOnAPercussionTrackToo) {
    makePercussionTrack();
    grow(2);
    moveTo(2, 4);
    editor.mnuDeleteBar();
    expectAt(1, 31, 0, 0);
}

TEST_F(EditorStructure, DeletingLastStavesSlidesAScrolledPageBack) {
    grow(9);
    moveTo(9, 5);
    expectAt(9, 5, 0, 5);
    for (int staves = 8; staves >= 1; --staves) {
        editor.mnuDeleteBar();
        EXPECT_EQ(document.StaffCount, staves);
        expectAt(staves, 31, 0, std::max(0, staves - 4));
        EXPECT_TRUE(window.take().scrollBar);
    }
}

TEST_F(EditorStructure, DeletingAnotherStaffOfAScrolledPageLeavesTheCursorInItsStaff) {
    for (int staff = 6; staff <= 8; ++staff) {
        editor.MakeNewDocument();
        grow(9);
        moveTo(9, 0);
        editor.picDocument_MouseDown(MouseButton::Left, 22 + 29 * 4, 100 * (staff - 6) + 25);
        expectAt(staff, 4, 0, 5);
        editor.mnuDeleteBar();
        expectAt(staff, 4, 0, 4);
    }
    editor.VScroll1_Change(3);
    const int staff = document.CurrentStaff, topStaff = document.TopStaff;
    editor.mnuDeleteBar();
    expectAt(staff, 4, 0, topStaff);
}

TEST_F(EditorStructure, AnInsertedColumnTakesItsBarMarkAlong) {
    for (const std::string_view mark : {".", "r", "r1", "r15"}) {
        editor.MakeNewDocument();
        moveTo(1, 4);
        document.setNote(4, 0, "7");
        document.setBarMark(4, mark);
        editor.InsertColumnAllTracks();
        EXPECT_TRUE(empty(4));
        EXPECT_EQ(document.note(5, 0), "7");
        EXPECT_EQ(document.barMark(5), mark);
        expectAt(1, 4, 0, 0);
    }
}

TEST_F(EditorStructure, AMarkThatKeyUDoesNotKnowStaysInTheInsertedColumnToo) {
    moveTo(1, 4);
    document.setBarMark(4, "|");
    editor.InsertColumnAllTracks();
    EXPECT_EQ(document.barMark(4), "|");
    EXPECT_EQ(document.barMark(5), "|");
}

TEST_F(EditorStructure, AnInsertedColumnOnAPercussionTrackLosesItsMarkToo) {
    makePercussionTrack();
    fillColumns({0});
    editor.InsertColumnAllTracks();
    EXPECT_TRUE(empty(0));
    EXPECT_EQ(document.barMark(1), ".");
}

TEST_F(EditorStructure, AColumnOnOneTrackLeavesTheMark) {
    fillColumns({6});
    moveTo(1, 6);
    editor.InsertColumnOnTrack();
    EXPECT_EQ(document.barMark(6), ".");
    EXPECT_EQ(document.barMark(7), "");
    EXPECT_EQ(document.note(6, 0), "");
    EXPECT_EQ(document.note(7, 0), "6");
    EXPECT_EQ(document.technique(7, 1), "h");
    expectAt(1, 6, 0, 0);
}

TEST_F(EditorStructure, InsertingBeforeALastNoteAddsAStaffAndTheScrollBarKnows) {
    grow(4);
    document.setNote(127, 5, "3");
    moveTo(4, 31);
    editor.InsertColumnAllTracks();
    EXPECT_EQ(document.StaffCount, 5);
    EXPECT_EQ(document.note(128, 5), "3");
    EXPECT_EQ(editor.scroll().maximum, 2);
    expectAt(4, 31, 0, 0);
}

TEST_F(EditorStructure, InsertingWithOnlyATechniqueOrMarkAtTheEndLosesIt) {
    document.setTechnique(31, 2, "h");
    document.setBarMark(31, "r2");
    editor.InsertColumnAllTracks();
    EXPECT_EQ(document.StaffCount, 1);
    for (int column = 0; column < 32; ++column)
        EXPECT_TRUE(empty(column));
}

TEST_F(EditorStructure, RemovingAColumnLeavesTheLastOneDoubled) {
    fillColumns({0, 1, 31});
    editor.RemoveColumnAllTracks();
    EXPECT_EQ(document.StaffCount, 1);
    EXPECT_TRUE(filled(0) && filled(30) && filled(31));
    EXPECT_EQ(document.note(0, 0), "1");
    EXPECT_TRUE(empty(1) && empty(29));
    expectAt(1, 0, 0, 0);
}

TEST_F(EditorStructure, RemovingAColumnOnOneTrackLeavesMarksAndOtherTracks) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    document.setNote(0, 0, "1");
    document.setNote(3, 6, "2");
    document.setBarMark(3, ".");
    editor.RemoveColumnOnTrack();
    EXPECT_EQ(document.note(0, 0), "1");
    EXPECT_EQ(document.note(2, 6), "2");
    EXPECT_EQ(document.note(3, 6), "");
    EXPECT_EQ(document.barMark(3), ".");
    EXPECT_EQ(document.CurrentTrack, 2);
}

TEST_F(EditorStructure, ANoteLengthMovesWhatFollowsAndNotTheCursor) {
    for (const int columns : {16, 8, 3, 4, 2, 1}) {
        editor.MakeNewDocument();
        moveTo(1, 5);
        document.setNote(5, 0, "1");
        document.setNote(9, 0, "2");
        editor.SetNoteLength(columns);
        EXPECT_EQ(document.note(5, 0), "1");
        EXPECT_EQ(document.note(5 + columns, 0), "2");
        EXPECT_EQ(document.StaffCount, 1);
        expectAt(1, 5, 0, 0);
    }
}

TEST_F(EditorStructure, TheLastNoteHasNoLengthToChange) {
    moveTo(1, 5);
    document.setNote(5, 0, "1");
    document.setBarMark(9, ".");
    const PlainGrid before = now();
    editor.SetNoteLength(16);
    EXPECT_TRUE(sameGrid(document, before));
}

TEST_F(EditorStructure, APasteInsertsAtTheCursorWhichStays) {
    grow(2);
    fillColumns({0, 1, 40});
    copyColumns(document, 2);
    moveTo(2, 8);
    editor.pasteColumns(Rows::AllTracks);
    EXPECT_EQ(document.note(40, 0), "0");
    EXPECT_EQ(document.note(41, 0), "1");
    EXPECT_EQ(document.note(42, 0), "40");
    EXPECT_EQ(document.barMark(40), ".");
    EXPECT_EQ(document.barMark(41), "");
    EXPECT_EQ(document.barMark(42), "");
    expectAt(2, 8, 0, 0);
}

TEST_F(EditorStructure, APasteOfNothingOnlyRepaints) {
    fillColumns({0, 31});
    moveTo(1, 31);
    const PlainGrid before = now();
    window.redraws = 0;
    editor.pasteColumns(Rows::AllTracks);
    editor.pasteColumns(Rows::CurrentTrack);
    EXPECT_GE(window.redraws, 2);
    EXPECT_TRUE(sameGrid(document, before));
}

TEST_F(EditorStructure, ACopyIsPastedAfterNew) {
    fillColumns({0, 5, 31});
    copyStaff(document);
    editor.MakeNewDocument();
    EXPECT_EQ(document.ClipboardLength, 32);
    EXPECT_TRUE(empty(0));
    editor.pasteColumns(Rows::AllTracks);
    for (const int column : {0, 5, 31}) {
        EXPECT_EQ(document.note(column, 0), std::to_string(column));
        EXPECT_EQ(document.technique(column, 1), "h");
        EXPECT_EQ(document.barMark(column), "");
    }
    expectAt(1, 0, 0, 0);
}

TEST_F(EditorStructure, CommandsUseTheCursorsOwnColumnWhateverWasThereBefore) {
    for (const int stale : {-1, 0, 999}) {
        editor.MakeNewDocument();
        moveTo(1, 3);
        document.setNote(3, 0, "7");
        document.CurrentColumn = stale;
        editor.InsertColumnAllTracks();
        document.CurrentColumn = stale;
        editor.InsertColumnOnTrack();
        EXPECT_EQ(document.note(5, 0), "7");
        document.CurrentColumn = stale;
        editor.RemoveColumnAllTracks();
        document.CurrentColumn = stale;
        editor.RemoveColumnOnTrack();
        EXPECT_EQ(document.note(3, 0), "7");
        document.setNote(5, 0, "8");
        document.CurrentColumn = stale;
        editor.SetNoteLength(1);
        EXPECT_EQ(document.note(4, 0), "8");
        EXPECT_EQ(document.CurrentColumn, 3);
    }
}

TEST_F(EditorStructure, ADocumentThatCannotGrowStaysAsItIs) {
    document.StaffCount = MostStaves; // of which one is there: enough to be refused
    fillColumns({0, 4});
    const PlainGrid before = now();
    editor.mnuEditNewBarAfterCurrentBar();
    editor.mnuEditNewBarBeforeCurrent();
    editor.mnuEditnewBarAtEndofDocument();
    EXPECT_FALSE(editor.AppendStaff());
    EXPECT_TRUE(sameGrid(document, before));
}

} // namespace
} // namespace tabrova::testing
