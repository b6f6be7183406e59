#include "tabview/tab_view.h"

#include <algorithm>
#include <utility>

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

void TabView::paint(Surface& surface, Redrawing& redrawing, const std::vector<SpriteCopy>& copies) {
    for (const SpriteCopy& copy : copies) {
        const Surface& from = copy.from == CopyFrom::Page ? picDocument : sheet_;
        if (copy.source.right() > from.width() || copy.source.bottom() > from.height()) continue;
        StretchBlt(surface, copy.place, from, copy.source, copy.raster);
        redrawing.add(copy);
    }
}

// One that is started again before its end still tells what is different from the first start.
void Redrawing::start(Surface& surface) {
    if (!changedBefore_) {
        changedBefore_ = surface.takeChanged();
        std::swap(now_, before_);
    }
    now_.start(surface.width(), surface.height(), surface.background());
    surface.Cls();
}

void Redrawing::end(Surface& surface) {
    if (!changedBefore_) return;
    surface.takeChanged();
    surface.drawOn(*changedBefore_);
    surface.drawOn(now_.difference(before_));
    changedBefore_.reset();
}

void TabView::startRedraw() {
    page_.start(picDocument);
    strip_.start(picStandardNotation);
}

void TabView::endRedraw() {
    page_.end(picDocument);
    strip_.end(picStandardNotation);
}

void TabView::copyToPage(const SpriteCopy& copy) {
    page_.add(copy);
    StretchBlt(picDocument, copy.place, sheet_, copy.source, copy.raster);
}

int TabView::drawStaves(const Document& document) {
    const int pageRow = layoutPage(copies_, document, picDocument.width());
    paint(picDocument, page_, copies_);
    return pageRow;
}

void TabView::drawStripBackground() {
    paint(picStandardNotation, strip_, stripBackground(picDocument.width()));
}

void TabView::DrawNotationAndRhythm(const Document& document) {
    ruler_ = beatRuler(document.ColumnWidth);
    layoutNotation(notation_, document, NoteTop);
    paint(picDocument, page_, notation_.page);
    paint(picStandardNotation, strip_, notation_.strip);
    for (const Line& stem : notation_.stems) {
        const Rect place = {stem.x1, stem.y2, 1, stem.y1 - stem.y2 + 1};
        fillRect(picStandardNotation, place, StemColor);
        strip_.add({place, {}});
    }
}

void TabView::DrawFretBoard(const Document& document, const FretboardColors& colors) {
    picFretboard.Cls();
    paintFretboard(picFretboard, layoutFretboard(document, picFretboard.height()), colors);
}

} // namespace tabrova
