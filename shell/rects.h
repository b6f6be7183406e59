// Places of the layout as the toolkit's rectangles.
#pragma once

#include "tabview/surface.h"

#include <QRect>

namespace tabrova {

inline QRect qRect(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }

} // namespace tabrova
