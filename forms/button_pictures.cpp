#include "forms/button_pictures.h"

#include <QPainter>
#include <QPainterPath>

namespace tabrova {

namespace {

constexpr qreal LineWidth = 1.6; // in pixels of a picture of 20

// All pictures are drawn into a square of 20, its origin in the middle.
void drawArrow(QPainter& painter, qreal degrees) {
    painter.rotate(degrees);
    QPainterPath arrow;
    arrow.moveTo(0, -8);
    arrow.lineTo(7, 0);
    arrow.lineTo(3, 0);
    arrow.lineTo(3, 8);
    arrow.lineTo(-3, 8);
    arrow.lineTo(-3, 0);
    arrow.lineTo(-7, 0);
    arrow.closeSubpath();
    painter.fillPath(arrow, painter.pen().color());
}

void drawPlus(QPainter& painter) {
    painter.fillRect(QRectF(-8, -2, 16, 4), painter.pen().color());
    painter.fillRect(QRectF(-2, -8, 4, 16), painter.pen().color());
}

void drawBin(QPainter& painter) {
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(-7, -5), QPointF(7, -5));
    painter.drawPolyline(QPolygonF({{-2.5, -5}, {-2.5, -7.5}, {2.5, -7.5}, {2.5, -5}}));
    painter.drawPolyline(QPolygonF({{-5.5, -5}, {-4.7, 8}, {4.7, 8}, {5.5, -5}}));
    for (const qreal x : {-2.0, 0.0, 2.0})
        painter.drawLine(QPointF(x, -2), QPointF(x, 5.5));
}

void drawPlay(QPainter& painter) {
    QPainterPath triangle;
    triangle.moveTo(-5, -8);
    triangle.lineTo(8, 0);
    triangle.lineTo(-5, 8);
    triangle.closeSubpath();
    painter.fillPath(triangle, painter.pen().color());
}

void draw(QPainter& painter, ButtonPicture picture) {
    switch (picture) {
    case ButtonPicture::ArrowUp:
        return drawArrow(painter, 0);
    case ButtonPicture::ArrowRight:
        return drawArrow(painter, 90);
    case ButtonPicture::ArrowDown:
        return drawArrow(painter, 180);
    case ButtonPicture::ArrowLeft:
        return drawArrow(painter, 270);
    case ButtonPicture::Plus:
        return drawPlus(painter);
    case ButtonPicture::Bin:
        return drawBin(painter);
    case ButtonPicture::Play:
        return drawPlay(painter);
    }
}

} // namespace

PictureButton* pictureButton(const QString& name, ButtonPicture picture, QWidget* parent) {
    auto* button = new PictureButton(name, PictureButton::PaintPicture(), ButtonPictureSize, parent);
    button->setPicture([button, picture](QPainter& painter, QRect place, bool) {
        painter.translate(QRectF(place).center());
        painter.setPen(QPen(button->palette().color(button->foregroundRole()), LineWidth, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        draw(painter, picture);
    });
    return button;
}

} // namespace tabrova
