#include "tabview/tab_view.h"

#include <algorithm>

// Resources of a static library have to be asked for once, outside any namespace.
static void registerAssets() { Q_INIT_RESOURCE(assets); }

namespace tabrova {

namespace {

constexpr int StripHeight = 168;
constexpr int FretboardWidth = 89;

} // namespace

Surface loadSheet(int scale) {
    registerAssets();
    const QString suffix = scale == 1 ? QString() : QString("@%1x").arg(scale);
    // The reader would take "@2x" for a device pixel ratio of its own; pixels are all that counts here.
    QImage image(":/assets/picSource" + suffix + ".png");
    image.setDevicePixelRatio(1.0);
    return Surface(image, scale);
}

TabView::TabView()
    : picDocument(1, 1, PaperColor), picStandardNotation(1, StripHeight, WhitePaper),
      picFretboard(FretboardWidth, 1, PaperColor), sheet_(loadSheet(1)) {}

void TabView::setScale(int scale) {
    scale = std::clamp(scale, 1, 3);
    if (scale == sheet_.scale()) return;
    sheet_ = loadSheet(scale);
    for (Surface* surface : {&picDocument, &picStandardNotation, &picFretboard})
        surface->setScale(scale);
}

void TabView::paint(Surface& surface, const std::vector<SpriteCopy>& copies) {
    for (const SpriteCopy& copy : copies)
        StretchBlt(surface, copy.place, sheet_, copy.source, copy.raster);
}

void TabView::copyToPage(const SpriteCopy& copy) {
    StretchBlt(picDocument, copy.place, sheet_, copy.source, copy.raster);
}

int TabView::drawStaves(const Document& document) {
    const int pageRow = layoutPage(copies_, document, picDocument.width());
    paint(picDocument, copies_);
    return pageRow;
}

void TabView::drawStripBackground() { paint(picStandardNotation, stripBackground(picDocument.width())); }

void TabView::DrawNotationAndRhythm(const Document& document) { ruler_ = beatRuler(document.ColumnWidth); }

void TabView::DrawFretBoard(const Document&) {}

} // namespace tabrova
