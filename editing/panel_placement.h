// Where the small panels open: beside the cursor or at the pointer, flipped over at the page's edges.
#pragma once

#include "tabview/surface.h"

namespace tabrova {

// Right of and below the cursor, in the window's client area. The edges compared with are the page's width
// and height as they stand, without its place in the window.
Rect placeBesideCursor(const Rect& cursor, const Rect& page, const Rect& panel);

// At a point of the page, in the page's own coordinates.
Rect placeAtPointer(int x, int y, const Rect& page, const Rect& panel);

} // namespace tabrova
