// Where the pieces stand on the sprite sheet, and which piece belongs to which text. assets/README.md names
// them all.
#pragma once

#include "tabview/surface.h"

#include <optional>
#include <string_view>

namespace tabrova {

// One copy from the sheet to a surface; a stretch where the sizes differ.
struct SpriteCopy {
    Rect place;
    Rect source;
    Raster raster = Raster::SrcCopy;
    bool operator==(const SpriteCopy&) const = default;
};

constexpr int SheetWidth = 657;
constexpr int SheetHeight = 160;

namespace sprite {

constexpr Rect StaffEnd = {3, 24, 20, 51};
constexpr Rect StaffRightEnd = {3, 24, 2, 51};
constexpr Rect StaffLines = {33, 24, 30, 51};
constexpr Rect StripStart = {596, 0, 45, 154};
constexpr Rect StripLines = {630, 0, 1, 154};

constexpr Rect DeadNote = {301, 1, 9, 7};
constexpr Rect JumpMark = {171, 9, 9, 7};
constexpr Rect BlankCell = {331, 1, 9, 7};

constexpr Rect BarLine = {3, 19, 12, 59};
constexpr Rect OpenedRepeat = {323, 25, 12, 59};
constexpr Rect ClosedRepeat = {340, 25, 12, 59};
constexpr Rect RepeatTimes = {258, 62, 9, 7};

} // namespace sprite

// The note cell of "0" to "29", "x" and ">"; nothing for any other text.
std::optional<Rect> noteGlyph(std::string_view text);
// The cell of the drum keys "35" to "81" on a percussion track.
std::optional<Rect> percussionGlyph(std::string_view text);

// The cell that shows the number of passes of a repeat, which is `count` + 1.
Rect repeatCountGlyph(int count);

} // namespace tabrova
