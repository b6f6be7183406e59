// A chord that the user enters string by string: what its six boxes may hold, and the line that is stored.
#pragma once

#include "tools/chord_manager/chord_tables.h"

#include <optional>
#include <string>

namespace tabrova {

constexpr int HighestEnteredFret = 6;
// The preview's mark of a string that is not played.
constexpr std::size_t SilentMark = 7;

// The texts of the six boxes, the lowest string first.
using ChordEntries = std::array<std::string, ChordStrings>;

// Not played: "x", a blank or nothing.
bool isSilentEntry(std::string_view text);

// Whether the box is to be put back to "0": neither silent nor a number up to 6. A letter counts as a fret
// that is too high.
bool isBadEntry(std::string_view text);

// The mark that the preview shows for the text: its fret, or SilentMark.
std::size_t previewMark(std::string_view text);

// The line of the chord's file; nothing if an entry is neither "x", a blank, nor a number up to 6.
std::optional<std::string> chordLine(const ChordEntries& entries);

} // namespace tabrova
