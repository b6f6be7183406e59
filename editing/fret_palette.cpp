#include "editing/fret_palette.h"

#include <cstdint>

namespace tabrova {

namespace {

constexpr int CellSize = 20;
constexpr int FirstLeft = 1;
constexpr int FirstTop = 18;
constexpr int FretsInRow = 10;
constexpr int Rows = 3;

// The number of a grid line, if the place stands on one.
std::optional<int> lineAt(int place, int first, int count) {
    if (place < first || (place - first) % CellSize != 0) return std::nullopt;
    const int line = (place - first) / CellSize;
    return line < count ? std::optional<int>(line) : std::nullopt;
}

} // namespace

Rect paletteHighlight(const Rect& highlight, int x, int y) {
    constexpr int CellsBegin = 10;
    if (y < CellsBegin) return highlight;
    Rect place = highlight;
    // In 64 bits: the pointer may be anywhere.
    place.left = static_cast<int>((std::int64_t{x} - 4) / CellSize * CellSize + FirstLeft);
    place.top = (y - 20) / CellSize * CellSize + FirstTop;
    return place;
}

std::optional<int> paletteFret(const Rect& highlight) {
    const auto column = lineAt(highlight.left, FirstLeft, FretsInRow);
    const auto row = lineAt(highlight.top, FirstTop, Rows);
    if (!column || !row) return std::nullopt;
    return *row * FretsInRow + *column;
}

} // namespace tabrova
