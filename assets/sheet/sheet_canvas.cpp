// How a cell is drawn apart from the sheet and laid onto it, and the few strokes that all share.
#include "sheet_canvas.h"

namespace sheet {

SheetCanvas::SheetCanvas(int scale)
    : scale_(scale), image_(sheetWidth * scale, sheetHeight * scale, QImage::Format_RGB32) {
    image_.fill(Qt::white);
}

void SheetCanvas::paint(const QRect& cell, const std::function<void(QPainter&)>& draw) {
    QImage piece(cell.size() * scale_, QImage::Format_RGB32);
    piece.fill(Qt::white);
    QPainter piecePainter(&piece);
    piecePainter.setRenderHint(QPainter::Antialiasing);
    piecePainter.scale(scale_, scale_);
    draw(piecePainter);
    piecePainter.end();

    QPainter sheetPainter(&image_);
    sheetPainter.setCompositionMode(QPainter::CompositionMode_Darken);
    sheetPainter.drawImage(cell.topLeft() * scale_, piece);
}

void drawPixels(QPainter& painter, const QPoint& at, const PixelRows& rows) {
    int y = at.y();
    for (const std::string_view row : rows) {
        int x = at.x();
        for (const char mark : row) {
            if (mark == '#') painter.fillRect(QRect(x, y, 1, 1), ink);
            ++x;
        }
        ++y;
    }
}

void drawStringLine(QPainter& painter, int row, int left, int width) {
    painter.fillRect(QRect(left, row, width, 1), stringGrey);
}

void strokePath(QPainter& painter, const QPainterPath& path, double width, Qt::PenCapStyle ends) {
    QPen pen(ink, width);
    pen.setCapStyle(ends);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.strokePath(path, pen);
}

} // namespace sheet
