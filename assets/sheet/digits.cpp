// Bold digits of seven rows. How wide a digit is depends on its neighbour: a one is narrow and leaves five
// columns to the other digit; any other two share the nine columns with one between them.
#include "digits.h"

#include <array>

namespace sheet {

namespace {

// Uprights two pixels wide.
const std::array<PixelRows, 10> broadPixels{{
    {".####.", "##..##", "##..##", "##..##", "##..##", "##..##", ".####."},
    {"...##.", "..###.", ".####.", "...##.", "...##.", "...##.", "...##."},
    {".####.", "##..##", "....##", "...##.", "..##..", ".##...", "######"},
    {".####.", "##..##", "....##", "..###.", "....##", "##..##", ".####."},
    {"....##", "...###", "..#.##", ".#..##", "######", "....##", "....##"},
    {"######", "##....", "#####.", "....##", "....##", "##..##", ".####."},
    {".####.", "##....", "##....", "#####.", "##..##", "##..##", ".####."},
    {"######", "....##", "...##.", "...##.", "..##..", "..##..", "..##.."},
    {".####.", "##..##", "##..##", ".####.", "##..##", "##..##", ".####."},
    {".####.", "##..##", "##..##", ".#####", "....##", "....##", ".####."},
}};

const std::array<PixelRows, 10> mediumPixels{{
    {".###.", "##.##", "##.##", "##.##", "##.##", "##.##", ".###."},
    {".##", "###", ".##", ".##", ".##", ".##", ".##"},
    {".###.", "##.##", "...##", "..##.", ".##..", "##...", "#####"},
    {".###.", "##.##", "...##", ".###.", "...##", "##.##", ".###."},
    {"...##", "..###", ".#.##", "#..##", "#####", "...##", "...##"},
    {"#####", "##...", "####.", "...##", "...##", "##.##", ".###."},
    {".###.", "##...", "##...", "####.", "##.##", "##.##", ".###."},
    {"#####", "...##", "...##", "..##.", "..##.", ".##..", ".##.."},
    {".###.", "##.##", "##.##", ".###.", "##.##", "##.##", ".###."},
    {".###.", "##.##", "##.##", ".####", "...##", "...##", ".###."},
}};

// A light grey in a counter of two columns makes its sides look bolder and leaves it open.
const std::array<PixelRows, 10> narrowPixels{{
    {"+##+", "#--#", "#--#", "#--#", "#--#", "#--#", "+##+"},
    {".##", "###", ".##", ".##", ".##", ".##", ".##"},
    {"+##.", "..##", "..##", ".##+", "##..", "##..", "####"},
    {"###.", "..##", "..##", ".##+", "..##", "..##", "###."},
    {"#.##", "#.##", "#.##", "####", "..##", "..##", "..##"},
    {"####", "##..", "###.", "..##", "..##", "..##", "###."},
    {"+##+", "#+..", "#+..", "###+", "#--#", "#--#", "+##+"},
    {"####", "..##", "..##", ".##.", ".##.", "##..", "##.."},
    {"+##+", "#--#", "#--#", "+##+", "#--#", "#--#", "+##+"},
    {"+##+", "#--#", "#--#", "+###", "..+#", "..+#", "+##+"},
}};

constexpr double weight = 1.5;
// The box of the pen's middle: half a pen less than the digit on every side.
constexpr double lowest = 7 - weight;
constexpr double overhang = weight / 2;
constexpr int widthOfOne = 3;

QPainterPath bowl(double left, double top, double right, double bottom) {
    const double radius = std::min(right - left, bottom - top) / 2;
    QPainterPath path;
    path.addRoundedRect(QRectF(left, top, right - left, bottom - top), radius, radius);
    return path;
}

QPainterPath strokesOfTwo(double width) {
    QPainterPath path;
    path.moveTo(0, 1.6);
    path.cubicTo(0, -0.55, width, -0.55, width, 1.5);
    path.cubicTo(width, 2.9, 0, 3.6, 0, lowest);
    path.lineTo(width + overhang, lowest);
    return path;
}

QPainterPath strokesOfThree(double width) {
    QPainterPath path;
    path.moveTo(-0.1, 1.1);
    path.cubicTo(0.2, -0.35, width - 0.1, -0.4, width - 0.1, 1.25);
    path.cubicTo(width - 0.1, 2.2, width - 0.8, 2.5, width * 0.35, 2.5);
    path.moveTo(width * 0.35, 2.5);
    path.cubicTo(width - 0.5, 2.5, width, 3.0, width, 4.0);
    path.cubicTo(width, 6.0, 0.2, 6.0, -0.1, 4.4);
    return path;
}

QPainterPath strokesOfFour(double width) {
    const double stem = width < 3 ? width - 0.5 : width - 1;
    QPainterPath path;
    path.moveTo(stem, lowest + overhang);
    path.lineTo(stem, -overhang);
    path.moveTo(-overhang, 4);
    path.lineTo(width + overhang, 4);
    return path;
}

QPainterPath strokesOfFive(double width) {
    QPainterPath path;
    path.moveTo(width + 0.5, 0);
    path.lineTo(0, 0);
    path.lineTo(0, 2.7);
    path.cubicTo(width * 0.4, 1.7, width, 1.9, width, 3.75);
    path.cubicTo(width, 6.1, 0.2, 6.1, -0.1, 4.5);
    return path;
}

QPainterPath strokesOfSix(double width) {
    QPainterPath path = bowl(0, 2, width, lowest);
    path.moveTo(0, 3.75);
    path.cubicTo(0, 1.2, width * 0.3, 0, width + 0.3, 0);
    return path;
}

QPainterPath strokesOfSeven(double width) {
    QPainterPath path;
    path.moveTo(-overhang, 0);
    path.lineTo(width, 0);
    path.cubicTo(width - 0.2, 1.4, width * 0.35, 2.8, width * 0.35, lowest + overhang);
    return path;
}

QPainterPath strokesOfEight(double width) {
    QPainterPath path = bowl(0.15, 0, width - 0.15, 2.5);
    path.addPath(bowl(0, 2.5, width, lowest));
    return path;
}

QPainterPath strokesOfNine(double width) {
    QTransform turn;
    turn.translate(width, lowest);
    turn.rotate(180);
    return turn.map(strokesOfSix(width));
}

QPainterPath strokesOf(int digit, double width) {
    switch (digit) {
    case 0:
        return bowl(0, 0, width, lowest);
    case 2:
        return strokesOfTwo(width);
    case 3:
        return strokesOfThree(width);
    case 4:
        return strokesOfFour(width);
    case 5:
        return strokesOfFive(width);
    case 6:
        return strokesOfSix(width);
    case 7:
        return strokesOfSeven(width);
    case 8:
        return strokesOfEight(width);
    default:
        return strokesOfNine(width);
    }
}

void fillOne(QPainter& painter) {
    QPainterPath path;
    path.addPolygon(QPolygonF({{3, 0}, {3, 7}, {1.5, 7}, {1.5, 2.2}, {0, 2.9}, {0, 1.5}, {1.9, 0}}));
    painter.fillPath(path, ink);
}

// The slanting side is thinner than the pen, or it would fill the triangle that it closes.
void fillSlantOfFour(QPainter& painter, double width) {
    const double stem = width < 3 ? width - 0.5 : width - 1;
    QPainterPath path;
    path.addPolygon(
        QPolygonF({{stem, 0}, {stem + overhang, 0}, {stem + overhang, 1.2}, {1.3, 4.2}, {0, 5}, {0, 3.8}}));
    painter.fillPath(path, ink);
}

void drawDigit(QPainter& painter, int scale, int digit, int width, const QPoint& at) {
    if (scale == 1) {
        const auto& pixels = width == 6 ? broadPixels : width == 5 ? mediumPixels : narrowPixels;
        drawPixels(painter, at, pixels[static_cast<std::size_t>(digit)]);
        return;
    }
    painter.save();
    painter.translate(at);
    if (digit == 1)
        fillOne(painter);
    else
        strokePath(painter, strokesOf(digit, width - weight).translated(overhang, overhang), weight,
                   Qt::FlatCap);
    if (digit == 4) fillSlantOfFour(painter, width - weight);
    painter.restore();
}

void drawLoneDigit(QPainter& painter, int scale, int digit, const QPoint& at) {
    if (scale == 1)
        drawDigit(painter, scale, digit, 6, at + QPoint(1, 0));
    else
        drawDigit(painter, scale, digit, 5, at + QPoint(2, 0));
}

} // namespace

void drawNumber(QPainter& painter, int scale, int number, const QPoint& at) {
    const int tens = number / 10;
    const int units = number % 10;
    if (number < 10) return drawLoneDigit(painter, scale, units, at);
    if (number == 11) {
        drawDigit(painter, scale, 1, 5, at + QPoint(1, 0));
        drawDigit(painter, scale, 1, 5, at + QPoint(5, 0));
        return;
    }
    const int width = tens == 1 || units == 1 ? 5 : 4;
    const int widthOfTens = tens == 1 ? widthOfOne : width;
    drawDigit(painter, scale, tens, width, at);
    drawDigit(painter, scale, units, width, at + QPoint(widthOfTens + 1, 0));
}

} // namespace sheet
