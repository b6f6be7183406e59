#include "editing/structure_edits.h"

#include <algorithm>

namespace tabrova {

namespace {

bool anyNote(const Document& document, int column, RowRange rows) {
    for (int row = rows.first; row < rows.first + rows.count; ++row)
        if (!document.note(column, row).empty()) return true;
    return false;
}

// Marks `at` to `end` - `count` - 1 move to the right; the ones at `at` stay as they are.
void moveMarksRight(Document& document, int at, int count, int end) {
    auto& marks = document.BarMarkRow;
    at = std::max(at, 0);
    end = std::min(end, static_cast<int>(marks.size()));
    if (at + count >= end) return;
    std::move_backward(marks.begin() + at, marks.begin() + end - count, marks.begin() + end);
}

void moveMarksLeft(Document& document, int at, int count) {
    auto& marks = document.BarMarkRow;
    at = std::max(at, 0);
    if (at + count > static_cast<int>(marks.size())) return;
    std::move(marks.begin() + at + count, marks.end(), marks.begin() + at);
}

// Columns up to one behind the last staff take part in a move to the right: where the grids hold that column
// too, it takes its left neighbour.
int behindLastMove(const Document& document) { return document.StaffCount * ColumnsPerStaff + 1; }

bool coversAllRows(const CellGrid& grid, RowRange rows) {
    return rows.first <= 0 && rows.first + rows.count >= grid.rows();
}

// Room for a staff. Before the first column there is nothing to empty: all columns move, and the first ones
// stay as well.
void insertStaffColumns(CellGrid& grid, int at) {
    if (at >= 0) return grid.insertColumns(at, ColumnsPerStaff, grid.columns());
    for (int column = grid.columns() - 1; column >= ColumnsPerStaff; --column)
        grid.copyCells(grid, column - ColumnsPerStaff, column, 0, grid.rows());
}

// 32 empty columns at `at`.
bool insertStaff(Document& document, int at) {
    if (!growByOneStaff(document)) return false;
    const int end = document.ColumnCapacity;
    insertStaffColumns(document.NoteGrid, at);
    insertStaffColumns(document.TechniqueGrid, at);
    moveMarksRight(document, at, ColumnsPerStaff, end);
    clearBarMarks(document, at, ColumnsPerStaff);
    return true;
}

// The columns behind `at` + `count` - 1 move to the left. The last `count` columns keep their cells.
void moveCellsLeft(CellGrid& grid, int at, int count, RowRange rows) {
    at = std::max(at, 0);
    const int behindMoved = grid.columns() - count;
    if (at >= behindMoved) return;
    if (coversAllRows(grid, rows) && at <= behindMoved - count) {
        grid.removeColumns(at, count, grid.columns());
        for (int column = behindMoved - count; column < behindMoved; ++column)
            grid.copyCells(grid, column, column + count, rows.first, rows.count);
        return;
    }
    for (int column = at; column < behindMoved; ++column)
        grid.copyCells(grid, column + count, column, rows.first, rows.count);
}

} // namespace

RowRange rowsOf(const Document& document, Rows rows) {
    if (rows == Rows::AllTracks) return {0, document.TrackCount * StringsPerTrack};
    return {Document::firstRowOfTrack(document.CurrentTrack), StringsPerTrack};
}

void makeRoomForColumn(CellGrid& grid, int at, int end, RowRange rows) {
    end = std::min(end, grid.columns());
    const bool whole = coversAllRows(grid, rows) && at >= 0 && at < end;
    if (whole) return grid.insertColumns(at, 1, end);
    grid.insertCells(at, end, rows.first, rows.count);
}

void clearStaff(Document& document, const StaffClear& what) {
    emptyStaff(document, rowsOf(document, what.rows), what.parts);
}

void EnsureRoomForInsert(Document& document, Rows rows) {
    if (anyNote(document, document.lastColumn(), rowsOf(document, rows))) growByOneStaff(document);
}

bool newStaffAfterCurrent(Document& document) {
    return insertStaff(document, staffStart(document) + ColumnsPerStaff);
}

bool newStaffBeforeCurrent(Document& document) { return insertStaff(document, staffStart(document)); }

void deleteCurrentStaff(Document& document) {
    const int at = staffStart(document);
    const RowRange rows = rowsOf(document, Rows::AllTracks);
    emptyStaff(document, rows, {true, true, true});
    moveCellsLeft(document.NoteGrid, at, ColumnsPerStaff, rows);
    moveCellsLeft(document.TechniqueGrid, at, ColumnsPerStaff, rows);
    moveMarksLeft(document, at, ColumnsPerStaff);
    --document.StaffCount;
    ResizeGrids(document, document.ColumnCapacity - ColumnsPerStaff, document.RowCapacity);
}

void InsertColumn(Document& document, Rows rows) {
    EnsureRoomForInsert(document, rows);
    const int at = GetCurrentXPosition(document);
    const int end = behindLastMove(document);
    makeRoomForColumn(document.NoteGrid, at, end, rowsOf(document, rows));
    makeRoomForColumn(document.TechniqueGrid, at, end, rowsOf(document, rows));
    if (rows == Rows::AllTracks) moveMarksRight(document, at, 1, end);
}

void RemoveColumn(Document& document, Rows rows) {
    const int at = GetCurrentXPosition(document);
    moveCellsLeft(document.NoteGrid, at, 1, rowsOf(document, rows));
    moveCellsLeft(document.TechniqueGrid, at, 1, rowsOf(document, rows));
    if (rows == Rows::AllTracks) moveMarksLeft(document, at, 1);
}

void InsertColumnAfterCursor(Document& document) {
    EnsureRoomForInsert(document, Rows::AllTracks);
    const int at = std::max(document.CurrentColumn + 1, 0);
    const int end = behindLastMove(document);
    if (at + 1 >= end) return;
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    makeRoomForColumn(document.NoteGrid, at, end, rows);
    makeRoomForColumn(document.TechniqueGrid, at, end, rows);
    moveMarksRight(document, at, 1, end);
}

void RemoveColumnAfterCursor(Document& document) {
    const int at = document.CurrentColumn + 1;
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    moveCellsLeft(document.NoteGrid, at, 1, rows);
    moveCellsLeft(document.TechniqueGrid, at, 1, rows);
    moveMarksLeft(document, at, 1);
}

namespace {

// So many removals at once: every column takes the one that far behind it, or the last one.
void removeColumnsAfterCursor(Document& document, int count) {
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    const int last = document.lastColumn();
    for (int column = std::max(document.CurrentColumn + 1, 0); column < last; ++column) {
        const int from = std::min(column + count, last);
        document.NoteGrid.copyCells(document.NoteGrid, from, column, rows.first, rows.count);
        document.TechniqueGrid.copyCells(document.TechniqueGrid, from, column, rows.first, rows.count);
        document.BarMarkRow[static_cast<std::size_t>(column)] =
            document.BarMarkRow[static_cast<std::size_t>(from)];
    }
}

} // namespace

std::optional<int> noteLength(const Document& document) {
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    for (int columns = 1; columns < document.StaffCount * ColumnsPerStaff; ++columns)
        if (anyNote(document, document.CurrentColumn + columns, rows)) return columns;
    return std::nullopt;
}

void SetNoteLength(Document& document, int columns) {
    GetCurrentXPosition(document);
    const auto present = noteLength(document);
    if (!present) return;
    if (*present > columns) removeColumnsAfterCursor(document, *present - columns);
    for (int length = *present; length < columns; ++length)
        InsertColumnAfterCursor(document);
    GetCurrentXPosition(document);
}

} // namespace tabrova
