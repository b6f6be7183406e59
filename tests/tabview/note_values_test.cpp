// Note values from the empty columns behind a note, and how the end of the document cuts the tests short.
#include "tabview/note_values.h"
#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"

namespace tabrova::testing {
namespace {

class NoteValues : public ::testing::Test {
  protected:
    NoteValues() { makePage(document, 1, 3, 984, 472); }

    // The value of a note in column 0 before this many empty columns.
    ValueCode valueBefore(int emptyColumns, int stringOfNext) {
        makePage(document, 1, 3, 984, 472);
        document.setNote(0, 2, "5");
        document.setNote(emptyColumns + 1, stringOfNext, "7");
        return valueByLookAhead(document, 0, 0);
    }

    Document document;
};

TEST_F(NoteValues, EachThreshold) {
    constexpr ValueCode expected[] = {16, 8, 3, 4, 4, 4, 4, 2, 2, 2, 2, 2, 2, 2, 2, 1, 1, 1, 1};
    for (int empty = 0; empty < 19; ++empty)
        for (const int string : {0, 2, 5})
            EXPECT_EQ(valueBefore(empty, string), expected[empty]) << empty << " on string " << string;
}

TEST_F(NoteValues, DeadNotesAndJumpsEndANote) {
    document.setNote(3, 4, "x");
    EXPECT_EQ(valueByLookAhead(document, 1, 0), 8);
    document.setNote(3, 4, ">");
    EXPECT_EQ(valueByLookAhead(document, 1, 0), 8);
}

TEST_F(NoteValues, BarMarksAndTechniquesDoNotEndANote) {
    document.setBarMark(1, ".");
    document.setTechnique(1, 0, "h");
    EXPECT_EQ(valueByLookAhead(document, 0, 0), 1);
}

TEST_F(NoteValues, OtherTracksDoNotEndANote) {
    makePage(document, 3, 3, 984, 472);
    document.setNote(1, 5, "3");
    document.setNote(1, 12, "3");
    EXPECT_EQ(valueByLookAhead(document, 0, 6), 1);
    EXPECT_EQ(valueByLookAhead(document, 0, 0), 16);
}

TEST_F(NoteValues, TheLookAheadRunsOverStaffEnds) {
    EXPECT_EQ(valueByLookAhead(document, 31, 0), 1);
    document.setNote(33, 0, "1");
    EXPECT_EQ(valueByLookAhead(document, 31, 0), 8);
}

TEST_F(NoteValues, NearTheDocumentsEndTheTestsStop) {
    const int end = document.ColumnCapacity;
    const auto fromEnd = [&](int columns) { return valueByLookAhead(document, end - columns, 0); };
    EXPECT_EQ(fromEnd(1), 16);
    EXPECT_EQ(fromEnd(2), 16);
    EXPECT_EQ(fromEnd(3), 8);
    EXPECT_EQ(fromEnd(4), 3);
    for (const int columns : {5, 6, 7, 8})
        EXPECT_EQ(fromEnd(columns), 4) << columns;
    for (const int columns : {9, 12, 16})
        EXPECT_EQ(fromEnd(columns), 2) << columns;
    EXPECT_EQ(fromEnd(17), 1);
}

TEST_F(NoteValues, ColumnsOutsideTheDocumentAreEmpty) {
    EXPECT_EQ(valueByLookAhead(document, 4000, 0), 16);
    EXPECT_EQ(valueByLookAhead(document, -500, 0), 1);
    document.ColumnCapacity = 100000;
    EXPECT_EQ(valueByLookAhead(document, 4000, 0), 1);
}

TEST_F(NoteValues, EachRowOfTheTable) {
    struct Row {
        ValueCode code;
        int columns;
        Rect head;
        int beamHeight;
    };
    constexpr Rect filled = {445, 2, 14, 18};
    constexpr Row rows[] = {{16, 1, filled, 11}, {8, 2, filled, 8},           {4, 4, filled, 5},
                            {3, 3, filled, 3},   {2, 8, {459, 2, 14, 18}, 3}, {1, 16, {482, 2, 14, 18}, 0}};
    for (const Row& row : rows) {
        const NoteValue* value = noteValue(row.code);
        ASSERT_NE(value, nullptr) << row.code;
        EXPECT_EQ(value->columns, row.columns) << row.code;
        EXPECT_EQ(value->head, row.head) << row.code;
        EXPECT_EQ(value->beamHeight, row.beamHeight) << row.code;
    }
    for (const ValueCode other : {ValueCode{0}, ValueCode{5}, ValueCode{32}})
        EXPECT_EQ(noteValue(other), nullptr);
}

} // namespace
} // namespace tabrova::testing
