#include "tabview/page_geometry.h"

#include <algorithm>

namespace tabrova {

std::int16_t visibleStaves(int pageHeight) {
    return static_cast<std::int16_t>(std::clamp(pageHeight / SlotHeight, 1, 32767));
}

std::int16_t columnWidth(int pageWidth) {
    return toInteger16(static_cast<double>(pageWidth - LineSpacingMargin) / ColumnsPerStaff).value_or(0);
}

void PageObjects::placeLines() {
    constexpr int MiddleOfCursor = 6;
    constexpr int StripOffset = 8;
    vLine1 = {nCursor.left + MiddleOfCursor, 0, nCursor.left + MiddleOfCursor, nCursor.top};
    NoteLine.x1 = vLine1.x1 + StripOffset;
    NoteLine.x2 = vLine1.x2 + StripOffset;
}

} // namespace tabrova
