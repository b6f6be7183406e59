// The numbers and letters of the sheet: hand-set pixels for the sheet of scale 1, strokes with
// exact edges for the finer ones, so that no font of the machine has a say in the result.
#pragma once

#include "sheet_canvas.h"

#include <string_view>

namespace sheet {

// Height of every number and letter, in logical pixels.
inline constexpr int glyphHeight = 7;

enum class DigitWidth { Wide = 5, Narrow = 4 };

// Draws one digit '0' to '9' with its left upper corner at the given place.
void drawDigit(QPainter& painter, int scale, char digit, DigitWidth width, const QPoint& at);

// One half, eight wide.
inline constexpr int halfWidth = 8;
void drawHalf(QPainter& painter, int scale, const QPoint& at);

// 'H', 'a', 'S' and 'P' as the marks of the techniques use them, and a full stop two wide.
void drawLetter(QPainter& painter, int scale, char letter, const QPoint& at);

} // namespace sheet
