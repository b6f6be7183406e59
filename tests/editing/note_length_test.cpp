// Notes that get longer and shorter: columns behind the cursor are inserted and removed on its track.
#include "tests/editing/shape_test.h"

namespace tabrova::testing {
namespace {

class NoteLength : public ShapeTest {
  protected:
    // One staff, two tracks; the cursor on the second one.
    void SetUp() override {
        makeDocument(document, 2, 1);
        place(1, 0, 2);
    }
    void note(int column, std::string_view text = "5") { document.setNote(column, 6, text); }
    // Columns of the second track that hold a note in row 6.
    std::vector<int> notes() const {
        std::vector<int> columns;
        for (int column = 0; column < document.ColumnCapacity; ++column)
            if (!document.note(column, 6).empty()) columns.push_back(column);
        return columns;
    }
    std::vector<int> marks() const {
        std::vector<int> columns;
        for (int column = 0; column < document.ColumnCapacity; ++column)
            if (!document.barMark(column).empty()) columns.push_back(column);
        return columns;
    }
    using Columns = std::vector<int>;
};

TEST_F(NoteLength, IsTheDistanceToTheNextFilledColumnOfTheTrack) {
    note(4);
    EXPECT_EQ(noteLength(document), 4);
    document.setNote(3, 11, "x");
    EXPECT_EQ(noteLength(document), 3);
    document.setNote(1, 5, "1"); // of the first track
    EXPECT_EQ(noteLength(document), 3);
    place(1, 3, 2);
    EXPECT_EQ(noteLength(document), 1);
    place(1, 4, 2);
    EXPECT_EQ(noteLength(document), std::nullopt);
}

TEST_F(NoteLength, CountsNeitherTechniquesNorMarks) {
    document.setTechnique(2, 6, "h");
    document.setBarMark(3, ".");
    EXPECT_EQ(noteLength(document), std::nullopt);
    note(9);
    EXPECT_EQ(noteLength(document), 9);
}

TEST_F(NoteLength, ReachesTheLastColumnOfALongDocument) {
    makeDocument(document, 2, 3);
    place(1, 0, 2);
    note(95);
    EXPECT_EQ(noteLength(document), 95);
    place(3, 31, 2);
    EXPECT_EQ(noteLength(document), std::nullopt);
}

TEST_F(NoteLength, OfEveryButtonIsReachedFromEveryOther) {
    for (const int from : {16, 8, 3, 4, 2, 1})
        for (const int to : {16, 8, 3, 4, 2, 1}) {
            SetUp();
            place(1, 2, 2);
            note(2);
            note(2 + from, "7");
            note(2 + from + 2, "9");
            document.CurrentColumn = 999;
            SetNoteLength(document, to);
            EXPECT_EQ(notes(), (Columns{2, 2 + to, 2 + to + 2})) << from << " to " << to;
            EXPECT_EQ(document.note(2 + to, 6), "7");
            EXPECT_EQ(document.note(2 + to + 2, 6), "9");
            expectCursor(1, 2, 2);
            expectStaves(1);
        }
}

TEST_F(NoteLength, OfTheLastNoteCannotChange) {
    note(0);
    document.setTechnique(3, 8, "s");
    document.setBarMark(5, "r");
    document.setNote(7, 0, "1");
    remember();
    for (const int columns : {1, 16}) {
        SetNoteLength(document, columns);
        expectUnchanged();
    }
}

TEST_F(NoteLength, ThatIsSetAgainChangesNothing) {
    fill(2, 2);
    place(1, 4, 1);
    remember();
    SetNoteLength(document, 1);
    expectUnchanged();
}

TEST_F(NoteLength, CountsFromAnEmptyCellToo) {
    note(6);
    SetNoteLength(document, 2);
    EXPECT_EQ(notes(), Columns{2});
    SetNoteLength(document, 4);
    EXPECT_EQ(notes(), Columns{4});
}

TEST_F(NoteLength, MovesChordsWithTheirTechniques) {
    for (int row = 6; row < 12; ++row) {
        document.setNote(3, row, std::to_string(row));
        document.setTechnique(3, row, "v");
    }
    SetNoteLength(document, 8);
    for (int row = 6; row < 12; ++row) {
        EXPECT_EQ(document.note(3, row), "");
        EXPECT_EQ(document.technique(3, row), "");
        EXPECT_EQ(document.note(8, row), std::to_string(row));
        EXPECT_EQ(document.technique(8, row), "v");
    }
}

TEST_F(NoteLength, ThatShrinksTakesTechniquesAndMarksInBetween) {
    note(0);
    note(8);
    document.setTechnique(2, 6, "w");
    document.setBarMark(3, "r");
    document.setBarMark(8, ".");
    document.setBarMark(0, "r2");
    SetNoteLength(document, 4);
    EXPECT_EQ(notes(), (Columns{0, 4}));
    EXPECT_EQ(document.technique(2, 6), "");
    EXPECT_EQ(marks(), (Columns{0, 4}));
}

TEST_F(NoteLength, ThatGrowsLeavesTheMarkBehindTheCursorAndCopiesIt) {
    note(0);
    note(1);
    document.setBarMark(1, "r7");
    document.setBarMark(4, ".");
    SetNoteLength(document, 3);
    EXPECT_EQ(notes(), (Columns{0, 3}));
    EXPECT_EQ(marks(), (Columns{1, 2, 3, 6}));
    for (const int column : {1, 2, 3})
        EXPECT_EQ(document.barMark(column), "r7");
}

TEST_F(NoteLength, ThatGrowsAddsAStaffForALastNoteOfAnyTrack) {
    note(0);
    note(1);
    document.setNote(31, 0, "4");
    SetNoteLength(document, 2);
    expectStaves(2);
    EXPECT_EQ(document.note(31, 0), "4");
    EXPECT_EQ(document.note(32, 0), "");
    EXPECT_EQ(notes(), (Columns{0, 2}));
}

TEST_F(NoteLength, ThatGrowsPastTheEndKeepsEveryNote) {
    note(0);
    for (int column = 1; column < 32; ++column)
        note(column, std::to_string(column));
    SetNoteLength(document, 16);
    expectStaves(2);
    for (int column = 1; column < 32; ++column)
        EXPECT_EQ(document.note(column + 15, 6), std::to_string(column));
    EXPECT_EQ(notes().size(), 32u);
}

TEST_F(NoteLength, ThatShrinksLeavesTheLastColumnTwice) {
    note(0);
    note(3);
    note(31, "9");
    document.setBarMark(31, ".");
    document.setNote(31, 0, "1");
    SetNoteLength(document, 1);
    EXPECT_EQ(notes(), (Columns{0, 1, 29, 30, 31}));
    EXPECT_EQ(marks(), (Columns{29, 30, 31}));
    EXPECT_EQ(document.note(30, 0), "");
    EXPECT_EQ(document.note(31, 0), "1");
}

TEST_F(NoteLength, IsSetAcrossTheEndOfAStaff) {
    makeDocument(document, 2, 2);
    place(1, 31, 2);
    note(31);
    note(35);
    SetNoteLength(document, 8);
    EXPECT_EQ(notes(), (Columns{31, 39}));
    SetNoteLength(document, 1);
    EXPECT_EQ(notes(), (Columns{31, 32}));
    expectCursor(1, 31, 2);
}

class ColumnAfterCursor : public ShapeTest {};

TEST_F(ColumnAfterCursor, ComesOnTheTrackWhileTheOthersStand) {
    for (const int column : {0, 12, 30, 31}) {
        fill(3, 2);
        emptyNotes(63);
        place(1, column, 2);
        remember();
        InsertColumnAfterCursor(document);
        expectStaves(2);
        expectCells([&](int each, int row) {
            if (!ofTrack(row, 2) || each <= column) return each;
            return each == column + 1 ? EmptyNow : each - 1;
        });
        expectMarks([&](int each) { return each <= column + 1 ? each : each - 1; });
        expectCursor(1, column, 2);
    }
}

TEST_F(ColumnAfterCursor, LooksForRoomOnAllTracks) {
    fill(2, 1);
    document.NoteGrid.clear(31, 1, 0, 6);
    place(1, 4, 1);
    remember();
    InsertColumnAfterCursor(document);
    expectStaves(2);
    expectCells([](int column, int row) {
        if (column >= 32 + (row < 6 ? 1 : 0)) return EmptyNow;
        if (row >= 6 || column <= 4) return column;
        return column == 5 ? EmptyNow : column - 1;
    });
    expectMarks([](int column) { return column > 32 ? EmptyNow : column <= 5 ? column : column - 1; });
}

TEST_F(ColumnAfterCursor, IsTheEmptiedLastOneWithTheCursorJustBeforeIt) {
    fill(2, 1);
    emptyNotes(31);
    place(1, 30, 2);
    remember();
    InsertColumnAfterCursor(document);
    expectStaves(1);
    expectCells([](int column, int row) { return column == 31 && row >= 6 ? EmptyNow : column; });
    expectMarks(sameColumn);
}

TEST_F(ColumnAfterCursor, IsNotThereInTheLastColumn) {
    fill(2, 1);
    emptyNotes(31);
    place(1, 31, 2);
    remember();
    InsertColumnAfterCursor(document);
    expectUnchanged();
    RemoveColumnAfterCursor(document);
    expectUnchanged();
}

TEST_F(ColumnAfterCursor, ThatGoesTakesItsMarkFromAllTracks) {
    for (const int column : {0, 12, 31, 61}) {
        fill(3, 2);
        place(column / 32 + 1, column % 32, 3);
        remember();
        RemoveColumnAfterCursor(document);
        const auto pulled = [&](int each) { return each <= column || each == 63 ? each : each + 1; };
        expectStaves(2);
        expectCells([&](int each, int row) { return ofTrack(row, 3) ? pulled(each) : each; });
        expectMarks(pulled);
    }
}

TEST_F(ColumnAfterCursor, ThatIsTheLastOneStays) {
    fill(1, 1);
    place(1, 30, 1);
    remember();
    RemoveColumnAfterCursor(document);
    expectUnchanged();
}

} // namespace
} // namespace tabrova::testing
