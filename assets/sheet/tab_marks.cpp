// The technique marks, in the order of the sheet from left to right.
#include "tab_marks.h"

#include "glyphs.h"

#include <cmath>
#include <numbers>

namespace sheet {

namespace {

constexpr int markWidth = 26;
constexpr int stringRowOfMark = 7;

QRect markAt(int left) { return {left, 107, markWidth, 12}; }

using DrawMark = void (*)(QPainter&);

void drawOpaqueMark(SheetCanvas& canvas, int left, DrawMark draw) {
    canvas.paint(markAt(left), Copying::Opaque, draw);
}

// Thickness of a slur where it begins and ends.
constexpr double tipWeight = 0.5;

// A slur: two curves between the same ends, the outer one rising to the given control height.
void drawSlur(QPainter& painter, double foot, double outer, double inner) {
    QPainterPath path;
    path.moveTo(0.5, foot);
    path.cubicTo(6, outer, 19.5, outer, 25, foot);
    path.cubicTo(19.5, inner, 6, inner, 0.5, foot);
    painter.fillPath(path, ink);
    strokePath(painter, path, tipWeight);
}

// An arc may reach over nine columns, and only this mark brings the string below it along.
void drawHammerArc(QPainter& painter) {
    drawStringLine(painter, stringRowOfMark, 0, markWidth);
    drawSlur(painter, 6.5, -0.9, 1.3);
}

// The other opaque marks stand in the string's own place: they close the gap that they make, and the notation
// strip, which takes their ink alone, shows no piece of a string. They end short of the cell, or they would
// run into the next note.
constexpr double markLeft = 0.5;
constexpr double markRight = 23.5;
constexpr double stringMiddle = stringRowOfMark + 0.5;

void drawSlide(QPainter& painter) {
    QPainterPath path;
    path.moveTo(markLeft + 0.5, 10.6);
    path.lineTo(markRight - 0.5, 3.8);
    strokePath(painter, path, 1.4);
}

void drawWave(QPainter& painter, double height, double periods, double weight) {
    constexpr int steps = 240;
    const auto waveAt = [&](int step) {
        const double along = static_cast<double>(step) / steps;
        return QPointF(markLeft + (markRight - markLeft) * along,
                       stringMiddle - height * std::sin(2 * std::numbers::pi * periods * along));
    };
    QPainterPath path(waveAt(0));
    for (int step = 1; step <= steps; ++step)
        path.lineTo(waveAt(step));
    strokePath(painter, path, weight, Qt::FlatCap);
}

void drawVibrato(QPainter& painter) { drawWave(painter, 1.6, 3, 1.4); }

void drawWhammyWave(QPainter& painter) { drawWave(painter, 2.7, 1.5, 1.7); }

void drawDive(QPainter& painter) {
    QPainterPath path;
    path.moveTo(markLeft, 5.2);
    path.lineTo((markLeft + markRight) / 2, 11);
    path.lineTo(markRight, 5.2);
    strokePath(painter, path, 1.4, Qt::FlatCap);
}

void drawRingedGhost(QPainter& painter) {
    QPen pen(ink, 1.2);
    painter.setPen(pen);
    painter.drawEllipse(QRectF(8, 1, 10, 10));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QRectF(11.2, 4.2, 3.6, 3.6));
}

void drawHairpin(QPainter& painter) {
    QPainterPath path;
    path.moveTo(24.5, 3.5);
    path.lineTo(3.5, 7.5);
    path.lineTo(24.5, 11.5);
    strokePath(painter, path, 1.3);
}

void drawTapArc(QPainter& painter) {
    drawSlur(painter, 6.6, 3.1, 4.8);
    QPainterPath caret;
    caret.moveTo(13, 0);
    caret.lineTo(17.5, 3);
    caret.lineTo(15.2, 3);
    caret.lineTo(13, 1.5);
    caret.lineTo(10.8, 3);
    caret.lineTo(8.5, 3);
    painter.fillPath(caret, ink);
}

void drawRingArrow(QPainter& painter) {
    painter.fillRect(QRectF(3, 3, 16, 1), ink);
    QPainterPath head;
    head.moveTo(18, 0.5);
    head.lineTo(25, 3.5);
    head.lineTo(18, 6.5);
    head.closeSubpath();
    painter.fillPath(head, ink);
}

void drawBracket(SheetCanvas& canvas, int left, bool opening) {
    canvas.paint(QRect(left, 19, 3, 10), Copying::And, [&](QPainter& painter) {
        if (!opening) {
            painter.translate(3, 0);
            painter.scale(-1, 1);
        }
        if (canvas.scale() == 1) {
            drawPixels(painter, {0, 0},
                       {"..#", ".#.", ".#.", "#..", "#..", "#..", "#..", ".#.", ".#.", "..#"});
            return;
        }
        QPainterPath path;
        path.moveTo(2.9, 0.1);
        path.cubicTo(-0.85, 2.6, -0.85, 7.4, 2.9, 9.9);
        path.cubicTo(0.75, 7.2, 0.75, 2.8, 2.9, 0.1);
        painter.fillPath(path, ink);
    });
}

void drawStaccatoDot(SheetCanvas& canvas) {
    canvas.paint(QRect(30, 85, 4, 4), Copying::And, [&](QPainter& painter) {
        if (canvas.scale() == 1) {
            drawPixels(painter, {0, 0}, {".##.", "####", "####", ".##."});
            return;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(QRectF(0, 0, 4, 4));
    });
}

void drawLetters(SheetCanvas& canvas) {
    const int scale = canvas.scale();
    canvas.paint(markAt(197), Copying::And, [scale](QPainter& painter) {
        drawLetter(painter, scale, 'H', {3, 0});
        drawLetter(painter, scale, 'a', {8, 0});
    });
    canvas.paint(markAt(281), Copying::And, [scale](QPainter& painter) {
        drawLetter(painter, scale, 'S', {3, 0});
        drawLetter(painter, scale, '.', {8, 0});
    });
    canvas.paint(markAt(309), Copying::And, [scale](QPainter& painter) {
        drawLetter(painter, scale, 'P', {3, 0});
        drawLetter(painter, scale, '.', {8, 0});
    });
    canvas.paint(QRect(448, 126, 10, 12), Copying::And, [scale](QPainter& painter) {
        drawDigit(painter, scale, '2', DigitSize::Small, {3, 0});
    });
}

} // namespace

void drawOpaqueMarks(SheetCanvas& canvas) {
    drawOpaqueMark(canvas, 29, drawHammerArc);
    drawOpaqueMark(canvas, 57, drawSlide);
    drawOpaqueMark(canvas, 85, drawVibrato);
    drawOpaqueMark(canvas, 113, drawWhammyWave);
    drawOpaqueMark(canvas, 141, drawDive);
}

void drawLaidOverMarks(SheetCanvas& canvas) {
    drawStaccatoDot(canvas);
    drawBracket(canvas, 212, true);
    drawBracket(canvas, 220, false);
    canvas.paint(markAt(169), Copying::And, drawRingedGhost);
    canvas.paint(markAt(225), Copying::And, drawHairpin);
    canvas.paint(markAt(253), Copying::And, drawTapArc);
    canvas.paint(markAt(337), Copying::And, drawRingArrow);
    drawLetters(canvas);
}

} // namespace sheet
