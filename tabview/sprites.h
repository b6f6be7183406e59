// Where the pieces stand on the sprite sheet, and which piece belongs to which text. assets/README.md names
// them all.
#pragma once

#include "tabview/surface.h"

#include <optional>
#include <string_view>

namespace tabrova {

enum class CopyFrom { Sheet, Page };

// One copy to a surface, from the sheet or from the page itself; a stretch where the sizes differ.
struct SpriteCopy {
    Rect place;
    Rect source;
    Raster raster = Raster::SrcCopy;
    CopyFrom from = CopyFrom::Sheet;
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

// The marks of the techniques, in one row of the sheet.
constexpr Rect techniqueMark(int left) { return {left, 107, 26, 12}; }
constexpr Rect HammerArc = techniqueMark(29);
constexpr Rect Slide = techniqueMark(57);
constexpr Rect Vibrato = techniqueMark(85);
constexpr Rect WhammyBar = techniqueMark(113);
constexpr Rect Dive = techniqueMark(141);
constexpr Rect RingedGhost = techniqueMark(169); // on the notation strip only
constexpr Rect Harmonic = techniqueMark(197);
constexpr Rect FadeIn = techniqueMark(225);
constexpr Rect TapArc = techniqueMark(253);
constexpr Rect Slap = techniqueMark(281);
constexpr Rect Pop = techniqueMark(309);
constexpr Rect RingOn = techniqueMark(337);
constexpr Rect StaccatoDot = {30, 85, 4, 4};

constexpr Rect FilledHead = {445, 2, 14, 18};
constexpr Rect OpenHead = {459, 2, 14, 18};
constexpr Rect WholeHead = {482, 2, 14, 18};
constexpr Rect Sharp = {470, 35, 8, 9};
constexpr Rect RhythmStem = {346, 0, 1, 18};
constexpr Rect DottedSign = {421, 35, 5, 5};
constexpr Rect StripBeam = {365, 30, 1, 11}; // cut lower for fewer beams

} // namespace sprite

// The note cell of "0" to "29", "x" and ">"; nothing for any other text.
std::optional<Rect> noteGlyph(std::string_view text);
// The number of "0" to "29"; nothing for any other text, such as "07" or "1.0".
std::optional<int> fretOfText(std::string_view text);
// The cell of the drum keys "35" to "81" on a percussion track.
std::optional<Rect> percussionGlyph(std::string_view text);

// The cell that shows the number of passes of a repeat, which is `count` + 1.
Rect repeatCountGlyph(int count);

} // namespace tabrova
