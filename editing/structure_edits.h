// Edits that change the shape of the grid: a staff is cleared, added or deleted, a column inserted or
// removed, a note made longer or shorter. They are block moves; columns past the end are not there to read or
// write and are passed over. None of them draws.
#pragma once

#include "core/document/document_operations.h"

namespace tabrova {

enum class Rows { AllTracks, CurrentTrack };
// By the number of tracks, whatever the grids hold.
RowRange rowsOf(const Document& document, Rows rows);

// In these rows the columns `at` to `end` - 2 move one to the right, and column `at` becomes "".
void makeRoomForColumn(CellGrid& grid, int at, int end, RowRange rows);

// What a clear command empties of the current staff.
struct StaffClear {
    Rows rows;
    StaffParts parts;
};
void clearStaff(Document& document, const StaffClear& what);

// One staff more if the last column holds a note in these rows, so that no note falls off the end. Techniques
// and bar marks are not looked at.
void EnsureRoomForInsert(Document& document, Rows rows);

// The cursor keeps its numbers. False, with nothing changed, if the document cannot grow.
bool newStaffAfterCurrent(Document& document);
bool newStaffBeforeCurrent(Document& document);
// The current staff goes, what is behind it moves up. For documents of two staves or more.
void deleteCurrentStaff(Document& document);

// At the cursor. On all tracks the bar marks move along; the mark of the new column is left to the caller.
void InsertColumn(Document& document, Rows rows);
// The last column keeps its old cells, which then stand there twice.
void RemoveColumn(Document& document, Rows rows);

// Behind the cursor's column, on the current track: the note there gets longer or shorter. The bar marks move
// with them, and the one behind the cursor stays as well when a column is inserted.
void InsertColumnAfterCursor(Document& document);
void RemoveColumnAfterCursor(Document& document);

// Columns from the cursor to the next filled column of the current track; std::nullopt if there is none.
std::optional<int> noteLength(const Document& document);
// The note at the cursor takes this many columns; the track slides. The last note of a track has no length.
void SetNoteLength(Document& document, int columns);

} // namespace tabrova
