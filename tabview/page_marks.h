// Bar marks and technique marks on the page: each has a fixed place beside its cell.
#pragma once

#include "core/document/document.h"
#include "tabview/sprites.h"

#include <vector>

namespace tabrova {

// Appends the copies of a column's bar mark. `slot` is the staff's row on the page, `column` its column in
// the staff.
void addBarMark(std::vector<SpriteCopy>& copies, std::string_view mark, int slot, int column,
                int columnWidth);

// The copies of the bar mark of the cursor's column as they are drawn at once when it is typed. `cursor` is
// the frame of the cell on the string `string`. "." and "r" deliberately stand 8 pixels left of where the
// next redraw puts them.
std::vector<SpriteCopy> typedBarMark(std::string_view mark, const Rect& cursor, int string);

struct MarkPlace {
    int slot; // row on the page
    int columnInStaff;
    int string;
    int column; // in the document
    int row;    // in the grids
};

// Appends the copies of the technique of one cell; an unknown code adds nothing.
void addTechniqueMark(std::vector<SpriteCopy>& copies, const Document& document, const MarkPlace& place);

// Columns from a cell to the next note on its string, as an arc reaches; 1 to 9.
int hammerReach(const Document& document, int column, int row);
int tapReach(const Document& document, int column, int row);

} // namespace tabrova
