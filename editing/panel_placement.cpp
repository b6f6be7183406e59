#include "editing/panel_placement.h"

namespace tabrova {

Rect placeBesideCursor(const Rect& cursor, const Rect& page, const Rect& panel) {
    constexpr int Gap = 2;
    Rect place = panel;
    place.left = cursor.right() + Gap + page.left;
    place.top = cursor.bottom() + Gap + page.top;
    if (place.right() > page.width) place.left -= place.width;
    if (place.bottom() > page.height) place.top -= place.height;
    return place;
}

Rect placeAtPointer(int x, int y, const Rect& page, const Rect& panel) {
    constexpr int Gap = 10;
    Rect place = {x, y, panel.width, panel.height};
    if (place.right() > page.width) place.left -= place.width + Gap;
    if (place.bottom() > page.height) place.top -= place.height + Gap;
    return place;
}

} // namespace tabrova
