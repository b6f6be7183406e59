#include "tabview/tab_view.h"

#include <algorithm>

// Resources of a static library have to be asked for once, outside any namespace.
static void registerAssets() { Q_INIT_RESOURCE(assets); }

namespace tabrova {

namespace {

constexpr QRgb StemColor = 0xFF000000;

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
    scale = std::clamp(scale, 1, FinestScale);
    if (scale == sheet_.scale()) return;
    sheet_ = loadSheet(scale);
    for (Surface* surface : {&picDocument, &picStandardNotation, &picFretboard})
        surface->setScale(scale);
}

void TabView::paint(Surface& surface, const std::vector<SpriteCopy>& copies) {
    for (const SpriteCopy& copy : copies) {
        const Surface& from = copy.from == CopyFrom::Page ? picDocument : sheet_;
        if (copy.source.right() > from.width() || copy.source.bottom() > from.height()) continue;
        StretchBlt(surface, copy.place, from, copy.source, copy.raster);
    }
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

void TabView::DrawNotationAndRhythm(const Document& document) {
    ruler_ = beatRuler(document.ColumnWidth);
    layoutNotation(notation_, document, NoteTop);
    paint(picDocument, notation_.page);
    paint(picStandardNotation, notation_.strip);
    for (const Line& stem : notation_.stems)
        fillRect(picStandardNotation, {stem.x1, stem.y2, 1, stem.y1 - stem.y2 + 1}, StemColor);
}

void TabView::DrawFretBoard(const Document& document, const FretboardColors& colors) {
    picFretboard.Cls();
    paintFretboard(picFretboard, layoutFretboard(document, picFretboard.height()), colors);
}

} // namespace tabrova
