#include "workbench/window_layout.h"

#include <algorithm>

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

WindowLayout withStrip(WindowLayout layout, bool shown) {
    layout.stripShown = shown;
    layout.picDocument.top = shown ? PageTopWithStrip : PageTopWithoutStrip;
    layout.VScroll1.top = layout.picDocument.top;
    return layout;
}

} // namespace tabrova
