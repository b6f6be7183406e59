// Clearing, adding and deleting staves, and inserting and removing one column.
#include "tests/editing/shape_test.h"

namespace tabrova::testing {
namespace {

struct ClearCommand {
    const char* name;
    StaffClear what;
    // On track 2 of three: the rows that become "", from the first up to but not including the second.
    std::pair<int, int> notes, techniques;
    bool marks;
};

class ClearedStaff : public ShapeTest, public ::testing::WithParamInterface<ClearCommand> {};

TEST_P(ClearedStaff, LosesExactlyTheNamedCells) {
    const ClearCommand& command = GetParam();
    fill(3, 3);
    place(2, 9, 2);
    remember();
    clearStaff(document, command.what);
    const auto outside = [](std::pair<int, int> rows) {
        return [rows](int column, int row) {
            const bool gone = column >= 32 && column <= 63 && row >= rows.first && row < rows.second;
            return gone ? EmptyNow : column;
        };
    };
    expectNotes(outside(command.notes));
    expectTechniques(outside(command.techniques));
    expectMarks(
        [&](int column) { return command.marks && column >= 32 && column <= 63 ? EmptyNow : column; });
    expectStaves(3);
    expectCursor(2, 9, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, ClearedStaff,
    ::testing::Values(
        ClearCommand{"ClearStaffallall", {Rows::AllTracks, true, true, true}, {0, 18}, {0, 18}, true},
        ClearCommand{"clearstaffallnorepeats", {Rows::AllTracks, true, true, false}, {0, 18}, {0, 18}, false},
        ClearCommand{"clearstaffallnotes", {Rows::AllTracks, true, false, false}, {0, 18}, {0, 0}, false},
        ClearCommand{"clearstaffalltech", {Rows::AllTracks, false, true, false}, {0, 0}, {0, 18}, false},
        ClearCommand{"clearstaffcurrentall", {Rows::CurrentTrack, true, true, true}, {6, 12}, {6, 12}, true},
        ClearCommand{
            "clearstaffcurrentnorepeats", {Rows::CurrentTrack, true, true, false}, {6, 12}, {6, 12}, false},
        ClearCommand{
            "clearstaffcurrentnotes", {Rows::CurrentTrack, true, false, false}, {6, 12}, {0, 0}, false},
        ClearCommand{
            "clearstaffcurrenttech", {Rows::CurrentTrack, false, true, false}, {0, 0}, {6, 12}, false}),
    [](const auto& each) { return each.param.name; });

class StructureEdits : public ShapeTest {};

TEST_F(StructureEdits, TheRowsOfATrackAreItsSixStrings) {
    makeDocument(document, 3, 1);
    place(1, 0, 3);
    EXPECT_EQ(rowsOf(document, Rows::CurrentTrack).first, 12);
    EXPECT_EQ(rowsOf(document, Rows::CurrentTrack).count, 6);
    EXPECT_EQ(rowsOf(document, Rows::AllTracks).first, 0);
    EXPECT_EQ(rowsOf(document, Rows::AllTracks).count, 18);
}

TEST_F(StructureEdits, ClearingTheFirstAndTheLastStaffLeavesTheOthers) {
    for (const int staff : {1, 3}) {
        fill(2, 3);
        place(staff, 31, 1);
        remember();
        clearStaff(document, {Rows::AllTracks, true, true, true});
        const auto kept = [staff](int column) { return column / 32 == staff - 1 ? EmptyNow : column; };
        expectCells([&](int column, int) { return kept(column); });
        expectMarks(kept);
    }
}

// A read that fails leaves a number of tracks that the grids do not have.
TEST_F(StructureEdits, ClearingAllTracksClearsTheRowsOfAsManyTracksAsThereAreSaidToBe) {
    for (const auto& [tracks, rows] : {std::pair{-32768, 0}, {0, 0}, {1, 6}, {2, 12}, {32767, 18}}) {
        fill(3, 2);
        place(2, 0, 1);
        remember();
        document.TrackCount = static_cast<std::int16_t>(tracks);
        clearStaff(document, {Rows::AllTracks, true, true, true});
        expectCells(
            [rows = rows](int column, int row) { return column > 31 && row < rows ? EmptyNow : column; });
        expectMarks([](int column) { return column > 31 ? EmptyNow : column; });
    }
}

TEST_F(StructureEdits, ANoteOfAnyRowInTheLastColumnMakesAStaffForAllTracks) {
    for (int row = 0; row < 18; ++row) {
        makeDocument(document, 3, 2);
        document.setNote(63, row, "5");
        remember();
        EnsureRoomForInsert(document, Rows::AllTracks);
        expectStaves(3);
        expectCells([](int column, int) { return column < 64 ? column : EmptyNow; });
        EnsureRoomForInsert(document, Rows::AllTracks);
        expectStaves(3);
    }
}

TEST_F(StructureEdits, OnlyTheTracksOwnRowsMakeAStaffForOneTrack) {
    for (int row = 0; row < 18; ++row) {
        makeDocument(document, 3, 1);
        place(1, 4, 2);
        document.setNote(31, row, "x");
        EnsureRoomForInsert(document, Rows::CurrentTrack);
        expectStaves(ofTrack(row, 2) ? 2 : 1);
    }
}

TEST_F(StructureEdits, TechniquesMarksAndEarlierNotesMakeNoStaff) {
    makeDocument(document, 1, 1);
    for (int row = 0; row < 6; ++row) {
        document.setTechnique(31, row, "h");
        document.setNote(30, row, "5");
    }
    document.setBarMark(31, "r");
    remember();
    EnsureRoomForInsert(document, Rows::AllTracks);
    EnsureRoomForInsert(document, Rows::CurrentTrack);
    expectUnchanged();
}

TEST_F(StructureEdits, ANewStaffAfterTheCurrentPushesEverythingBehindIt) {
    for (const int staff : {1, 2, 3}) {
        fill(2, 3);
        place(staff, 17, 2);
        remember();
        EXPECT_TRUE(newStaffAfterCurrent(document));
        const auto pushed = [staff](int column) {
            if (column < staff * 32) return column;
            return column < staff * 32 + 32 ? EmptyNow : column - 32;
        };
        expectStaves(4);
        expectCells([&](int column, int) { return pushed(column); });
        expectMarks(pushed);
        expectCursor(staff, 17, 2);
    }
}

TEST_F(StructureEdits, ANewStaffBeforeTheCurrentLeavesTheCursorInTheEmptyStaff) {
    for (const int staff : {1, 2, 3}) {
        fill(2, 3);
        place(staff, 31, 1);
        remember();
        EXPECT_TRUE(newStaffBeforeCurrent(document));
        const auto pushed = [staff](int column) {
            if (column < staff * 32 - 32) return column;
            return column < staff * 32 ? EmptyNow : column - 32;
        };
        expectStaves(4);
        expectCells([&](int column, int) { return pushed(column); });
        expectMarks(pushed);
        expectCursor(staff, 31, 1);
    }
}

TEST_F(StructureEdits, ANewStaffKeepsTuningAndClipboard) {
    fill(2, 1);
    document.TuningTable = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    document.ClipboardNotes.set(31, 11, document.pool.intern("9"));
    document.ClipboardBarMarks[31] = document.pool.intern("r2");
    remember();
    newStaffBeforeCurrent(document);
    newStaffAfterCurrent(document);
    const PlainGrid now(document);
    EXPECT_EQ(now.tuning, before.tuning);
    EXPECT_EQ(now.clipboardNotes, before.clipboardNotes);
    EXPECT_EQ(now.clipboardMarks[31], "r2");
    EXPECT_EQ(now.clipboardMarks.size(), 96u);
}

TEST_F(StructureEdits, DeletingAStaffPullsTheRestUp) {
    for (const int staff : {1, 2, 3}) {
        fill(3, 3);
        place(staff, 5, 2);
        remember();
        deleteCurrentStaff(document);
        const auto pulled = [staff](int column) { return column < staff * 32 - 32 ? column : column + 32; };
        expectStaves(2);
        EXPECT_EQ(document.RowCapacity, 18);
        expectCells([&](int column, int) { return pulled(column); });
        expectMarks(pulled);
        EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(18, 13));
    }
}

TEST_F(StructureEdits, AStaffAddedAgainAfterADeletionIsEmpty) {
    fill(1, 2);
    place(2, 0, 1);
    remember();
    deleteCurrentStaff(document);
    ASSERT_TRUE(growByOneStaff(document));
    expectCells([](int column, int) { return column < 32 ? column : EmptyNow; });
    expectMarks([](int column) { return column < 32 ? column : EmptyNow; });
}

// Where a column stands after one was inserted at `at` in a document of `end` columns.
auto insertedAt(int at) {
    return [at](int column) { return column < at ? column : column == at ? EmptyNow : column - 1; };
}
// And after one was removed: the last column has no neighbour.
auto removedAt(int at, int last) {
    return [at, last](int column) { return column < at || column == last ? column : column + 1; };
}

TEST_F(StructureEdits, AColumnOnAllTracksMovesNotesTechniquesAndMarks) {
    for (const auto& [staff, column] : {std::pair{1, 0}, {1, 13}, {1, 31}, {2, 0}, {2, 30}}) {
        fill(3, 2);
        emptyNotes(63);
        place(staff, column, 2);
        document.CurrentColumn = 999;
        remember();
        InsertColumn(document, Rows::AllTracks);
        const int at = staff * 32 - 32 + column;
        expectStaves(2);
        expectCells([&](int each, int) { return insertedAt(at)(each); });
        // The new column keeps its old mark until the caller removes it.
        expectMarks([at](int each) { return each <= at ? each : each - 1; });
        expectCursor(staff, column, 2);
        EXPECT_EQ(document.CurrentColumn, at);
    }
}

TEST_F(StructureEdits, AColumnInsertedAtTheLastOneOnlyEmptiesIt) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        fill(2, 1);
        emptyNotes(31);
        place(1, 31, 1);
        remember();
        InsertColumn(document, rows);
        expectStaves(1);
        expectCells([&](int column, int row) {
            return column == 31 && (rows == Rows::AllTracks || ofTrack(row, 1)) ? EmptyNow : column;
        });
        expectMarks(sameColumn);
    }
}

TEST_F(StructureEdits, ANoteInTheLastColumnIsNotLost) {
    fill(2, 1);
    place(1, 3, 1);
    remember();
    InsertColumn(document, Rows::AllTracks);
    expectStaves(2);
    const auto pushed = [](int column) { return column > 32 ? EmptyNow : insertedAt(3)(column); };
    expectCells([&](int column, int) { return pushed(column); });
    expectMarks([](int column) { return column > 32 ? EmptyNow : column <= 3 ? column : column - 1; });
}

TEST_F(StructureEdits, ANoteAtTheCursorInTheLastColumnMovesToTheNewStaff) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        makeDocument(document, 1, 1);
        place(1, 31, 1);
        document.setNote(31, 2, "7");
        document.setTechnique(31, 3, "h");
        document.setBarMark(31, ".");
        InsertColumn(document, rows);
        expectStaves(2);
        EXPECT_EQ(document.note(31, 2), "");
        EXPECT_EQ(document.note(32, 2), "7");
        EXPECT_EQ(document.technique(32, 3), "h");
        EXPECT_EQ(document.barMark(31), ".");
        EXPECT_EQ(document.barMark(32), rows == Rows::AllTracks ? "." : "");
    }
}

TEST_F(StructureEdits, ATechniqueOrMarkAloneInTheLastColumnIsLost) {
    makeDocument(document, 1, 1);
    document.setTechnique(31, 0, "v");
    document.setBarMark(31, "r4");
    InsertColumn(document, Rows::AllTracks);
    expectStaves(1);
    EXPECT_EQ(document.technique(31, 0), "");
    EXPECT_EQ(document.barMark(31), "");
}

TEST_F(StructureEdits, AColumnOnOneTrackSlidesItAgainstTheOthersAndTheMarks) {
    for (int track = 1; track <= 3; ++track) {
        fill(3, 2);
        emptyNotes(63);
        place(2, 1, track);
        document.CurrentColumn = -7;
        remember();
        InsertColumn(document, Rows::CurrentTrack);
        expectStaves(2);
        expectCells(
            [&](int column, int row) { return ofTrack(row, track) ? insertedAt(33)(column) : column; });
        expectMarks(sameColumn);
        expectCursor(2, 1, track);
    }
}

TEST_F(StructureEdits, AnotherTracksLastNoteMakesNoRoomForOneTrack) {
    makeDocument(document, 2, 1);
    document.setNote(31, 6, "3");
    document.setNote(30, 0, "4");
    InsertColumn(document, Rows::CurrentTrack);
    expectStaves(1);
    EXPECT_EQ(document.note(31, 6), "3");
    EXPECT_EQ(document.note(31, 0), "4");
    InsertColumn(document, Rows::CurrentTrack);
    expectStaves(2);
    EXPECT_EQ(document.note(31, 6), "3");
    EXPECT_EQ(document.note(32, 0), "4");
}

TEST_F(StructureEdits, ARemovedColumnLeavesTheLastOneTwice) {
    for (const auto& [staff, column] : {std::pair{1, 0}, {1, 31}, {2, 0}, {2, 30}, {2, 31}}) {
        fill(3, 2);
        place(staff, column, 2);
        document.CurrentColumn = 999;
        remember();
        RemoveColumn(document, Rows::AllTracks);
        const auto pulled = removedAt(staff * 32 - 32 + column, 63);
        expectStaves(2);
        expectCells([&](int each, int) { return pulled(each); });
        expectMarks(pulled);
        expectCursor(staff, column, 2);
    }
}

TEST_F(StructureEdits, AColumnRemovedFromOneTrackLeavesTheOthersAndTheMarks) {
    for (int track = 1; track <= 3; ++track) {
        fill(3, 2);
        place(1, 20, track);
        document.CurrentColumn = 999;
        remember();
        RemoveColumn(document, Rows::CurrentTrack);
        expectCells(
            [&](int column, int row) { return ofTrack(row, track) ? removedAt(20, 63)(column) : column; });
        expectMarks(sameColumn);
    }
}

TEST_F(StructureEdits, RemovingAgainAndAgainSpreadsTheLastColumn) {
    fill(1, 1);
    remember();
    for (int times = 0; times < 40; ++times)
        RemoveColumn(document, Rows::AllTracks);
    expectStaves(1);
    expectCells([](int, int) { return 31; });
    expectMarks([](int) { return 31; });
}

TEST_F(StructureEdits, AnInsertedColumnIsUndoneByRemovingIt) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        fill(2, 2);
        place(1, 9, 2);
        remember();
        InsertColumn(document, rows);
        RemoveColumn(document, rows);
        expectStaves(3);
        expectCells([](int column, int) { return column < 64 ? column : EmptyNow; });
        expectMarks([](int column) { return column < 64 ? column : EmptyNow; });
    }
}

TEST_F(StructureEdits, AGridColumnMakesRoomInItsRowsOnly) {
    fill(2, 1);
    remember();
    makeRoomForColumn(document.NoteGrid, 4, 20, {3, 5});
    expectNotes([](int column, int row) {
        return row >= 3 && row < 8 && column >= 4 && column < 20 ? insertedAt(4)(column) : column;
    });
    expectTechniques(samePlace);
    remember();
    makeRoomForColumn(document.NoteGrid, 31, 32, {0, 12});
    expectNotes([](int column, int) { return column == 31 ? EmptyNow : column; });
    remember();
    makeRoomForColumn(document.TechniqueGrid, 0, 32, {0, 12});
    expectTechniques([](int column, int) { return insertedAt(0)(column); });
    expectNotes(samePlace);
}

// A document that has all the staves it may have, or whose grids are as large as they may be: the text in the
// last column falls off, as where no room is looked for.
class FullDocument : public ShapeTest, public ::testing::WithParamInterface<bool> {
  protected:
    void SetUp() override {
        if (GetParam()) {
            makeDocument(document, 1, MostStaves);
        } else {
            makeDocument(document, 32767, 10);
        }
        last = document.lastColumn();
        ASSERT_FALSE(growByOneStaff(document));
        document.setNote(0, 0, "1");
        document.setNote(last - 1, 0, "2");
        document.setNote(last, 0, "3");
        document.setTechnique(last, 5, "h");
        document.setBarMark(last, ".");
    }
    void expectSize() const { expectStaves(GetParam() ? MostStaves : 10); }

    int last = 0;
};

TEST_P(FullDocument, GetsNoNewStaffAndKeepsItsCells) {
    EXPECT_FALSE(newStaffAfterCurrent(document));
    EXPECT_FALSE(newStaffBeforeCurrent(document));
    EnsureRoomForInsert(document, Rows::AllTracks);
    EnsureRoomForInsert(document, Rows::CurrentTrack);
    expectSize();
    EXPECT_EQ(document.note(0, 0), "1");
    EXPECT_EQ(document.note(last, 0), "3");
    EXPECT_EQ(document.technique(last, 5), "h");
    EXPECT_EQ(document.barMark(last), ".");
}

TEST_P(FullDocument, LosesOnlyItsLastColumnByAnInsertion) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        document.setNote(last - 1, 0, "2");
        document.setNote(last, 0, "3");
        InsertColumn(document, rows);
        expectSize();
        EXPECT_EQ(document.note(last, 0), "2");
        EXPECT_EQ(document.note(last, 5), "");
        EXPECT_EQ(document.technique(last, 5), "");
    }
    EXPECT_EQ(document.note(2, 0), "1");
}

TEST_P(FullDocument, CanStillLoseAColumnAndAStaff) {
    RemoveColumn(document, Rows::AllTracks);
    EXPECT_EQ(document.note(0, 0), "");
    EXPECT_EQ(document.note(last - 2, 0), "2");
    EXPECT_EQ(document.note(last - 1, 0), "3");
    EXPECT_EQ(document.note(last, 0), "3");
    EXPECT_EQ(document.barMark(last - 1), ".");
    EXPECT_EQ(document.barMark(last), ".");
    deleteCurrentStaff(document);
    expectStaves(GetParam() ? MostStaves - 1 : 9);
    EXPECT_EQ(document.note(document.lastColumn(), 0), "3");
    EXPECT_TRUE(newStaffAfterCurrent(document));
    expectSize();
    EXPECT_EQ(document.note(last, 0), "3");
}

INSTANTIATE_TEST_SUITE_P(Limits, FullDocument, ::testing::Bool(),
                         [](const auto& each) { return each.param ? "MostStaves" : "LargestGrid"; });

} // namespace
} // namespace tabrova::testing
