#include "editing/structure_edits.h"

#include "core/document_operations.h"

#include <algorithm>

namespace tabrova {

namespace {

int staffStart(const Document& document) { return (document.CurrentStaff - 1) * ColumnsPerStaff; }

bool anyNote(const Document& document, int column, RowRange rows) {
    for (int row = rows.first; row < rows.first + rows.count; ++row)
        if (!document.note(column, row).empty()) return true;
    return false;
}

void clearMarks(Document& document, int first, int count) {
    const int end = std::min(first + count, document.ColumnCapacity);
    for (int column = first; column < end; ++column)
        document.setBarMark(column, "");
}

// Marks `at` to `end` - `count` - 1 move to the right; the ones at `at` stay as they are.
void moveMarksRight(Document& document, int at, int count, int end) {
    auto& marks = document.BarMarkRow;
    end = std::min(end, static_cast<int>(marks.size()));
    if (at + count >= end) return;
    std::move_backward(marks.begin() + at, marks.begin() + end - count, marks.begin() + end);
}

void moveMarksLeft(Document& document, int at, int count) {
    auto& marks = document.BarMarkRow;
    if (at + count > static_cast<int>(marks.size())) return;
    std::move(marks.begin() + at + count, marks.end(), marks.begin() + at);
}

// Room for staves: 32 empty columns at `at`.
bool insertStaff(Document& document, int at) {
    if (!growByOneStaff(document)) return false;
    const int end = document.ColumnCapacity;
    document.NoteGrid.insertColumns(at, ColumnsPerStaff, end);
    document.TechniqueGrid.insertColumns(at, ColumnsPerStaff, end);
    moveMarksRight(document, at, ColumnsPerStaff, end);
    clearMarks(document, at, ColumnsPerStaff);
    return true;
}

// The last column keeps its cells.
void moveCellsLeft(CellGrid& grid, int at, RowRange rows) {
    const int last = grid.columns() - 1;
    if (at >= last) return;
    if (rows.first == 0 && rows.count == grid.rows()) {
        grid.removeColumns(at, 1, last + 1);
        grid.copyCells(grid, last - 1, last, rows.first, rows.count);
        return;
    }
    for (int column = at; column < last; ++column)
        grid.copyCells(grid, column + 1, column, rows.first, rows.count);
}

} // namespace

RowRange rowsOf(const Document& document, Rows rows) {
    if (rows == Rows::AllTracks) return {0, document.TrackCount * StringsPerTrack};
    return {Document::firstRowOfTrack(document.CurrentTrack), StringsPerTrack};
}

void makeRoomForColumn(CellGrid& grid, int at, int end, RowRange rows) {
    end = std::min(end, grid.columns());
    if (rows.first == 0 && rows.count == grid.rows()) return grid.insertColumns(at, 1, end);
    grid.insertCells(at, end, rows.first, rows.count);
}

void clearStaff(Document& document, const StaffClear& what) {
    const RowRange rows = rowsOf(document, what.rows);
    const int first = staffStart(document);
    if (what.notes) document.NoteGrid.clear(first, ColumnsPerStaff, rows.first, rows.count);
    if (what.techniques) document.TechniqueGrid.clear(first, ColumnsPerStaff, rows.first, rows.count);
    if (what.barMarks) clearMarks(document, first, ColumnsPerStaff);
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
    document.NoteGrid.removeColumns(at, ColumnsPerStaff, document.ColumnCapacity);
    document.TechniqueGrid.removeColumns(at, ColumnsPerStaff, document.ColumnCapacity);
    moveMarksLeft(document, at, ColumnsPerStaff);
    --document.StaffCount;
    ResizeGrids(document, document.ColumnCapacity - ColumnsPerStaff, document.RowCapacity);
}

void InsertColumn(Document& document, Rows rows) {
    EnsureRoomForInsert(document, rows);
    GetCurrentXPosition(document);
    const int at = document.CurrentColumn;
    const int end = document.StaffCount * ColumnsPerStaff;
    makeRoomForColumn(document.NoteGrid, at, end, rowsOf(document, rows));
    makeRoomForColumn(document.TechniqueGrid, at, end, rowsOf(document, rows));
    if (rows == Rows::AllTracks) moveMarksRight(document, at, 1, end);
}

void RemoveColumn(Document& document, Rows rows) {
    GetCurrentXPosition(document);
    const int at = document.CurrentColumn;
    moveCellsLeft(document.NoteGrid, at, rowsOf(document, rows));
    moveCellsLeft(document.TechniqueGrid, at, rowsOf(document, rows));
    if (rows == Rows::AllTracks) moveMarksLeft(document, at, 1);
}

void InsertColumnAfterCursor(Document& document) {
    EnsureRoomForInsert(document, Rows::AllTracks);
    const int at = document.CurrentColumn + 1;
    const int end = document.StaffCount * ColumnsPerStaff;
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    makeRoomForColumn(document.NoteGrid, at, end, rows);
    makeRoomForColumn(document.TechniqueGrid, at, end, rows);
    moveMarksRight(document, at, 1, end);
}

void RemoveColumnAfterCursor(Document& document) {
    const int at = document.CurrentColumn + 1;
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    moveCellsLeft(document.NoteGrid, at, rows);
    moveCellsLeft(document.TechniqueGrid, at, rows);
    moveMarksLeft(document, at, 1);
}

namespace {

// So many removals at once: every column takes the one that far behind it, or the last one.
void removeColumnsAfterCursor(Document& document, int count) {
    const RowRange rows = rowsOf(document, Rows::CurrentTrack);
    const int last = document.lastColumn();
    for (int column = document.CurrentColumn + 1; column < last; ++column) {
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
