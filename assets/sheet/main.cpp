// make_sheet OUTDIR writes picSource in its four sizes.
// make_sheet --preview FILE.png SCALE writes a mock page, for looking at the drawings, and as FILE-narrow.png
// one of narrow columns; at scale 1 also both enlarged, every pixel four by four.
#include "bends.h"
#include "notation.h"
#include "preview.h"
#include "sheet_canvas.h"
#include "tab_cells.h"
#include "tab_marks.h"

#include <QDir>
#include <QGuiApplication>
#include <QStringList>

#include <cstdio>

namespace {

constexpr int finestScale = 4;
constexpr int enlargement = 4;
constexpr int usualColumnWidth = 29;
constexpr int narrowColumnWidth = 20;

void warnOfOverlap(const QRect& place, int scale) {
    std::fprintf(stderr, "make_sheet: two drawings meet at (%d,%d) of scale %d\n", place.left(), place.top(),
                 scale);
}

QImage drawSheet(int scale) {
    sheet::SheetCanvas canvas(scale);
    sheet::drawStaffPieces(canvas);
    sheet::drawRepeats(canvas);
    sheet::drawNumberCells(canvas);
    sheet::drawSignCells(canvas);
    sheet::drawOpaqueMarks(canvas);
    sheet::drawLaidOverMarks(canvas);
    sheet::drawBends(canvas);
    sheet::drawStaves(canvas);
    sheet::drawHeads(canvas);
    sheet::drawSharp(canvas);
    sheet::drawRhythm(canvas);
    const QRect overlap = canvas.inkInOverlap();
    if (!overlap.isEmpty()) warnOfOverlap(overlap, scale);
    return canvas.image().convertToFormat(QImage::Format_RGB888);
}

QString nameOfSheet(int scale) {
    return scale == 1 ? QStringLiteral("picSource.png") : QStringLiteral("picSource@%1x.png").arg(scale);
}

bool save(const QImage& image, const QString& path) {
    if (image.save(path, "PNG")) return true;
    std::fprintf(stderr, "make_sheet: cannot write %s\n", qPrintable(path));
    return false;
}

int writeSheets(const QDir& folder) {
    for (int scale = 1; scale <= finestScale; ++scale)
        if (!save(drawSheet(scale), folder.filePath(nameOfSheet(scale)))) return 1;
    return 0;
}

QString withSuffix(const QString& path, const QString& suffix) {
    return QString(path).replace(QStringLiteral(".png"), suffix + QStringLiteral(".png"));
}

bool savePreview(const QImage& page, const QString& path, int scale) {
    if (!save(page, path)) return false;
    if (scale > 1) return true;
    return save(page.scaled(page.size() * enlargement), withSuffix(path, QStringLiteral("-enlarged")));
}

int writePreview(const QString& path, int scale) {
    if (scale < 1 || scale > finestScale) {
        std::fprintf(stderr, "make_sheet: the scale is 1 to 4\n");
        return 2;
    }
    const QImage drawnSheet = drawSheet(scale);
    const bool saved = savePreview(sheet::previewPage(drawnSheet, scale, usualColumnWidth), path, scale) &&
                       savePreview(sheet::previewPage(drawnSheet, scale, narrowColumnWidth),
                                   withSuffix(path, QStringLiteral("-narrow")), scale);
    return saved ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QLatin1String("--preview"))
        return writePreview(arguments[2], arguments[3].toInt());
    if (arguments.size() == 2) return writeSheets(QDir(arguments[1]));
    std::fprintf(stderr, "usage: make_sheet OUTDIR | make_sheet --preview FILE SCALE\n");
    return 2;
}
