// The sprites of the notation strip and of the rhythm below the tab: the start of the two staves
// with their clefs, note heads, the sharp, stems and beams.
#pragma once

#include "sheet_canvas.h"

namespace sheet {

void drawStaves(SheetCanvas& canvas);
void drawHeads(SheetCanvas& canvas);
void drawSharp(SheetCanvas& canvas);
void drawRhythm(SheetCanvas& canvas);

} // namespace sheet
