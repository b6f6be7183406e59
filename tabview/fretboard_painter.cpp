#include "tabview/fretboard_painter.h"

#include <QFont>
#include <QPainter>

#include <algorithm>

namespace tabrova {

namespace {

constexpr QRgb Black = 0xFF000000;
constexpr int NeckLeft = 20;
constexpr int NeckRight = 70;
constexpr int LabelLeft = 4;
constexpr int DotReach = 5;

// Where the named font is not installed, one of the machine's with figures as wide takes its place.
QFont labelFont(int pixels) {
    QFont font;
    font.setFamilies({"Tahoma", "Verdana", "DejaVu Sans", "Noto Sans"});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    return font;
}

// In image pixels, so that the figures are fitted to the screen's grid.
void paintLabels(Surface& surface, const FretboardLayout& layout) {
    QPainter painter(&surface.image());
    const int scale = surface.scale();
    painter.setFont(labelFont(layout.labelPixels * scale));
    const int baseline = (layout.labelPixels + 2) / 3; // below the fret's line: figures stand across it
    painter.setPen(QColor(Black));
    for (const NeckFret& fret : layout.frets)
        if (fret.labelled)
            painter.drawText(LabelLeft * scale, (fret.y + baseline) * scale, QString::number(fret.number));
}

void paintNeck(Surface& surface, const FretboardLayout& layout, QRgb inlayColor) {
    for (const NeckFret& fret : layout.frets) {
        fillRect(surface, {NeckLeft, fret.y, NeckRight - NeckLeft + 1, 1}, Black);
        if (fret.inlay) fillRect(surface, *fret.inlay, inlayColor);
    }
    for (const Line& string : layout.strings) {
        const auto [top, bottom] = std::minmax(string.y1, string.y2);
        fillRect(surface, {string.x1, top, 1, bottom - top + 1}, Black);
    }
}

// A dot's middle is that of its string's line, or the image pixel's edge next to it, so that the ring is
// sharp.
void DrawNotesOnToFretBoard(Surface& surface, const FretboardLayout& layout, QRgb color) {
    QPainter painter(&surface.image());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int scale = surface.scale();
    const auto point = [&](const NeckDot& dot, int penWidth, QRgb penColor) {
        painter.setBrush(QColor(penColor));
        const QPoint middle(dot.x * scale + scale / 2, dot.y * scale + scale / 2);
        painter.drawEllipse(QPointF(middle), penWidth * scale / 2.0, penWidth * scale / 2.0);
    };
    for (const NeckDot& dot : layout.dots) {
        if (dot.y < -DotReach || dot.y > surface.height() + DotReach) continue;
        point(dot, 10, Black);
        point(dot, 8, color);
    }
}

} // namespace

void paintFretboard(Surface& surface, const FretboardLayout& layout, const FretboardColors& colors) {
    paintNeck(surface, layout, colors.inlay);
    paintLabels(surface, layout);
    DrawNotesOnToFretBoard(surface, layout, colors.dot);
}

} // namespace tabrova
