// The fret palette's geometry: three rows of ten cells, and the highlight that follows the pointer. The
// highlight's place names the cell, not the pointer's.
#pragma once

#include "tabview/surface.h"

#include <optional>

namespace tabrova {

constexpr Rect ParkedPaletteHighlight = {300, 18, 20, 18};

// Where the highlight goes for a pointer at x, y of the palette; above the cells it stays where it is.
Rect paletteHighlight(const Rect& highlight, int x, int y);

// The fret, 0 to 29, of the cell under the highlight; nothing where it stands on none.
std::optional<int> paletteFret(const Rect& highlight);

} // namespace tabrova
