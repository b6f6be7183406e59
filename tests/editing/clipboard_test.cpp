// Copy and paste of columns.
#include "editing/clipboard.h"

#include "tests/editing/shape_test.h"

namespace tabrova::testing {
namespace {

class Clipboard : public ShapeTest {
  protected:
    std::string_view clipNote(int column, int row) const {
        return document.pool.text(document.ClipboardNotes.at(column, row));
    }
    std::string_view clipTechnique(int column, int row) const {
        return document.pool.text(document.ClipboardTechniques.at(column, row));
    }
    std::string_view clipMark(int column) const {
        return document.pool.text(document.ClipboardBarMarks[cast(column)]);
    }
    // The clipboard holds `length` columns of the remembered document from `start` on, and nothing else.
    void expectCopied(int start, int length, int firstRow, int lastRow) const {
        EXPECT_EQ(document.ClipboardStart, start);
        EXPECT_EQ(document.ClipboardLength, length);
        for (int column = 0; column < 32; ++column) {
            const int from = start + column;
            const bool there = column < length && from < before.columnCapacity;
            for (int row = 0; row < document.RowCapacity; ++row) {
                const bool taken = there && row >= firstRow && row < lastRow;
                ASSERT_EQ(clipNote(column, row), taken ? before.notes[cast(from)][cast(row)] : "");
                ASSERT_EQ(clipTechnique(column, row), taken ? before.techniques[cast(from)][cast(row)] : "");
            }
            ASSERT_EQ(clipMark(column), there ? before.marks[cast(from)] : "");
        }
    }
    // Nothing but the clipboard changed.
    void expectDocumentUnchanged() const {
        expectCells(samePlace);
        expectMarks(sameColumn);
        EXPECT_EQ(document.StaffCount, before.staffCount);
        expectCursor(before.staff, before.columnInStaff, before.track);
    }
};

TEST_F(Clipboard, IsEmptyAtFirst) {
    makeDocument(document, 1, 1);
    expectCopied(0, 0, 0, 0);
}

TEST_F(Clipboard, TakesTheWholeCurrentStaffOfAllTracks) {
    for (const int staff : {1, 2, 3}) {
        fill(3, 3);
        place(staff, 21, 2);
        document.CurrentColumn = 999;
        remember();
        copyStaff(document);
        expectCopied(staff * 32 - 32, 32, 0, 18);
        expectDocumentUnchanged();
    }
}

TEST_F(Clipboard, TakesTheNextColumnsFromTheCursorOn) {
    for (int columns = 1; columns <= 8; ++columns) {
        fill(2, 2);
        place(1, 20 + columns, 2);
        document.CurrentColumn = 999;
        remember();
        copyColumns(document, columns);
        expectCopied(20 + columns, columns, 0, 12);
        expectDocumentUnchanged();
    }
}

TEST_F(Clipboard, CountsColumnsPastTheEndAsEmpty) {
    for (const int column : {24, 25, 28, 31}) {
        fill(2, 2);
        place(2, column, 1);
        remember();
        copyColumns(document, 8);
        expectCopied(32 + column, 8, 0, 12);
        expectDocumentUnchanged();
    }
}

TEST_F(Clipboard, ForgetsWhatItHeldBefore) {
    fill(2, 2);
    remember();
    copyStaff(document);
    place(2, 3, 1);
    copyColumns(document, 2);
    expectCopied(35, 2, 0, 12);
    copyStaff(document);
    expectCopied(32, 32, 0, 12);
}

TEST_F(Clipboard, TakesOnlyTheRowsAskedFor) {
    fill(3, 1);
    remember();
    copyStaff(document);
    document.ClipboardStart = 4;
    document.ClipboardLength = 5;
    CopyData(document, 6, 12);
    expectCopied(4, 5, 6, 12);
    CopyData(document, 17, 18);
    expectCopied(4, 5, 17, 18);
}

TEST_F(Clipboard, KeepsItsCopyWhenTheDocumentChanges) {
    fill(1, 1);
    remember();
    copyStaff(document);
    emptyEverything();
    expectCopied(0, 32, 0, 6);
}

TEST_F(Clipboard, PastesNothingWhileItIsEmpty) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack})
        for (const int column : {0, 31}) {
            fill(2, 2);
            document.ClipboardLength = 0;
            place(2, column, 1);
            remember();
            PasteProcedure(document, rows);
            expectUnchanged();
        }
}

// Where the columns stand after `length` columns were pasted at `at`.
auto pushedBy(int length, int at) {
    return [=](int column) {
        return column < at ? column : column < at + length ? EmptyNow : column - length;
    };
}

TEST_F(Clipboard, PastesAllTracksAndLeavesTheMarksStanding) {
    fill(3, 2);
    place(1, 4, 2);
    copyColumns(document, 3);
    for (int column = 58; column < 64; ++column) // room, so that nothing grows
        emptyNotes(column);
    place(2, 5, 2);
    document.CurrentColumn = 999;
    remember();
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(2);
    const auto expected = [](int column) {
        return column >= 37 && column < 40 ? column - 37 + 4 : pushedBy(3, 37)(column);
    };
    expectCells([&](int column, int) { return expected(column); });
    expectMarks(sameColumn);
    expectCursor(2, 5, 2);
    EXPECT_EQ(PlainGrid(document).clipboardNotes, before.clipboardNotes);
    EXPECT_EQ(document.ClipboardStart, 4);
    EXPECT_EQ(document.ClipboardLength, 3);
}

TEST_F(Clipboard, PastesOneTrackAndLeavesTheOthersStanding) {
    fill(3, 2);
    place(1, 4, 2);
    copyColumns(document, 3);
    for (int column = 58; column < 64; ++column)
        document.NoteGrid.clear(column, 1, 12, 6);
    place(1, 31, 3);
    remember();
    PasteProcedure(document, Rows::CurrentTrack);
    expectStaves(2);
    expectCells([&](int column, int row) {
        if (!ofTrack(row, 3)) return column;
        return column >= 31 && column < 34 ? column - 31 + 4 : pushedBy(3, 31)(column);
    });
    expectMarks(sameColumn);
    expectCursor(1, 31, 3);
}

TEST_F(Clipboard, PastesRowsOfTheSameNumber) {
    makeDocument(document, 2, 1);
    document.setNote(0, 3, "1");
    document.setNote(0, 6, "2");
    document.setTechnique(0, 11, "h");
    place(1, 0, 2);
    copyColumns(document, 1);
    place(1, 8, 1);
    PasteProcedure(document, Rows::CurrentTrack);
    EXPECT_EQ(document.note(8, 3), "1");
    EXPECT_EQ(document.note(8, 0), "");
    EXPECT_EQ(document.note(8, 6), "");
    EXPECT_EQ(document.technique(8, 5), "");
    EXPECT_EQ(document.technique(8, 11), "");
}

TEST_F(Clipboard, PastesWithoutTheMarksOfTheCopy) {
    makeDocument(document, 1, 2);
    document.setNote(0, 0, "5");
    document.setBarMark(0, "r");
    document.setBarMark(31, "r3");
    document.setBarMark(40, ".");
    copyStaff(document);
    EXPECT_EQ(clipMark(31), "r3");
    place(2, 4, 1);
    remember();
    PasteProcedure(document, Rows::AllTracks);
    EXPECT_EQ(document.note(36, 0), "5");
    expectMarks([](int column) { return column < 64 ? column : EmptyNow; });
}

TEST_F(Clipboard, PushesTheOldNotesByTwoStavesWhenAStaffIsPastedTwice) {
    fill(2, 2);
    copyStaff(document);
    for (int column = 0; column < 32; ++column)
        document.setNote(column, 0, "7");
    PasteProcedure(document, Rows::AllTracks);
    PasteProcedure(document, Rows::AllTracks);
    for (int column = 0; column < 32; ++column) {
        EXPECT_EQ(document.note(column, 1), "n" + std::to_string(column) + "/1");
        EXPECT_EQ(document.note(column, 0), "n" + std::to_string(column) + "/0");
        EXPECT_EQ(document.note(column + 32, 0), "n" + std::to_string(column) + "/0");
        EXPECT_EQ(document.note(column + 64, 0), "7");
        EXPECT_EQ(document.note(column + 96, 11), "n" + std::to_string(column + 32) + "/11");
        EXPECT_EQ(document.technique(column + 96, 11), "t" + std::to_string(column + 32) + "/11");
    }
    EXPECT_GE(document.StaffCount, 4);
    EXPECT_EQ(document.ColumnCapacity, document.StaffCount * 32);
}

TEST_F(Clipboard, AddsAStaffForEightColumnsAtTheLastOne) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        makeDocument(document, 2, 1);
        for (int column = 0; column < 8; ++column)
            document.setNote(column, 6, std::to_string(column));
        copyColumns(document, 8);
        place(1, 31, 2);
        document.setNote(31, 7, "9");
        PasteProcedure(document, rows);
        expectStaves(2);
        for (int column = 0; column < 8; ++column)
            EXPECT_EQ(document.note(31 + column, 6), std::to_string(column));
        EXPECT_EQ(document.note(31, 7), "");
        EXPECT_EQ(document.note(39, 7), "9");
        expectCursor(1, 31, 2);
    }
}

TEST_F(Clipboard, AddsNoStaffWhereTheCopyJustFits) {
    makeDocument(document, 1, 1);
    document.setNote(0, 0, "5");
    copyColumns(document, 8);
    place(1, 24, 1);
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(1);
    EXPECT_EQ(document.note(24, 0), "5");
    place(1, 25, 1);
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(2);
    EXPECT_EQ(document.note(25, 0), "5");
    EXPECT_EQ(document.note(24, 0), "5");
}

TEST_F(Clipboard, PushesANoteAtTheCursorInTheLastColumnToANewStaff) {
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        makeDocument(document, 2, 1);
        document.setNote(0, 6, "5");
        copyColumns(document, 1);
        place(1, 31, 2);
        document.setNote(31, 7, "9");
        PasteProcedure(document, rows);
        expectStaves(2);
        EXPECT_EQ(document.note(31, 6), "5");
        EXPECT_EQ(document.note(31, 7), "");
        EXPECT_EQ(document.note(32, 7), "9");
    }
}

// A staff comes as soon as a note stands in the last column before another single move, and the next pass
// uses it.
TEST_F(Clipboard, PastedColumnsPushNoNoteOffTheEnd) {
    for (int last = 20; last < 32; ++last)
        for (int length = 1; length <= 8; ++length) {
            makeDocument(document, 1, 1);
            document.setNote(0, 0, "1");
            copyColumns(document, length);
            document.setNote(0, 0, "");
            document.setNote(last, 3, "9");
            place(1, 2, 1);
            PasteProcedure(document, Rows::AllTracks);
            EXPECT_EQ(document.note(2, 0), "1");
            EXPECT_EQ(document.note(last + length, 3), "9") << last << " by " << length;
            expectStaves(last + length >= 31 ? 2 : 1);
        }
}

TEST_F(Clipboard, ANoteThatArrivesInTheLastColumnByTheVeryLastMoveAddsNoStaff) {
    makeDocument(document, 1, 1);
    document.setNote(0, 0, "1");
    copyColumns(document, 1);
    document.setNote(30, 3, "9");
    place(1, 30, 1);
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(1);
    EXPECT_EQ(document.note(30, 0), "1");
    EXPECT_EQ(document.note(31, 3), "9");
}

TEST_F(Clipboard, TechniquesAloneFallOffTheEnd) {
    makeDocument(document, 1, 1);
    document.setTechnique(30, 2, "h");
    document.setTechnique(31, 2, "s");
    document.setNote(0, 0, "1");
    copyColumns(document, 1);
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(1);
    EXPECT_EQ(document.technique(31, 2), "h");
    EXPECT_EQ(document.note(0, 0), "1");
    EXPECT_EQ(document.note(1, 0), "1");
}

TEST_F(Clipboard, OnlyTheChosenRowsKeepRoom) {
    makeDocument(document, 2, 1);
    document.setNote(0, 0, "1");
    copyColumns(document, 1);
    document.setNote(31, 6, "7");
    PasteProcedure(document, Rows::CurrentTrack);
    expectStaves(1);
    EXPECT_EQ(document.note(31, 6), "7");
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(2);
    EXPECT_EQ(document.note(32, 6), "7");
}

TEST_F(Clipboard, SurvivesANewDocumentWithTheRowsThatFit) {
    fill(3, 2);
    place(2, 0, 1);
    remember();
    copyStaff(document);
    resetToNewDocument(document);
    expectCopied(32, 32, 0, 6);
    PasteProcedure(document, Rows::AllTracks);
    expectStaves(1);
    expectCells([](int column, int) { return column + 32; });
    expectMarks([](int) { return EmptyNow; });
}

TEST_F(Clipboard, SurvivesANewDocumentThatForgetsManyTexts) {
    fill(12, 2); // 9216 texts
    place(1, 0, 1);
    remember();
    copyStaff(document);
    resetToNewDocument(document);
    expectCopied(0, 32, 0, 6);
    PasteProcedure(document, Rows::CurrentTrack);
    expectCells([](int column, int) { return column < 32 ? column : EmptyNow; });
}

TEST_F(Clipboard, LosesTheRowsOfRemovedTracks) {
    fill(3, 1);
    remember();
    copyStaff(document);
    document.TrackCount = 2;
    ResizeGrids(document, 32, 12);
    expectCopied(0, 32, 0, 12);
    document.TrackCount = 3;
    ResizeGrids(document, 32, 18);
    expectCopied(0, 32, 0, 12);
    emptyEverything();
    PasteProcedure(document, Rows::AllTracks);
    expectCells([](int column, int row) { return column < 32 && row < 12 ? column : EmptyNow; });
}

TEST_F(Clipboard, MarksAreCutWithTheColumnsOfTheDocument) {
    fill(1, 3);
    place(3, 0, 1);
    remember();
    copyStaff(document);
    EXPECT_EQ(document.ClipboardBarMarks.size(), 96u);
    deleteCurrentStaff(document);
    EXPECT_EQ(document.ClipboardBarMarks.size(), 64u);
    expectCopied(64, 32, 0, 6);
}

TEST_F(Clipboard, OfAFullDocumentPastesWhatThereIsRoomFor) {
    makeDocument(document, 1, MostStaves);
    const int last = document.lastColumn();
    document.setNote(0, 0, "1");
    document.setNote(1, 0, "2");
    copyColumns(document, 8);
    document.setNote(last, 1, "9");
    for (const Rows rows : {Rows::AllTracks, Rows::CurrentTrack}) {
        place(MostStaves, 31, 1);
        PasteProcedure(document, rows);
        expectStaves(MostStaves);
        EXPECT_EQ(document.note(last, 0), "1");
        EXPECT_EQ(document.note(last, 1), "");
        EXPECT_EQ(document.note(last - 1, 0), "");
    }
    EXPECT_EQ(document.note(0, 0), "1");
    EXPECT_EQ(document.note(1, 0), "2");
}

} // namespace
} // namespace tabrova::testing
