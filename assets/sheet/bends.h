// The twelve bend arrows: six that leave the string downwards, six that rise from it.
#pragma once

#include "sheet_canvas.h"

namespace sheet {

void drawBends(SheetCanvas& canvas);

} // namespace sheet
