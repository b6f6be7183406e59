// The numbers and letters of the marks: hand-set pixels for the sheet of scale 1, strokes with exact edges
// for the finer ones. They are lighter than the numbers of the notes.
#pragma once

#include "sheet_canvas.h"

namespace sheet {

// In logical pixels: 4 by 7 and 3 by 5.
enum class DigitSize { Tall, Small };

// Draws one digit '1' to '3' with its left upper corner at the given place.
void drawDigit(QPainter& painter, int scale, char digit, DigitSize size, const QPoint& at);

// One half, 7 by 7.
void drawHalf(QPainter& painter, int scale, const QPoint& at);

// 'H', 'a', 'S' and 'P' as the marks of the techniques use them, 4 by 6, and a full stop two wide.
void drawLetter(QPainter& painter, int scale, char letter, const QPoint& at);

} // namespace sheet
