// Staff pieces and cells, each at the place where the page copies it from.
#include "tab_cells.h"

#include "digits.h"

#include <array>

namespace sheet {

namespace {

constexpr int stringCount = 6;
constexpr int stringPitch = 10;
constexpr int staffHeight = 51;
const QSize cellSize{9, 7};

// The row of the string that a note sits on, counted in its cell.
constexpr int stringRowOfCell = 4;

// The dots of the staff's left end. The bar line is cut from the same place and lies over the cell
// of its column's note, which starts at column 8 of it: four columns stay open, or dots would show
// between the digits.
constexpr std::array<int, 7> dottedColumns{3, 5, 7, 13, 15, 17, 19};

void drawNoteNumber(SheetCanvas& canvas, const QPoint& place, int number) {
    canvas.paint(QRect(place, cellSize), Copying::Opaque, [&](QPainter& painter) {
        drawNumber(painter, canvas.scale(), number, {0, 0});
    });
}

// A count of one digit moves up to the small x.
void drawCount(SheetCanvas& canvas, const QPoint& place, int count) {
    canvas.paint(QRect(place, cellSize), Copying::And, [&](QPainter& painter) {
        drawNumber(painter, canvas.scale(), count, {count < 10 ? -1 : 0, 0});
    });
}

QPainterPath crossOf(double left, double top, double size) {
    QPainterPath path;
    path.moveTo(left, top);
    path.lineTo(left + size, top + size);
    path.moveTo(left + size, top);
    path.lineTo(left, top + size);
    return path;
}

void drawCross(SheetCanvas& canvas, const QPoint& place, Copying copying) {
    canvas.paint(QRect(place, cellSize), copying, [&](QPainter& painter) {
        if (canvas.scale() == 1)
            drawPixels(painter, {1, 1}, {"##..##", ".####.", "..##..", ".####.", "##..##"});
        else
            strokePath(painter, crossOf(2.4, 1.4, 4.2), 1.5, Qt::FlatCap);
    });
}

void drawArrowHead(SheetCanvas& canvas, const QPoint& place) {
    canvas.paint(QRect(place, cellSize), Copying::Opaque, [&](QPainter& painter) {
        if (canvas.scale() == 1) {
            drawPixels(painter, {2, 0},
                       {"##....", "####..", "##.##.", "##..##", "##.##.", "####..", "##...."});
            return;
        }
        QPainterPath path;
        path.moveTo(2.7, 1.2);
        path.lineTo(6.2, 3.5);
        path.lineTo(2.7, 5.8);
        path.closeSubpath();
        strokePath(painter, path, 1.4);
    });
}

void drawThickThinBar(QPainter& painter, int thickLeft, int thinLeft) {
    painter.fillRect(QRect(thickLeft, 5, 3, staffHeight), ink);
    painter.fillRect(QRect(thinLeft, 5, 1, staffHeight), ink);
}

// The two dots stand in the second and the fourth of the five spaces, as far from the staff's
// middle above as below.
void drawRepeatDots(QPainter& painter, int scale, int left) {
    for (const int space : {1, 3}) {
        const int middleRow = 5 + space * stringPitch + stringPitch / 2;
        if (scale == 1) {
            drawPixels(painter, {left, middleRow - 1}, {"+#+", "###", "+#+"});
            continue;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(QRectF(left - 0.1, middleRow - 1.1, 3.2, 3.2));
    }
}

} // namespace

void drawStaffPieces(SheetCanvas& canvas) {
    canvas.paint(QRect(3, 24, 20, staffHeight), Copying::Opaque, [](QPainter& painter) {
        painter.fillRect(QRect(0, 0, 2, staffHeight), ink);
        for (int string = 0; string < stringCount; ++string)
            for (const int x : dottedColumns)
                drawStringLine(painter, string * stringPitch, x, 1);
    });
    canvas.paint(QRect(33, 24, 30, staffHeight), Copying::Opaque, [](QPainter& painter) {
        for (int string = 0; string < stringCount; ++string)
            drawStringLine(painter, string * stringPitch, 0, 30);
    });
}

void drawRepeats(SheetCanvas& canvas) {
    canvas.paint(QRect(323, 25, 12, 59), Copying::And, [&](QPainter& painter) {
        drawThickThinBar(painter, 0, 4);
        drawRepeatDots(painter, canvas.scale(), 7);
    });
    canvas.paint(QRect(340, 25, 12, 59), Copying::And, [&](QPainter& painter) {
        // The note of the bar's column follows right behind the cell: two columns stay free for it.
        drawThickThinBar(painter, 7, 5);
        drawRepeatDots(painter, canvas.scale(), 0);
    });
}

void drawNumberCells(SheetCanvas& canvas) {
    for (int fret = 0; fret <= 29; ++fret)
        drawNoteNumber(canvas, {1 + 10 * fret, 1}, fret);
    for (int number = 30; number <= 46; ++number)
        drawNoteNumber(canvas, {1 + 10 * (number - 30), 9}, number);
    for (int count = 2; count <= 9; ++count)
        drawCount(canvas, {188 + 10 * (count - 2), 54}, count);
    for (int count = 10; count <= 16; ++count)
        drawCount(canvas, {188 + 10 * (count - 10), 62}, count);
}

void drawSignCells(SheetCanvas& canvas) {
    drawCross(canvas, {301, 1}, Copying::Opaque);
    drawCross(canvas, {258, 62}, Copying::And);
    drawArrowHead(canvas, {171, 9});
    canvas.paint(QRect({331, 1}, cellSize), Copying::Opaque,
                 [](QPainter& painter) { drawStringLine(painter, stringRowOfCell, 0, cellSize.width()); });
}

} // namespace sheet
