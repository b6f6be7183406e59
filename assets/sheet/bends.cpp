// One row of a table a bend; a bend is a curve from the string to a solid head, and its size beyond.
#include "bends.h"

#include "glyphs.h"

#include <array>

namespace sheet {

namespace {

enum class Direction { Down, Up };

// Rows and columns count from the sprite's top left corner. Some sprites share rows or a column
// with a neighbour: the shared part stays blank in both, which the rows below see to.
struct Bend {
    QRect cell;
    Direction direction;
    int halves;      // size in half tones of a whole step
    int startColumn; // where the curve leaves the string
    int arrowColumn; // column of shaft and head
    double startRow; // height of the curve's start
    double tipRow;   // where the head's point ends
    int textRow;     // first of the seven rows of the size
};

const std::array<Bend, 12> bends{{
    {{425, 58, 10, 17}, Direction::Down, 1, 0, 5, 3.5, 9.5, 10},
    {{437, 58, 12, 28}, Direction::Down, 2, 0, 5, 3.5, 14, 15},
    {{451, 57, 13, 32}, Direction::Down, 3, 0, 6, 3.5, 21, 22},
    {{464, 57, 14, 32}, Direction::Down, 4, 0, 5, 3.5, 21, 22},
    {{480, 57, 14, 32}, Direction::Down, 5, 0, 6, 3.5, 21, 22},
    {{493, 57, 14, 32}, Direction::Down, 6, 1, 6, 3.5, 21, 22},
    {{423, 101, 10, 17}, Direction::Up, 1, 0, 5, 16.5, 7.5, 0},
    {{435, 90, 12, 28}, Direction::Up, 2, 0, 5, 27.5, 8, 0},
    {{448, 86, 13, 32}, Direction::Up, 3, 0, 6, 31.5, 12, 4},
    {{461, 86, 14, 32}, Direction::Up, 4, 0, 5, 31.5, 12, 4},
    {{476, 86, 14, 32}, Direction::Up, 5, 0, 6, 31.5, 12, 4},
    {{490, 86, 14, 32}, Direction::Up, 6, 0, 5, 31.5, 12, 4},
}};

constexpr double headLength = 4.5;

void drawCurve(QPainter& painter, const Bend& bend) {
    const double back = bend.direction == Direction::Down ? -headLength : headLength;
    const double middle = bend.arrowColumn + 0.5;
    const double neck = bend.tipRow + back * 0.8;
    QPainterPath path;
    path.moveTo(bend.startColumn + 0.5, bend.startRow);
    path.cubicTo(middle, bend.startRow, middle, bend.startRow + (neck - bend.startRow) * 0.35, middle, neck);
    strokePath(painter, path, 1);
}

void drawHead(QPainter& painter, const Bend& bend) {
    const double back = bend.direction == Direction::Down ? -headLength : headLength;
    const double middle = bend.arrowColumn + 0.5;
    QPainterPath path;
    path.moveTo(middle, bend.tipRow);
    path.lineTo(middle - 2.5, bend.tipRow + back);
    path.lineTo(middle + 2.5, bend.tipRow + back);
    path.closeSubpath();
    painter.fillPath(path, ink);
}

void drawSize(QPainter& painter, int scale, const Bend& bend) {
    const int whole = bend.halves / 2;
    const bool withHalf = bend.halves % 2 == 1;
    const auto digit = static_cast<char>('0' + whole);
    if (!withHalf) {
        drawDigit(painter, scale, digit, DigitWidth::Wide, {bend.arrowColumn - 2, bend.textRow});
        return;
    }
    // The narrow one ends a column before its cell does, so the fraction moves up to it.
    const int halfLeft = whole == 0 ? 1 : whole == 1 ? 4 : 5;
    if (whole > 0) drawDigit(painter, scale, digit, DigitWidth::Narrow, {0, bend.textRow});
    drawHalf(painter, scale, {halfLeft, bend.textRow});
}

} // namespace

void drawBends(SheetCanvas& canvas) {
    for (const Bend& bend : bends) {
        canvas.paint(bend.cell, [&](QPainter& painter) {
            drawCurve(painter, bend);
            drawHead(painter, bend);
            drawSize(painter, canvas.scale(), bend);
        });
    }
}

} // namespace sheet
