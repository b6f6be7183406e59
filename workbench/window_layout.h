// The window-size rules: where the main window's panels stand for a size of its client area. Logical pixels.
#pragma once

#include "tabview/fretboard_layout.h"
#include "tabview/page_geometry.h"

#include <array>

namespace tabrova {

constexpr int NarrowestFollowedWidth = 783; // up to this width the page keeps its own
constexpr int PageTopWithStrip = 204;
constexpr int PageTopWithoutStrip = 38;
constexpr int StripTop = 24;
constexpr int ScrollBarWidth = 16;
constexpr int StatusBarHeight = 24;
constexpr int TrackChooserHeight = 200;

// The zooms, in percent.
constexpr int UnzoomedPercent = 100;
inline constexpr std::array ZoomSteps = {UnzoomedPercent, 125, 150, 200};

// The zoom takes everything between toolbar and status bar; these two keep their heights.
// The place in the window of what has this one at a zoom of 100 percent.
Rect zoomed(const Rect& place, int percent);
// Width and height of the client area as the window-size rules see them.
int unzoomedWidth(int width, int percent);
int unzoomedHeight(int height, int percent);
// Image pixels a logical pixel, 1 to 4, for a screen of this ratio.
int surfaceScale(double pixelRatio, int percent);

struct WindowLayout {
    Rect picDocument = {0, PageTopWithoutStrip, NarrowestFollowedWidth - ScrollBarWidth, 300};
    Rect picStandardNotation = {-8, StripTop, 0,
                                StripHeight}; // so that its cursor line stands over the page's
    Rect VScroll1 = {0, PageTopWithoutStrip, ScrollBarWidth, 300};
    Rect picFretboard = {0, PageTopWithoutStrip, FretboardWidth, 300};
    Rect lbldebug = {0, 0, 330, StatusBarHeight - 2};
    Rect StatusBar1;
    Rect picTrackChooser = {0, 0, 260, TrackChooserHeight};
    bool stripShown = false;
    bool fretboardShown = false;
};

// The layout for a client area of this size. `visibleStaves` is the document's; a page is at least one pixel
// high.
WindowLayout layOutWindow(WindowLayout layout, int clientWidth, int clientHeight, int visibleStaves);

// The strip shown or hidden: the page's and the scroll bar's tops follow.
WindowLayout withStrip(WindowLayout layout, bool shown);

} // namespace tabrova
