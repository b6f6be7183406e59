#include "workbench/window_layout.h"

#include <algorithm>
#include <cmath>

namespace tabrova {

namespace {

constexpr int DebugLabelMargin = 10;
constexpr int StripOverhang = 10;
constexpr int FretboardExtraHeight = 14;
constexpr int TrackChooserGap = 16;

void layOutFretboard(WindowLayout& layout) {
    Rect& neck = layout.picFretboard;
    const Rect& page = layout.picDocument;
    const Rect& strip = layout.picStandardNotation;
    neck.height = layout.stripShown ? strip.height + page.height + FretboardExtraHeight : page.height;
    neck.top = layout.stripShown ? strip.top : page.top;
    neck.left = page.width + ScrollBarWidth;
}

} // namespace

WindowLayout layOutWindow(WindowLayout layout, int clientWidth, int clientHeight, int visibleStaves) {
    Rect& page = layout.picDocument;
    layout.StatusBar1 = {0, clientHeight - StatusBarHeight, clientWidth, StatusBarHeight};
    if (clientWidth > NarrowestFollowedWidth) {
        page.width =
            clientWidth - layout.VScroll1.width - (layout.fretboardShown ? layout.picFretboard.width : 0);
        layout.lbldebug.left = page.width - layout.lbldebug.width - DebugLabelMargin;
    }
    layout.lbldebug.top = layout.StatusBar1.top + 1;
    if (visibleStaves >= 1) page.height = std::max(clientHeight - page.top - StatusBarHeight, 1);
    layout.picStandardNotation.width = page.width + layout.VScroll1.width + StripOverhang;
    layout.VScroll1.height = page.height;
    layout.VScroll1.left = page.left + page.width;
    if (layout.fretboardShown) layOutFretboard(layout);
    // A low window has a low list: its lower edge keeps its place.
    layout.picTrackChooser.height = std::clamp(clientHeight - TrackChooserGap, 1, TrackChooserHeight);
    layout.picTrackChooser.top = clientHeight - layout.picTrackChooser.height - TrackChooserGap;
    return layout;
}

namespace {

constexpr int BarHeights = StripTop + StatusBarHeight;
constexpr int LargestSurfaceScale = 4;

int scaled(int length, int percent) {
    return static_cast<int>(std::lround(static_cast<double>(length) * percent / UnzoomedPercent));
}

// The largest length that is not longer than this one when it is zoomed.
int unzoomed(int length, int percent) {
    return static_cast<int>(static_cast<std::int64_t>(length) * UnzoomedPercent / percent);
}

} // namespace

Rect zoomed(const Rect& place, int percent) {
    if (percent == UnzoomedPercent) return place;
    const int left = scaled(place.left, percent);
    const int top = scaled(place.top - StripTop, percent) + StripTop;
    return {left, top, scaled(place.right(), percent) - left,
            scaled(place.bottom() - StripTop, percent) + StripTop - top};
}

int unzoomedWidth(int width, int percent) { return unzoomed(width, percent); }

int unzoomedHeight(int height, int percent) { return unzoomed(height - BarHeights, percent) + BarHeights; }

int surfaceScale(double pixelRatio, int percent) {
    const double wanted = std::ceil(pixelRatio * percent / UnzoomedPercent - 0.001);
    return std::clamp(static_cast<int>(wanted), 1, LargestSurfaceScale);
}

WindowLayout withStrip(WindowLayout layout, bool shown) {
    layout.stripShown = shown;
    layout.picDocument.top = shown ? PageTopWithStrip : PageTopWithoutStrip;
    layout.VScroll1.top = layout.picDocument.top;
    return layout;
}

} // namespace tabrova
