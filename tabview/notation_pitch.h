// Where a pitch stands on the two staves of the notation strip, and the pitch that a cell is written as.
#pragma once

#include "core/document/document.h"

#include <optional>

namespace tabrova {

constexpr int HighestNotatedPitch = 110;

// Height in logical pixels before the strip's own offset of 41, 3 a diatonic step. There are no flats: a
// black key is the sharp of the note below it.
struct StaffPlace {
    int y;
    bool sharp;
    bool operator==(const StaffPlace&) const = default;
};

// Nothing outside 0 to 110.
std::optional<StaffPlace> staffPlaceOf(int pitch);

// Fret, tuning and the string's base together; on a string tuned to 13 this is the MIDI note. Nothing if the
// text is no number, the row has no tuning, or the sum leaves 16 bits. `row` counts into TuningTable.
std::optional<std::int16_t> notatedPitch(const Document& document, std::string_view text, int string,
                                         int row);

} // namespace tabrova
