// make_sheet OUTDIR writes picSource in its three sizes.
// make_sheet --preview FILE.png SCALE writes a mock page, for looking at the drawings; at scale 1
// also FILE-enlarged.png, every pixel four by four.
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

constexpr int enlargement = 4;

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
    for (const int scale : {1, 2, 3})
        if (!save(drawSheet(scale), folder.filePath(nameOfSheet(scale)))) return 1;
    return 0;
}

int writePreview(const QString& path, int scale) {
    if (scale < 1 || scale > 3) {
        std::fprintf(stderr, "make_sheet: the scale is 1, 2 or 3\n");
        return 2;
    }
    const QImage page = sheet::previewPage(drawSheet(scale), scale);
    if (!save(page, path)) return 1;
    if (scale > 1) return 0;
    const QString enlargedPath =
        QString(path).replace(QStringLiteral(".png"), QStringLiteral("-enlarged.png"));
    return save(page.scaled(page.size() * enlargement), enlargedPath) ? 0 : 1;
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
