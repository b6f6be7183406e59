#include "tools/percussion_editor/percussion_layout.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int RoomBelow = 110; // of the list
constexpr int ColumnWidth = 110;

} // namespace

PercussionLayout percussionLayout(int width, int height) {
    return {std::max(height - RoomBelow, 0),
            std::max(width / ColumnWidth, 1),
            height - 81,
            height - 55,
            height - 30,
            height - 54,
            height - 80};
}

} // namespace tabrova
