// What a redraw of the page copies, in order: a const document in, a list of copies out.
#pragma once

#include "core/document/document.h"
#include "tabview/sprites.h"

#include <optional>
#include <vector>

namespace tabrova {

// All copies of the visible staves, for the document's VisibleStaves, ColumnWidth and TopStaff. Column first,
// string second, bar mark within the string: the layering is part of the look and the order is not to be
// rearranged. Returns PageRow, the number of staves drawn; `copies` is emptied first.
int layoutPage(std::vector<SpriteCopy>& copies, const Document& document, int pageWidth);

// The copy of one cell as it is drawn at once when its text is typed, over the paper if the text is empty and
// none if it is no note's. `cursor` is the cell's frame.
std::optional<SpriteCopy> typedCell(std::string_view text, const Rect& cursor);

// The two copies of the notation strip's empty staves.
std::vector<SpriteCopy> stripBackground(int pageWidth);

// One tick of the beat ruler over the page: a dark line and a white one beside it.
struct RulerTick {
    int x;
    int whiteX;
    bool onBeat; // every fourth column: black instead of the quiet color
};
std::vector<RulerTick> beatRuler(int columnWidth);

} // namespace tabrova
