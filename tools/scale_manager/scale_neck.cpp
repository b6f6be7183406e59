#include "tools/scale_manager/scale_neck.h"

#include "core/text/conversions.h"
#include "forms/paper.h"

namespace tabrova {

namespace {

constexpr double TwipsPerPixel = 15;
constexpr int StringGap = 6; // pixels, as all below
constexpr int Edge = 9;      // above the highest string and below the lowest
constexpr int MarkWidth = 24;
constexpr int MarkHeight = 12;
constexpr qreal MarkDiameter = 6;
constexpr std::size_t LastFret = 17; // that is drawn
constexpr int NutWidth = 3;
constexpr qreal InlaySize = 4;
constexpr std::array InlayFrets = {3, 5, 7, 9, 12, 15, 17};
constexpr int DoubleInlay = 12;
constexpr std::array StringWidths = {2.0, 1.75, 1.5, 1.25, 1.0, 1.0}; // from the lowest
constexpr QRgb BoardColor = 0xFF3E2A1C;
constexpr QRgb NutColor = 0xFFF2EBDD;
constexpr QRgb WireColor = 0xFFB9B4A8;
constexpr QRgb StringColor = 0xFFD8D4CC;
constexpr QRgb InlayColor = 0xFF8C7A66;

int pixels(int twips) { return static_cast<int>(roundHalfToEven(twips / TwipsPerPixel)); }

// The highest string is on top.
int stringY(std::size_t string) { return Edge + static_cast<int>(ScaleStrings - 1 - string) * StringGap; }

} // namespace

ScaleNeck::ScaleNeck(QWidget* parent) : QWidget(parent) {
    setObjectName("picMarkers");
    setFixedSize(pixels(RightHandedMarks.back()) + MarkWidth, 2 * Edge + (ScaleStrings - 1) * StringGap + 1);
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        for (std::size_t fret = 0; fret < ScaleMarks; ++fret) {
            auto* mark = new RoundMark(QString("%1(%2)").arg(ScaleStringTable[string].marks).arg(fret),
                                       RoundMark::Shape::Disc, PlainMarkColor, this);
            mark->resize(MarkWidth, MarkHeight);
            mark->setDiameter(MarkDiameter);
            marks_[string][fret] = mark;
        }
    setView(NeckView::RightHanded);
}

void ScaleNeck::showMarks(const ScaleDisplay& display) {
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        for (std::size_t fret = 0; fret < ScaleMarks; ++fret)
            marks_[string][fret]->setVisible(display.marks[string][fret]);
}

void ScaleNeck::setView(NeckView view) {
    view_ = view;
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        for (std::size_t fret = 0; fret < ScaleMarks; ++fret)
            marks_[string][fret]->move(pixels(markPosition(view, fret)), stringY(string) - MarkHeight / 2);
    update();
}

int ScaleNeck::wireX(std::size_t fret) const {
    return pixels(view_ == NeckView::RightHanded ? RightHandedMarks[fret + 1]
                                                 : RightHandedMarks[LastFret - fret]);
}

void ScaleNeck::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(BoardColor));
    paintInlays(painter);
    for (std::size_t fret = 1; fret <= LastFret; ++fret)
        fillSharp(painter, QRectF(wireX(fret), 0, 1, height()), WireColor);
    const int nut = wireX(0) - (view_ == NeckView::RightHanded ? NutWidth - 1 : 0);
    fillSharp(painter, QRectF(nut, 0, NutWidth, height()), NutColor);
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        fillSharp(painter,
                  QRectF(0, stringY(string) - StringWidths[string] / 2, width(), StringWidths[string]),
                  StringColor);
}

void ScaleNeck::paintInlays(QPainter& painter) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(InlayColor));
    for (const int fret : InlayFrets) {
        const auto at = static_cast<std::size_t>(fret);
        const qreal x = (wireX(at) + wireX(at - 1)) / 2.0;
        const qreal apart = fret == DoubleInlay ? 2 * StringGap : 0;
        for (const qreal y : {height() / 2.0 - apart, height() / 2.0 + apart})
            painter.drawEllipse(QPointF(x, y), InlaySize / 2, InlaySize / 2);
    }
    painter.restore();
}

} // namespace tabrova
