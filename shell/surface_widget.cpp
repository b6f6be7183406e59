#include "shell/surface_widget.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

namespace tabrova {

SurfaceWidget::SurfaceWidget(const QString& name, const Surface& surface, QWidget* parent)
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

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const qreal ratio = devicePixelRatioF();
    painter.save();
    if (qFuzzyCompare(ratio * zoom_, surface_.scale())) {
        // One image pixel is one screen pixel.
        painter.scale(1.0 / ratio, 1.0 / ratio);
        const QRectF part(QPointF(event->rect().topLeft()) * ratio, QSizeF(event->rect().size()) * ratio);
        const QRect pixels = part.toAlignedRect().intersected(surface_.image().rect());
        painter.drawImage(pixels.topLeft(), surface_.image(), pixels);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(0, 0, surface_.width() * zoom_, surface_.height() * zoom_),
                          surface_.image());
    }
    painter.restore();
    painter.scale(zoom_, zoom_);
    if (paintObjects) paintObjects(painter);
}

} // namespace tabrova
