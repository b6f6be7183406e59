// The shapes of the marks' digits and letters. A stroke shape is given in a box that starts half a stroke
// inside the glyph's own, with all straight strokes on half units: they fall on whole pixels.
#include "glyphs.h"

#include <array>

namespace sheet {

namespace {

// '1' to '3'.
const std::array<PixelRows, 3> tallDigits{{
    {"..#.", ".##.", "#.#.", "..#.", "..#.", "..#.", "..#."},
    {".##.", "#..#", "...#", "..#.", ".#..", "#...", "####"},
    {".##.", "#..#", "...#", ".##.", "...#", "#..#", ".##."},
}};

const std::array<PixelRows, 3> smallDigits{{
    {".#.", "##.", ".#.", ".#.", "###"},
    {"##.", "..#", ".#.", "#..", "###"},
    {"##.", "..#", ".#.", "..#", "##."},
}};

const PixelRows halfPixels{"#...#..", "#..#...", "#..#...", "#.#.##.", "..#...#", ".#...#.", ".#..###"};

QPainterPath bowl(double left, double top, double right, double bottom) {
    const double radius = std::min(right - left, bottom - top) / 2;
    QPainterPath path;
    path.addRoundedRect(QRectF(left, top, right - left, bottom - top), radius, radius);
    return path;
}

QPainterPath strokesOfOne(double width) {
    QPainterPath path;
    path.moveTo(2, 6);
    path.lineTo(2, 0);
    path.moveTo(width < 4 ? 0.3 : 0.5, 1.7);
    path.lineTo(1.7, 0.5);
    return path;
}

QPainterPath strokesOfTwo(double width) {
    QPainterPath path;
    path.moveTo(0, 1.6);
    path.cubicTo(0, -0.55, width, -0.55, width, 1.7);
    path.cubicTo(width, 3.2, 0, 4.2, 0, 6);
    path.lineTo(width, 6);
    return path;
}

QPainterPath strokesOfThree(double width) {
    QPainterPath path;
    path.moveTo(-0.2, 1.2);
    path.cubicTo(0.2, -0.4, width - 0.1, -0.4, width - 0.1, 1.4);
    path.cubicTo(width - 0.1, 2.4, width - 0.8, 2.9, width * 0.5, 2.9);
    path.moveTo(width * 0.5, 2.9);
    path.cubicTo(width - 0.5, 2.9, width, 3.5, width, 4.5);
    path.cubicTo(width, 6.4, 0.2, 6.4, -0.2, 4.8);
    return path;
}

QPainterPath strokesOfDigit(char digit, double width) {
    switch (digit) {
    case '1':
        return strokesOfOne(width);
    case '2':
        return strokesOfTwo(width);
    default:
        return strokesOfThree(width);
    }
}

void strokeGlyph(QPainter& painter, const QPainterPath& strokes, const QPoint& at, double width,
                 Qt::PenCapStyle ends = Qt::SquareCap) {
    strokePath(painter, strokes.translated(at.x() + 0.5, at.y() + 0.5), width, ends);
}

PixelRows pixelsOfLetter(char letter) {
    switch (letter) {
    case 'H':
        return {"#..#", "#..#", "####", "#..#", "#..#", "#..#"};
    case 'a':
        return {"....", "....", ".###", "#..#", "#..#", ".###"};
    case 'S':
        return {".###", "#...", ".#..", "..#.", "...#", "###."};
    case 'P':
        return {"###.", "#..#", "#..#", "###.", "#...", "#..."};
    default:
        return {"..", "..", "..", "..", "##", "##"};
    }
}

QPainterPath strokesOfA() {
    QPainterPath path = bowl(0, 2, 3, 5);
    path.moveTo(3, 2);
    path.lineTo(3, 5);
    return path;
}

QPainterPath strokesOfS() {
    QPainterPath path;
    path.moveTo(3.1, 0.8);
    path.cubicTo(2.4, -0.4, 0, -0.3, 0, 1.3);
    path.cubicTo(0, 2.9, 3.1, 2.1, 3.1, 3.8);
    path.cubicTo(3.1, 5.4, 0.6, 5.4, -0.1, 4.2);
    return path;
}

QPainterPath strokesOfP() {
    QPainterPath path;
    path.moveTo(0, 5);
    path.lineTo(0, 0);
    path.lineTo(1.6, 0);
    path.cubicTo(3.5, 0, 3.5, 3, 1.6, 3);
    path.lineTo(0, 3);
    return path;
}

QPainterPath strokesOfH() {
    QPainterPath path;
    path.moveTo(0, 0);
    path.lineTo(0, 5);
    path.moveTo(3, 0);
    path.lineTo(3, 5);
    path.moveTo(0, 2.5);
    path.lineTo(3, 2.5);
    return path;
}

// The strokes of a small digit are those of a large one, pressed together before the pen follows them.
void strokeSmallDigit(QPainter& painter, char digit, const QPoint& at) {
    const QPainterPath strokes = QTransform::fromScale(1, 4.0 / 6).map(strokesOfDigit(digit, 2));
    strokeGlyph(painter, strokes, at, 0.9, Qt::FlatCap);
}

} // namespace

void drawDigit(QPainter& painter, int scale, char digit, DigitSize size, const QPoint& at) {
    if (scale == 1) {
        const auto& pixels = size == DigitSize::Tall ? tallDigits : smallDigits;
        drawPixels(painter, at, pixels[static_cast<std::size_t>(digit - '1')]);
        return;
    }
    if (size == DigitSize::Small) {
        strokeSmallDigit(painter, digit, at);
        return;
    }
    // Longer ends would close the open sides of the three, and make an eight of it.
    const Qt::PenCapStyle ends = digit == '3' ? Qt::FlatCap : Qt::SquareCap;
    strokeGlyph(painter, strokesOfDigit(digit, 3), at, 1, ends);
}

void drawHalf(QPainter& painter, int scale, const QPoint& at) {
    if (scale == 1) {
        drawPixels(painter, at, halfPixels);
        return;
    }
    QPainterPath path;
    path.moveTo(0, 2.9);
    path.lineTo(0, 0);
    path.lineTo(-0.5, 0.7);
    path.moveTo(4, 0);
    path.lineTo(1.2, 6);
    path.moveTo(3.6, 3.9);
    path.cubicTo(3.8, 2.6, 6, 2.6, 6, 4.0);
    path.cubicTo(6, 4.8, 3.8, 5.2, 3.6, 6);
    path.lineTo(6, 6);
    strokeGlyph(painter, path, at, 0.8);
}

void drawLetter(QPainter& painter, int scale, char letter, const QPoint& at) {
    if (scale == 1 || letter == '.') {
        drawPixels(painter, at, pixelsOfLetter(letter));
        return;
    }
    const QPainterPath strokes = letter == 'H'   ? strokesOfH()
                                 : letter == 'a' ? strokesOfA()
                                 : letter == 'S' ? strokesOfS()
                                                 : strokesOfP();
    strokeGlyph(painter, strokes, at, 1);
}

} // namespace sheet
