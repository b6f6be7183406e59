// Where the percussion editor's controls stand in its client area, by its height and width in pixels.
#pragma once

namespace tabrova {

// What follows the lower edge.
struct PercussionLayout {
    int listHeight;
    int listColumns; // at least 1
    int upTop;       // of the picture that moves up
    int sideTop;     // of those that move left and right
    int downTop;
    int deleteTop;
    int labelTop;
};

PercussionLayout percussionLayout(int width, int height);

} // namespace tabrova
