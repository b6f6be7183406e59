// The bold numbers of the note cells and of the repeat counts: hand-set pixels at scale 1, strokes at the
// finer scales, so that no font of the machine has a say in the result.
#pragma once

#include "sheet_canvas.h"

namespace sheet {

// A number of one or two digits, seven rows high: one digit stands in the middle of a cell of 9 columns, two
// fill it.
void drawNumber(QPainter& painter, int scale, int number, const QPoint& at);

} // namespace sheet
