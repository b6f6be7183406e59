// Copy and paste of whole columns, at most a staff's worth, through the document's own clipboard. Copying
// takes all tracks, pasting inserts: nothing is overwritten.
#pragma once

#include "editing/structure_edits.h"

namespace tabrova {

// The current staff.
void copyStaff(Document& document);
// 1 to 8 columns from the cursor on. Columns past the end of the document count as empty.
void copyColumns(Document& document, int columns);

// Fills the clipboard from ClipboardStart and ClipboardLength, rows firstRow up to but not including lastRow;
// all else in it becomes "".
void CopyData(Document& document, int firstRow, int lastRow);

// At the cursor. Bar marks are deliberately neither pasted nor moved: the notes slide past them.
void PasteProcedure(Document& document, Rows rows);

} // namespace tabrova
