// Note values. A document stores none: a note lasts over the empty columns behind it, by thresholds.
#pragma once

#include "core/document/document.h"
#include "tabview/sprites.h"

namespace tabrova {

// The part of a whole note, 16 to 1; 3 is the dotted eighth, 0 no note yet.
using ValueCode = std::int16_t;

struct NoteValue {
    ValueCode code;
    int columns;    // that it spans
    Rect head;      // on the strip
    int beamHeight; // on the strip; 0 for the whole note, which has none
};

// The row of a code; nullptr for 0.
const NoteValue* noteValue(ValueCode code);

// The track's six strings, whose first is `firstRow`, are "" in this column.
bool columnIsEmpty(const Document& document, int column, int firstRow);

// The value of a note in this column: the longest threshold that the empty columns behind it reach, over the
// ends of staves and bars. Near the document's end the tests stop earlier, at most 15 columns are read.
ValueCode valueByLookAhead(const Document& document, int column, int firstRow);

} // namespace tabrova
