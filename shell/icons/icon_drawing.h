// What an icon is made of: parts that are stroked or filled, written as short texts on a square of 20 x 20
// units with the origin at the upper left, two units of margin and most lines on half units.
//
// The letters of such a text, each followed by absolute numbers:
//   M x y    begin at a point              Q x y x y      a curve with one control point
//   L x y    a line                        C x y x y x y  a curve with two control points
//   H x      a line across                 O x y a b d    an oval: centre, half axes, degrees clockwise
//   V y      a line up or down             A x y          the rest moves along when that point moves onto a
//   pixel Z        close
#pragma once

#include <QPainterPath>

#include <array>
#include <span>
#include <string_view>

namespace tabrova {

constexpr double iconUnits = 20;

enum class Ink { Theme, Accent };
// Solid is a filled shape with rounded corners: the fill and a line around it.
enum class Stroke { Line, Fill, Solid };

struct IconPart {
    Ink ink{};
    Stroke stroke{};
    std::string_view text;
};

// Parts without a text are not there.
struct IconDrawing {
    std::string_view word;
    std::array<IconPart, 4> parts;
};

std::span<const IconDrawing> documentIcons();
std::span<const IconDrawing> techniqueIcons();
std::span<const IconDrawing> noteIcons();

// How the units fall on the pixels of one painting, and how wide a line is there, in pixels.
struct IconGrid {
    explicit IconGrid(double pixelsPerUnit);

    double scale;
    double lineWidth;
    // Whether a line's middle is the middle of a pixel, not the border between two.
    bool oddLine = true;
};

// A part's outline in pixels. Lines across and lines up or down, but no others, are moved by up to half a
// pixel, so that they stand sharp on the grid; what hangs on their ends moves along.
QPainterPath iconPath(const IconPart& part, const IconGrid& grid);

} // namespace tabrova
