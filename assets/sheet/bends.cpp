// One row of a table a bend; a bend is a curve from the string to a solid head, and its size beyond.
#include "bends.h"

#include "glyphs.h"

#include <algorithm>
#include <array>

namespace sheet {

namespace {

enum class Direction { Down, Up };

// Rows and columns count from the sprite's top left corner. Some sprites share rows or a column
// with a neighbour: the shared part stays blank in both, which the rows below see to.
struct Bend {
    QRect cell;
    Direction direction;
    int halves;      // in half steps
    int startColumn; // where the curve leaves the string
    int arrowColumn; // column of shaft and head
    double startRow; // height of the curve's start
    double tipRow;   // where the head's point ends
    QPoint size;     // where the size's seven rows begin
};

// Strings cross the downward sprites in rows 3, 13 and 23, and the upward ones in row 7, in rows 9 and 19, or
// in rows 3, 13 and 23. The sizes keep between them; those of the shortest and of the two longest downward
// ones can't.
const std::array<Bend, 12> bends{{
    {{425, 58, 10, 17}, Direction::Down, 1, 0, 5, 3.5, 10, {2, 10}},
    {{437, 58, 12, 28}, Direction::Down, 2, 0, 5, 3.5, 13, {3, 14}},
    {{451, 57, 13, 32}, Direction::Down, 3, 0, 6, 3.5, 14, {0, 15}},
    {{464, 57, 14, 32}, Direction::Down, 4, 0, 6, 3.5, 15, {4, 16}},
    {{480, 57, 14, 32}, Direction::Down, 5, 0, 6, 3.5, 21, {0, 22}},
    {{493, 57, 14, 32}, Direction::Down, 6, 1, 7, 3.5, 21, {5, 22}},
    {{423, 101, 10, 17}, Direction::Up, 1, 0, 5, 16.5, 8, {2, 0}},
    {{435, 90, 12, 28}, Direction::Up, 2, 0, 5, 27.5, 9, {3, 1}},
    {{448, 86, 13, 32}, Direction::Up, 3, 0, 6, 31.5, 13.5, {0, 6}},
    {{461, 86, 14, 32}, Direction::Up, 4, 0, 6, 31.5, 12.5, {4, 5}},
    {{476, 86, 14, 32}, Direction::Up, 5, 0, 6, 31.5, 12, {0, 4}},
    {{490, 86, 14, 32}, Direction::Up, 6, 0, 6, 31.5, 11.5, {4, 4}},
}};

constexpr double turnHeight = 5;

// From the point back to the base. The shortest bends have a shorter head, which leaves them a shaft.
double headOf(const Bend& bend) {
    const double length = bend.halves == 1 ? 3.6 : 4.5;
    return bend.direction == Direction::Down ? -length : length;
}

// Away from the string in a short bend, then straight along one column, which keeps the shaft sharp.
void drawCurve(QPainter& painter, const Bend& bend) {
    const double back = headOf(bend);
    const double middle = bend.arrowColumn + 0.5;
    const double neck = bend.tipRow + back * 0.8;
    const double turn = std::clamp(neck - bend.startRow, -turnHeight, turnHeight);
    QPainterPath path;
    path.moveTo(bend.startColumn + 0.5, bend.startRow);
    path.cubicTo(middle - 0.5, bend.startRow, middle, bend.startRow + turn * 0.2, middle,
                 bend.startRow + turn);
    path.lineTo(middle, neck);
    strokePath(painter, path, 1, Qt::FlatCap);
}

void drawHead(QPainter& painter, const Bend& bend) {
    const double back = headOf(bend);
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
    QPoint place = bend.size;
    if (whole > 0) {
        drawDigit(painter, scale, static_cast<char>('0' + whole), DigitSize::Tall, place);
        // The one ends a column before its cell does.
        place += QPoint(whole == 1 ? 5 : 6, 0);
    }
    if (bend.halves % 2 == 1) drawHalf(painter, scale, place);
}

} // namespace

void drawBends(SheetCanvas& canvas) {
    for (const Bend& bend : bends) {
        canvas.paint(bend.cell, Copying::And, [&](QPainter& painter) {
            drawCurve(painter, bend);
            drawHead(painter, bend);
            drawSize(painter, canvas.scale(), bend);
        });
    }
}

} // namespace sheet
