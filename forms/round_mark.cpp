#include "forms/round_mark.h"

#include "forms/paper.h"

namespace tabrova {

namespace {

constexpr qreal RingWidth = 2.5;

} // namespace

RoundMark::RoundMark(const QString& name, Shape shape, QRgb color, QWidget* parent)
    : QWidget(parent), shape_(shape) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMarkColor(color);
    hide();
}

void RoundMark::setMarkColor(QRgb color) {
    QPalette colors = palette();
    colors.setColor(backgroundRole(), QColor::fromRgb(color));
    setPalette(colors);
}

void RoundMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = palette().color(backgroundRole());
    QRectF place = QRectF(rect()).adjusted(1, 1, -1, -1);
    switch (shape_) {
    case Shape::Cross:
        return paintCross(painter, rect());
    case Shape::Ring:
        painter.setPen(QPen(color, RingWidth));
        painter.drawEllipse(place.adjusted(RingWidth, RingWidth, -RingWidth, -RingWidth));
        break;
    case Shape::Disc:
        if (diameter_ > 0)
            place = QRectF(QRectF(rect()).center() - QPointF(diameter_, diameter_) / 2,
                           QSizeF(diameter_, diameter_));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(place);
        break;
    }
}

void paintCross(QPainter& painter, const QRectF& place) {
    const QRectF inner = place.adjusted(1 + RingWidth, 1 + RingWidth, -1 - RingWidth, -1 - RingWidth);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(ChartInk), RingWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(inner.topLeft(), inner.bottomRight());
    painter.drawLine(inner.topRight(), inner.bottomLeft());
}

} // namespace tabrova
