// How a cell is drawn apart from the sheet and laid onto it, and the few strokes that all share.
#include "sheet_canvas.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace sheet {

namespace {

// The greys of the cells that are copied bit by bit. The bits of each contain those of the one before it, so
// that of two greys that meet the darker one is left; other pairs would leave spots darker than both. The
// greys of the string line and of the staff lines are among them.
constexpr std::array<int, 6> nestedGreys{0x00, 0x80, 0x90, 0xD0, 0xF0, 0xFF};

int nearestNestedGrey(int grey) {
    return *std::min_element(nestedGreys.begin(), nestedGreys.end(), [grey](int one, int other) {
        return std::abs(one - grey) < std::abs(other - grey);
    });
}

void keepNestedGreys(QImage& piece) {
    for (int y = 0; y < piece.height(); ++y)
        for (int x = 0; x < piece.width(); ++x) {
            const int grey = nearestNestedGrey(qGray(piece.pixel(x, y)));
            piece.setPixel(x, y, qRgb(grey, grey, grey));
        }
}

} // namespace

SheetCanvas::SheetCanvas(int scale)
    : scale_(scale), image_(sheetWidth * scale, sheetHeight * scale, QImage::Format_RGB32) {
    image_.fill(Qt::white);
}

void SheetCanvas::paint(const QRect& cell, Copying copying, const std::function<void(QPainter&)>& draw) {
    QImage piece(cell.size() * scale_, QImage::Format_RGB32);
    piece.fill(Qt::white);
    QPainter piecePainter(&piece);
    piecePainter.setRenderHint(QPainter::Antialiasing);
    piecePainter.scale(scale_, scale_);
    draw(piecePainter);
    piecePainter.end();
    if (copying == Copying::And) keepNestedGreys(piece);

    QPainter sheetPainter(&image_);
    sheetPainter.setCompositionMode(QPainter::CompositionMode_Darken);
    sheetPainter.drawImage(cell.topLeft() * scale_, piece);
    cells_.push_back(cell);
}

bool SheetCanvas::isBlank(const QRect& place) const {
    for (int y = place.top() * scale_; y < (place.top() + place.height()) * scale_; ++y)
        for (int x = place.left() * scale_; x < (place.left() + place.width()) * scale_; ++x)
            if (image_.pixel(x, y) != qRgb(255, 255, 255)) return false;
    return true;
}

QRect SheetCanvas::inkInOverlap() const {
    for (auto one = cells_.begin(); one != cells_.end(); ++one)
        for (auto other = std::next(one); other != cells_.end(); ++other) {
            const QRect shared = one->intersected(*other);
            if (!shared.isEmpty() && !isBlank(shared)) return shared;
        }
    return {};
}

void drawPixels(QPainter& painter, const QPoint& at, const PixelRows& rows) {
    int y = at.y();
    for (const std::string_view row : rows) {
        int x = at.x();
        for (const char mark : row) {
            if (mark == '#') painter.fillRect(QRect(x, y, 1, 1), ink);
            if (mark == '+') painter.fillRect(QRect(x, y, 1, 1), softInk);
            if (mark == '-') painter.fillRect(QRect(x, y, 1, 1), lightInk);
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
