// A document whose every cell holds a text of its own, so that after an edit each cell tells where it came
// from.
#pragma once

#include "editing/structure_edits.h"
#include "tests/core/document/document_helpers.h"
#include "tests/editing/plain_grid.h"

namespace tabrova::testing {

constexpr int EmptyNow = -1;

class ShapeTest : public ::testing::Test {
  protected:
    // Every cell filled; the cursor at column 0 of staff 1 on track 1.
    void fill(int tracks, int staves) {
        makeDocument(document, tracks, staves);
        fillCells();
    }
    void fillCells() {
        for (int column = 0; column < document.ColumnCapacity; ++column) {
            for (int row = 0; row < document.RowCapacity; ++row) {
                const std::string place = std::to_string(column) + "/" + std::to_string(row);
                document.setNote(column, row, "n" + place);
                document.setTechnique(column, row, "t" + place);
            }
            document.setBarMark(column, "m" + std::to_string(column));
        }
    }
    void place(int staff, int column, int track) {
        document.CurrentStaff = static_cast<std::int16_t>(staff);
        document.ColumnInStaff = column;
        document.CurrentTrack = static_cast<std::int16_t>(track);
        GetCurrentXPosition(document);
    }
    void emptyNotes(int column) {
        for (int row = 0; row < document.RowCapacity; ++row)
            document.setNote(column, row, "");
    }
    void emptyEverything() {
        for (int column = 0; column < document.ColumnCapacity; ++column)
            document.setBarMark(column, "");
        document.NoteGrid.clear();
        document.TechniqueGrid.clear();
    }
    // What the expectations below compare with.
    void remember() { before = PlainGrid(document); }

    // `source` gives for every (column, row) the column whose old cell stands there now, or EmptyNow.
    template <class Source>
    void expectNotes(Source source) const {
        expectCells(document.NoteGrid, before.notes, source, "note");
    }
    template <class Source>
    void expectTechniques(Source source) const {
        expectCells(document.TechniqueGrid, before.techniques, source, "technique");
    }
    template <class Source>
    void expectCells(Source source) const {
        expectNotes(source);
        expectTechniques(source);
    }
    template <class Source>
    void expectMarks(Source source) const {
        ASSERT_EQ(document.BarMarkRow.size(), static_cast<std::size_t>(document.ColumnCapacity));
        for (int column = 0; column < document.ColumnCapacity; ++column) {
            const int from = source(column);
            ASSERT_EQ(document.barMark(column), from == EmptyNow ? "" : before.marks[cast(from)]) << column;
        }
    }
    void expectStaves(int staves) const {
        EXPECT_EQ(document.StaffCount, staves);
        EXPECT_EQ(document.ColumnCapacity, staves * 32);
        EXPECT_EQ(document.NoteGrid.columns(), staves * 32);
        EXPECT_EQ(document.TechniqueGrid.columns(), staves * 32);
        EXPECT_EQ(document.BarMarkRow.size(), cast(staves * 32));
    }
    void expectCursor(int staff, int column, int track) const {
        EXPECT_EQ(document.CurrentStaff, staff);
        EXPECT_EQ(document.ColumnInStaff, column);
        EXPECT_EQ(document.CurrentTrack, track);
    }
    void expectUnchanged() const { EXPECT_TRUE(sameGrid(document, before)); }

    static bool ofTrack(int row, int track) { return row / 6 == track - 1; }
    static std::size_t cast(int number) { return static_cast<std::size_t>(number); }

    Document document;
    PlainGrid before;

  private:
    template <class Source>
    void expectCells(const CellGrid& grid, const PlainGrid::Cells& old, Source source,
                     const char* what) const {
        for (int column = 0; column < grid.columns(); ++column)
            for (int row = 0; row < grid.rows(); ++row) {
                const int from = source(column, row);
                ASSERT_EQ(document.pool.text(grid.at(column, row)),
                          from == EmptyNow ? "" : old[cast(from)][cast(row)])
                    << what << " at column " << column << ", row " << row;
            }
    }
};

// Nothing moved.
inline int samePlace(int column, int /*row*/) { return column; }
inline int sameColumn(int column) { return column; }

} // namespace tabrova::testing
