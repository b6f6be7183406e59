// The pieces of the tab page itself: staff ends and lines, bar lines, repeats, and the cells of
// 9 by 7 with frets, drum numbers and repeat counts.
#pragma once

#include "sheet_canvas.h"

namespace sheet {

void drawStaffPieces(SheetCanvas& canvas);
void drawRepeats(SheetCanvas& canvas);
void drawNumberCells(SheetCanvas& canvas);
void drawSignCells(SheetCanvas& canvas);

} // namespace sheet
