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

QPoint SurfaceWidget::pixelAt(const QMouseEvent& event) {
    return {qFloor(event.position().x()), qFloor(event.position().y())};
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const qreal ratio = devicePixelRatioF();
    painter.save();
    if (ratio == surface_.scale()) {
        // One image pixel is one screen pixel.
        painter.scale(1.0 / ratio, 1.0 / ratio);
        const QRectF part(QPointF(event->rect().topLeft()) * ratio, QSizeF(event->rect().size()) * ratio);
        const QRect pixels = part.toAlignedRect().intersected(surface_.image().rect());
        painter.drawImage(pixels.topLeft(), surface_.image(), pixels);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(0, 0, surface_.width(), surface_.height()), surface_.image());
    }
    painter.restore();
    if (paintObjects) paintObjects(painter);
}

} // namespace tabrova
