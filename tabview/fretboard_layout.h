// The virtual fretboard: an upright neck with fret 0 at the top and the lowest string at the left. Where its
// parts stand for a height of the surface, and which cell a click on it means.
#pragma once

#include "core/document/document.h"
#include "tabview/surface.h"

#include <array>
#include <optional>

namespace tabrova {

constexpr int FretboardWidth = 89;
constexpr int FretsOnNeck = 30;
// In a lower window the neck is neither cleared nor drawn.
constexpr int LowestWindowWithFretboard = 480;

// The fret pitch in pixels, for a surface of this height; 0 or negative on a very low one.
int fretPitch(int surfaceHeight);

struct NeckFret {
    int number;
    int y;                     // of its line and of its label's middle
    bool labelled;             // with its number: fret 0 never, and others where numbers would touch
    std::optional<Rect> inlay; // in the space below the line
};

struct NeckDot {
    int x; // middle; far above the surface for a string without a fret
    int y;
};

struct FretboardLayout {
    std::array<NeckFret, FretsOnNeck> frets;
    std::array<Line, StringsPerTrack> strings; // they run out far below the surface, deliberately
    std::array<NeckDot, StringsPerTrack> dots; // the notes of the column under the cursor
    int labelPixels;                           // size of the numbers' font, smaller where frets are close
};

FretboardLayout layoutFretboard(const Document& document, int surfaceHeight);

struct NeckPlace {
    int string;
    int fret; // below 0 above a very short neck, 30 at the end of a very long one
    bool operator==(const NeckPlace&) const = default;
};

// The place that a click means: the grid of the clicks lies a little higher than the lines. Nothing beside
// the neck.
std::optional<NeckPlace> neckPlaceAt(int x, int y, int pitch);

// The inlays' color from one that the theme gives: as quiet as must be to differ from paper and lines.
QRgb quietInlayColor(QRgb themeColor);

} // namespace tabrova
