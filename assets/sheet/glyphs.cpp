// The shapes of digits and letters. A stroke shape is given in a box that starts half a stroke
// inside the glyph's own, with all straight strokes on half units: they fall on whole pixels.
#include "glyphs.h"

#include <array>

namespace sheet {

namespace {

const std::array<PixelRows, 10> wideDigits{{
    {".###.", "#...#", "#...#", "#...#", "#...#", "#...#", ".###."},
    {"..#..", ".##..", "#.#..", "..#..", "..#..", "..#..", "#####"},
    {".###.", "#...#", "....#", "...#.", "..#..", ".#...", "#####"},
    {".###.", "#...#", "....#", "..##.", "....#", "#...#", ".###."},
    {"...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#."},
    {"#####", "#....", "####.", "....#", "....#", "#...#", ".###."},
    {".###.", "#....", "#....", "####.", "#...#", "#...#", ".###."},
    {"#####", "....#", "...#.", "...#.", "..#..", "..#..", "..#.."},
    {".###.", "#...#", "#...#", ".###.", "#...#", "#...#", ".###."},
    {".###.", "#...#", "#...#", ".####", "....#", "....#", ".###."},
}};

const std::array<PixelRows, 10> narrowDigits{{
    {".##.", "#..#", "#..#", "#..#", "#..#", "#..#", ".##."},
    {"..#.", ".##.", "#.#.", "..#.", "..#.", "..#.", "..#."},
    {".##.", "#..#", "...#", "..#.", ".#..", "#...", "####"},
    {".##.", "#..#", "...#", ".##.", "...#", "#..#", ".##."},
    {"..#.", ".##.", ".##.", "#.#.", "####", "..#.", "..#."},
    {"####", "#...", "###.", "...#", "...#", "#..#", ".##."},
    {".##.", "#...", "#...", "###.", "#..#", "#..#", ".##."},
    {"####", "...#", "...#", "..#.", "..#.", ".#..", ".#.."},
    {".##.", "#..#", "#..#", ".##.", "#..#", "#..#", ".##."},
    {".##.", "#..#", "#..#", ".###", "...#", "...#", ".##."},
}};

const PixelRows halfPixels{".#...#..", "##...#..", ".#..#...", ".#..###.",
                           "...#...#", "...#.##.", "..#.####"};

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

QPainterPath strokesOfFour(double width) {
    QPainterPath path;
    path.moveTo(width - 1, 6);
    path.lineTo(width - 1, 0);
    path.lineTo(0, 4);
    path.lineTo(width, 4);
    return path;
}

QPainterPath strokesOfFive(double width) {
    QPainterPath path;
    path.moveTo(width - 0.3, 0);
    path.lineTo(0, 0);
    path.lineTo(0, 2.5);
    path.cubicTo(width * 0.5, 1.8, width, 2.4, width, 4);
    path.cubicTo(width, 6.6, 0.2, 6.6, 0, 5);
    return path;
}

QPainterPath strokesOfSix(double width) {
    QPainterPath path = bowl(0, 2.5, width, 6);
    path.moveTo(0, 4.25);
    path.cubicTo(0, 1.2, width * 0.3, 0, width - 0.4, 0);
    return path;
}

QPainterPath strokesOfSeven(double width) {
    QPainterPath path;
    path.moveTo(0, 0);
    path.lineTo(width, 0);
    path.cubicTo(width - 0.2, 1.2, width * 0.4, 3, width * 0.4, 6);
    return path;
}

QPainterPath strokesOfEight(double width) {
    QPainterPath path = bowl(0.2, 0, width - 0.2, 3);
    path.addPath(bowl(0, 3, width, 6));
    return path;
}

QPainterPath strokesOfNine(double width) {
    QTransform turn;
    turn.translate(width, 6);
    turn.rotate(180);
    return turn.map(strokesOfSix(width));
}

QPainterPath strokesOfDigit(char digit, double width) {
    switch (digit) {
    case '0':
        return bowl(0, 0, width, 6);
    case '1':
        return strokesOfOne(width);
    case '2':
        return strokesOfTwo(width);
    case '3':
        return strokesOfThree(width);
    case '4':
        return strokesOfFour(width);
    case '5':
        return strokesOfFive(width);
    case '6':
        return strokesOfSix(width);
    case '7':
        return strokesOfSeven(width);
    case '8':
        return strokesOfEight(width);
    default:
        return strokesOfNine(width);
    }
}

void strokeGlyph(QPainter& painter, const QPainterPath& strokes, const QPoint& at, double width,
                 Qt::PenCapStyle ends = Qt::SquareCap) {
    strokePath(painter, strokes.translated(at.x() + 0.5, at.y() + 0.5), width, ends);
}

PixelRows pixelsOfLetter(char letter) {
    switch (letter) {
    case 'H':
        return {"#...#", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"};
    case 'a':
        return {"....", "....", ".##.", "...#", ".###", "#..#", ".###"};
    case 'S':
        return {".###.", "#...#", "#....", ".###.", "....#", "#...#", ".###."};
    case 'P':
        return {"####.", "#...#", "#...#", "####.", "#....", "#....", "#...."};
    default:
        return {"..", "..", "..", "..", "..", "##", "##"};
    }
}

QPainterPath strokesOfA() {
    QPainterPath path;
    path.moveTo(0.4, 2.2);
    path.cubicTo(1.6, 1.7, 3, 1.7, 3, 3.4);
    path.lineTo(3, 6);
    path.addPath(bowl(0, 3.8, 3, 6));
    return path;
}

QPainterPath strokesOfS() {
    QPainterPath path;
    path.moveTo(4, 1.2);
    path.cubicTo(3.6, -0.5, 0, -0.5, 0, 1.5);
    path.cubicTo(0, 3.4, 4, 2.6, 4, 4.5);
    path.cubicTo(4, 6.5, 0.3, 6.5, 0, 4.8);
    return path;
}

QPainterPath strokesOfP() {
    QPainterPath path;
    path.moveTo(0, 6);
    path.lineTo(0, 0);
    path.lineTo(2.4, 0);
    path.cubicTo(4.5, 0, 4.5, 3.5, 2.4, 3.5);
    path.lineTo(0, 3.5);
    return path;
}

QPainterPath strokesOfH() {
    QPainterPath path;
    path.moveTo(0, 0);
    path.lineTo(0, 6);
    path.moveTo(4, 0);
    path.lineTo(4, 6);
    path.moveTo(0, 3);
    path.lineTo(4, 3);
    return path;
}

} // namespace

void drawDigit(QPainter& painter, int scale, char digit, DigitWidth width, const QPoint& at) {
    const auto index = static_cast<std::size_t>(digit - '0');
    if (scale == 1) {
        drawPixels(painter, at, width == DigitWidth::Wide ? wideDigits[index] : narrowDigits[index]);
        return;
    }
    // Longer ends would close the open sides of the three, and make an eight of it.
    const Qt::PenCapStyle ends = digit == '3' ? Qt::FlatCap : Qt::SquareCap;
    strokeGlyph(painter, strokesOfDigit(digit, static_cast<int>(width) - 1), at, 1, ends);
}

void drawHalf(QPainter& painter, int scale, const QPoint& at) {
    if (scale == 1) {
        drawPixels(painter, at, halfPixels);
        return;
    }
    const double thin = 0.75;
    QPainterPath path;
    path.moveTo(1, 2.9);
    path.lineTo(1, 0);
    path.moveTo(0, 0.9);
    path.lineTo(0.7, 0.3);
    path.moveTo(5, 0);
    path.lineTo(2.2, 6);
    strokeGlyph(painter, path, at, thin);
    QPainterPath two;
    two.moveTo(4.6, 3.9);
    two.cubicTo(4.8, 2.6, 7, 2.6, 7, 4.0);
    two.cubicTo(7, 4.8, 4.8, 5.2, 4.6, 6);
    two.lineTo(7, 6);
    strokeGlyph(painter, two, at, thin);
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
