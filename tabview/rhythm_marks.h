// Stems and beams of the cursor's staff, on the tab page below its strings.
#pragma once

#include "tabview/note_values.h"

#include <vector>

namespace tabrova {

struct RhythmPlace {
    int slotTop; // of the cursor's staff on the page
    int columnInStaff;
    int columnWidth;
    int lowestString; // of those with a note in the column
};

// The stem from the lowest note down.
void addRhythmStem(std::vector<SpriteCopy>& copies, const RhythmPlace& place);

// What follows the stem when no bar mark stands in the next column: the beams up to the end stem, the dotted
// value's sign, or for a whole note the page's own paper over the space to its left.
void addRhythmBeam(std::vector<SpriteCopy>& copies, const RhythmPlace& place, ValueCode value);

} // namespace tabrova
