// The scale calculator: a scale is a box of frets in the key of E, and every other key moves it up the neck.
// No fret ever folds back, so that the box keeps its shape. And the line that holds such a box in a file.
#pragma once

#include "tools/scale_manager/scale_tables.h"

#include <optional>
#include <string>

namespace tabrova {

// What the window shows of a scale.
struct ScaleDisplay {
    std::array<std::array<bool, ScaleMarks>, ScaleStrings> marks{};
    std::array<std::array<std::string, ScaleSlots>, ScaleStrings> labels; // frets as decimal text, or ""
};

// `line` holds ScaleSlots characters a string, the lowest first: "0" to "5" is a note at this fret above the
// box, anything else none. What a short line lacks is none.
ScaleDisplay layScale(int shift, std::string_view line);

// A field of up to ScaleSlots characters, filled on the left with "9"; a longer one stays.
std::string paddedField(std::string_view field);

// The line of the fields.
std::string scaleLine(const ScaleFields& fields);

// The texts of the entry boxes, by string and slot.
using ScaleEntries = std::array<std::array<std::string, ScaleSlots>, ScaleStrings>;

// The line of a new scale; nothing if an entry is neither "-", for no note, nor one digit from 0 to 5.
std::optional<std::string> newScaleLine(const ScaleEntries& entries);

// The MIDI note of a string with this fret text; nothing if the text is no number.
std::optional<int> scaleNote(std::size_t string, std::string_view fretText);

} // namespace tabrova
