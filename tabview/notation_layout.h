// The cursor's staff as music notation, on the strip, and its rhythm below the tab: a const document in,
// lists of copies and lines out. A percussion track has neither.
#pragma once

#include "core/document/document.h"
#include "tabview/sprites.h"

#include <vector>

namespace tabrova {

struct NotationLayout {
    std::vector<SpriteCopy> page;  // stems, beams and signs of the rhythm, in order
    std::vector<SpriteCopy> strip; // sharps, heads and techniques, then the beams
    std::vector<Line> stems; // on the strip, from the lowest head up to the common height; both ends count
};

// `NoteTop`, the height of the last head's middle on the strip, outlasts the pass: a pitch that cannot be
// written, and a technique without a note, stand at the height of the note before, be it of the last redraw.
// The lists are emptied first.
void layoutNotation(NotationLayout& layout, const Document& document, std::int16_t& NoteTop);

} // namespace tabrova
