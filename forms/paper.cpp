#include "forms/paper.h"

#include <algorithm>
#include <cmath>

namespace tabrova {

namespace {

constexpr QRgb EdgeColor = 0xFFB8B8B8;
constexpr qreal Rounding = 4;

} // namespace

void makePaper(QWidget& widget) {
    QPalette palette = widget.palette();
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, QColor::fromRgb(ChartPaper));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, Qt::black);
    widget.setPalette(palette);
}

void fillSharp(QPainter& painter, const QRectF& place, QRgb color) {
    const QTransform toScreen = painter.deviceTransform();
    const QPointF corner = toScreen.inverted().map(QPointF(toScreen.map(place.topLeft()).toPoint()));
    const qreal scale = toScreen.m11();
    const QSizeF size(std::max(1.0, std::round(place.width() * scale)),
                      std::max(1.0, std::round(place.height() * scale)));
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(corner, size / scale), QColor::fromRgb(color));
    painter.setRenderHint(QPainter::Antialiasing, smooth);
}

void paintPaper(QPainter& painter, const QRect& place) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromRgb(ChartPaper));
    painter.setPen(QPen(QColor::fromRgb(EdgeColor), 1));
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), Rounding, Rounding);
    painter.restore();
}

} // namespace tabrova
