#include "shell/surface_widget.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

#include <utility>

namespace tabrova {

SurfaceWidget::SurfaceWidget(const QString& name, Surface& surface, QWidget* parent)
    : QWidget(parent), surface_(surface) {
    setObjectName(name);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SurfaceWidget::setZoom(qreal zoom) {
    zoom_ = zoom;
    update();
}

QPoint SurfaceWidget::pixelAt(const QMouseEvent& event) const {
    // The middle of the screen's pixel, which may lie on two logical ones.
    const qreal middle = zoom_ == 1.0 ? 0.0 : 0.5 / devicePixelRatioF();
    return {qFloor((event.position().x() + middle) / zoom_), qFloor((event.position().y() + middle) / zoom_)};
}

QRect SurfaceWidget::shown(const Rect& place) const {
    constexpr int Shared = 1; // a pixel of the screen may lie on two of the surface
    if (place.width == 0 || place.height == 0) return {};
    const QRectF zoomed(place.left * zoom_, place.top * zoom_, place.width * zoom_, place.height * zoom_);
    return zoomed.toAlignedRect().adjusted(-Shared, -Shared, Shared, Shared);
}

const QImage& SurfaceWidget::screenImage() {
    const QRect changed = shown(surface_.takeChanged());
    notShown_ += changed;
    const QImage& image = surface().image();
    const qreal factor = this->factor();
    if (qFuzzyCompare(factor, 1.0)) {
        scaling_.reset();
        return image;
    }
    if (!scaling_ || factor != scalingFactor_ || scaling_->from() != image.size()) {
        scaling_.emplace(image.size(), factor);
        scalingFactor_ = factor;
        scaled_ = QImage(scaling_->size(), QImage::Format_RGB32);
        scaling_->draw(scaled_, scaled_.rect(), image);
    } else if (!changed.isEmpty()) {
        scaling_->draw(scaled_, onScreen(changed), image);
    }
    return scaled_;
}

void SurfaceWidget::showChanges() {
    screenImage();
    QRegion objectsNow;
    if (objects)
        for (const FloatingRect& object : objects())
            objectsNow += shown(object.place);
    update(std::exchange(notShown_, {}).united(objectsShown_).united(objectsNow));
    objectsShown_ = objectsNow;
}

QRect SurfaceWidget::onScreen(const QRect& part) const {
    const qreal ratio = devicePixelRatioF();
    return QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio).toAlignedRect();
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QImage& image = screenImage();
    const qreal ratio = devicePixelRatioF();
    painter.save();
    painter.scale(1.0 / ratio, 1.0 / ratio);
    for (const QRect& part : event->region()) {
        const QRect pixels = onScreen(part).intersected(image.rect());
        painter.drawImage(pixels.topLeft(), image, pixels);
    }
    painter.restore();
    painter.scale(zoom_, zoom_);
    if (!objects) return;
    for (const auto& [place, color] : objects())
        painter.fillRect(place.left, place.top, place.width, place.height, QColor(color));
}

} // namespace tabrova
