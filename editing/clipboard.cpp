#include "editing/clipboard.h"

#include "core/document/document_operations.h"

#include <algorithm>

namespace tabrova {

namespace {

// Column `end` - 1 takes its left neighbour.
void moveOneColumn(Document& document, int end, RowRange rows) {
    document.NoteGrid.copyCells(document.NoteGrid, end - 2, end - 1, rows.first, rows.count);
    document.TechniqueGrid.copyCells(document.TechniqueGrid, end - 2, end - 1, rows.first, rows.count);
}

// Makes room for one column at the cursor, from the right end on. The last column is looked at before every
// single move: a staff may come before the first move, which then saves the last column, or when the first
// note has reached the last column, but not later. Staves added here come into use with the next column.
void makeRoom(Document& document, Rows rows) {
    const int at = GetCurrentXPosition(document);
    const int last = document.StaffCount * ColumnsPerStaff;
    if (last > at) EnsureRoomForInsert(document, rows);
    int end = std::min(last, document.ColumnCapacity) + 1;
    constexpr int MovesThatMayNeedRoom = 3;
    for (int move = 0; move < MovesThatMayNeedRoom && end - 1 > at; ++move) {
        EnsureRoomForInsert(document, rows);
        if (move < MovesThatMayNeedRoom - 1) moveOneColumn(document, end--, rowsOf(document, rows));
    }
    makeRoomForColumn(document.NoteGrid, at, end, rowsOf(document, rows));
    makeRoomForColumn(document.TechniqueGrid, at, end, rowsOf(document, rows));
}

} // namespace

void copyStaff(Document& document) {
    document.ClipboardStart = document.CurrentStaff * ColumnsPerStaff - ColumnsPerStaff;
    document.ClipboardLength = ColumnsPerStaff;
    CopyData(document, 0, document.RowCapacity);
}

void copyColumns(Document& document, int columns) {
    document.ClipboardStart = GetCurrentXPosition(document);
    document.ClipboardLength = columns;
    CopyData(document, 0, document.RowCapacity);
}

void CopyData(Document& document, int firstRow, int lastRow) {
    document.ClipboardNotes.clear();
    document.ClipboardTechniques.clear();
    std::fill(document.ClipboardBarMarks.begin(), document.ClipboardBarMarks.end(), EmptyText);
    for (int i = 0; i < document.ClipboardLength; ++i) {
        const int column = document.ClipboardStart + i;
        document.ClipboardNotes.copyCells(document.NoteGrid, column, i, firstRow, lastRow - firstRow);
        document.ClipboardTechniques.copyCells(document.TechniqueGrid, column, i, firstRow,
                                               lastRow - firstRow);
        // Both lists have a cell for every column of the grids.
        if (column >= 0 && column < document.ColumnCapacity && i < document.ColumnCapacity)
            document.ClipboardBarMarks[static_cast<std::size_t>(i)] =
                document.BarMarkRow[static_cast<std::size_t>(column)];
    }
}

void PasteProcedure(Document& document, Rows rows) {
    if (document.ClipboardLength + GetCurrentXPosition(document) > document.ColumnCapacity)
        growByOneStaff(document);
    for (int i = 0; i < document.ClipboardLength; ++i)
        makeRoom(document, rows);
    const RowRange range = rowsOf(document, rows);
    for (int i = 0; i < document.ClipboardLength; ++i) {
        const int column = document.CurrentColumn + i;
        document.NoteGrid.copyCells(document.ClipboardNotes, i, column, range.first, range.count);
        document.TechniqueGrid.copyCells(document.ClipboardTechniques, i, column, range.first, range.count);
    }
}

} // namespace tabrova
