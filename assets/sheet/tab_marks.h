// The marks of the playing techniques. Most are stretched sideways by the page, so their shapes
// keep to what stays readable between a third and ten times the width.
#pragma once

#include "sheet_canvas.h"

namespace sheet {

// Marks that replace the staff where they stand: they bring the string along or close its gap themselves.
void drawOpaqueMarks(SheetCanvas& canvas);

// Marks of which only the ink reaches the page.
void drawLaidOverMarks(SheetCanvas& canvas);

} // namespace sheet
