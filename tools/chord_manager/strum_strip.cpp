#include "tools/chord_manager/strum_strip.h"

#include "forms/named.h"
#include "forms/paper.h"
#include "tools/chord_manager/chord_sound.h"

#include <QMouseEvent>
#include <QPainter>

namespace tabrova {

namespace {

constexpr double TwipsPerPixel = 15;
constexpr int StripHeight = static_cast<int>(StrumStripHeight / TwipsPerPixel);
// The middles of the bands, in pixels.
constexpr std::array<int, ChordStrings> StringY = {6, 16, 26, 36, 46, 55};
constexpr std::array Thickness = {1.0, 1.25, 1.5, 2.0, 2.5, 3.0};
constexpr int HighlightHeight = 5;
constexpr QRgb BoardColor = 0xFF3E2A1C;
constexpr QRgb SteelColor = 0xFFD8D4CC;
constexpr QRgb HighlightColor = 0xFFFFB347;

StrumStrip::Band bandAt(const QMouseEvent& event) { return strumBand(event.position().y() * TwipsPerPixel); }

} // namespace

StrumStrip::StrumStrip(QWidget* parent) : QWidget(parent) {
    setObjectName("Image3");
    setFixedHeight(StripHeight);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        highlights_[string] = named(new QWidget(this), QString("shpStrum(%1)").arg(string));
        highlights_[string]->setAttribute(Qt::WA_TransparentForMouseEvents);
        highlights_[string]->setAutoFillBackground(true);
        QPalette palette = highlights_[string]->palette();
        palette.setColor(QPalette::Window, QColor::fromRgb(HighlightColor));
        highlights_[string]->setPalette(palette);
        highlights_[string]->hide();
    }
}

QSize StrumStrip::sizeHint() const { return {300, StripHeight}; }

void StrumStrip::highlight(Band band) {
    for (std::size_t each = 0; each < ChordStrings; ++each)
        highlights_[each]->setVisible(band == each);
}

void StrumStrip::mousePressEvent(QMouseEvent*) {
    if (pressed) pressed();
}

void StrumStrip::mouseMoveEvent(QMouseEvent* event) {
    highlight(bandAt(*event));
    if (moved) moved(bandAt(*event));
}

void StrumStrip::mouseReleaseEvent(QMouseEvent* event) {
    if (released) released(bandAt(*event));
}

void StrumStrip::leaveEvent(QEvent*) { highlight(std::nullopt); }

void StrumStrip::resizeEvent(QResizeEvent*) {
    for (std::size_t string = 0; string < ChordStrings; ++string)
        highlights_[string]->setGeometry(0, StringY[string] - HighlightHeight / 2, width(), HighlightHeight);
}

void StrumStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(BoardColor));
    for (std::size_t string = 0; string < ChordStrings; ++string)
        fillSharp(painter,
                  QRectF(0, StringY[string] + 0.5 - Thickness[string] / 2, width(), Thickness[string]),
                  SteelColor);
}

} // namespace tabrova
