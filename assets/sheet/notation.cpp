// Staves, clefs, heads and beams. One staff space is 6 logical pixels.
#include "notation.h"

#include "clefs.h"

namespace sheet {

namespace {

// Row of a head on which its centre lies: the one that the strip puts onto a staff line.
constexpr double headRow = 14.5;
constexpr double headColumn = 3.9;
constexpr int stemColumn = 7;
const QSize headSize{14, 18};

QPainterPath headOutline(double halfWidth, double halfHeight, double angle) {
    QPainterPath ellipse;
    ellipse.addEllipse(QPointF(0, 0), halfWidth, halfHeight);
    QTransform turn;
    turn.translate(headColumn, headRow);
    turn.rotate(angle);
    return turn.map(ellipse);
}

// The whole note is the widest head: a broad ring, heavier at its sides.
QPainterPath wholeNote() {
    QPainterPath ring;
    ring.addEllipse(QPointF(4.7, headRow), 4.7, 2.9);
    QTransform turn;
    turn.translate(4.7, headRow);
    turn.rotate(60);
    QPainterPath hole;
    hole.addEllipse(QPointF(0, 0), 2.4, 1.7);
    return ring.subtracted(turn.map(hole));
}

// The strip draws a stem in this column too, up to its beam; the head brings the lower part.
void drawOwnStem(QPainter& painter) { painter.fillRect(QRect(stemColumn, 0, 1, 14), ink); }

} // namespace

void drawStaves(SheetCanvas& canvas) {
    canvas.paint(QRect(596, 0, 45, 154), Copying::Opaque, [](QPainter& painter) {
        for (const int top : {36, 102})
            for (int line = 0; line < 5; ++line)
                painter.fillRect(QRect(0, top + 6 * line, 45, 1), staffLineGrey);
        painter.fillRect(QRect(0, 36, 1, 91), ink);
        drawTrebleClef(painter, {2.5, 54.5});
        drawBassClef(painter, {2.5, 108.5});
    });
}

void drawHeads(SheetCanvas& canvas) {
    canvas.paint(QRect({445, 2}, headSize), Copying::And, [](QPainter& painter) {
        painter.fillPath(headOutline(4.0, 2.8, -20), ink);
        drawOwnStem(painter);
    });
    canvas.paint(QRect({459, 2}, headSize), Copying::And, [](QPainter& painter) {
        painter.fillPath(headOutline(4.0, 2.8, -20).subtracted(headOutline(3.2, 1.3, -30)), ink);
        drawOwnStem(painter);
    });
    canvas.paint(QRect({482, 2}, headSize), Copying::And,
                 [](QPainter& painter) { painter.fillPath(wholeNote(), ink); });
}

void drawSharp(SheetCanvas& canvas) {
    canvas.paint(QRect(470, 35, 8, 9), Copying::And, [&](QPainter& painter) {
        if (canvas.scale() == 1) {
            drawPixels(
                painter, {0, 0},
                {".....#", "..#..#", "..#+###", ".####+", "..#..#", "..#+###", ".####+", "..#..#", "..#"});
            return;
        }
        // Thin uprights and broad slanting bars.
        painter.fillRect(QRectF(2, 1, 0.75, 8), ink);
        painter.fillRect(QRectF(5, 0, 0.75, 8), ink);
        for (const double row : {2.1, 5.1}) {
            QPainterPath bar;
            bar.moveTo(0.5, row + 0.7);
            bar.lineTo(7.25, row - 0.7);
            bar.lineTo(7.25, row + 1.0);
            bar.lineTo(0.5, row + 2.4);
            painter.fillPath(bar, ink);
        }
    });
}

void drawRhythm(SheetCanvas& canvas) {
    canvas.paint(QRect(346, 0, 1, 18), Copying::Opaque,
                 [](QPainter& painter) { painter.fillRect(QRect(0, 0, 1, 18), ink); });
    // Read downwards from its tenth row the ladder gives one, two or three beams; read whole, four.
    // Finer pixels leave the beams lighter than the numbers above them, and as low as the stems' ends.
    const double thickness = canvas.scale() == 1 ? 2 : 1.5;
    canvas.paint(QRect(347, 1, 10, 17), Copying::And, [thickness](QPainter& painter) {
        for (const int bottom : {8, 11, 14, 17})
            painter.fillRect(QRectF(0, bottom - thickness, 10, thickness), ink);
    });
    canvas.paint(QRect(365, 30, 1, 11), Copying::And, [](QPainter& painter) {
        for (const int row : {0, 3, 6, 9})
            painter.fillRect(QRect(0, row, 1, 2), ink);
    });
    canvas.paint(QRect(421, 35, 5, 5), Copying::Opaque, [&](QPainter& painter) {
        if (canvas.scale() == 1) {
            drawPixels(painter, {0, 0}, {".+#+.", "+###+", "#####", "+###+", ".+#+."});
            return;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(QRectF(0.5, 0.5, 4, 4));
    });
}

} // namespace sheet
