#include "shell/panel_zoom.h"

#include "workbench/window_layout.h"

#include <QWidget>
#include <QtMath>

namespace tabrova {

QFont zoomedFont(QFont font, int percent) {
    if (font.pixelSize() > 0) {
        font.setPixelSize(font.pixelSize() * percent / UnzoomedPercent);
    } else {
        font.setPointSizeF(font.pointSizeF() * percent / UnzoomedPercent);
    }
    return font;
}

PanelZoom::PanelZoom(QWidget& panel) : panel_(panel), size_(panel.size()) {
    for (QWidget* part : panel.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        parts_.append({part, part->geometry(), part->font()});
}

void PanelZoom::set(int percent) {
    percent_ = percent;
    panel_.setFixedSize(zoomed(QRect({}, size_)).size());
    for (const Part& part : parts_) {
        part.widget->setGeometry(zoomed(part.place));
        part.widget->setFont(font(part.font));
    }
}

QRect PanelZoom::zoomed(const QRect& place) const {
    const qreal factor = static_cast<qreal>(percent_) / UnzoomedPercent;
    const QRectF large(QPointF(place.topLeft()) * factor, QSizeF(place.size()) * factor);
    return {QPoint(qRound(large.left()), qRound(large.top())),
            QPoint(qRound(large.right()) - 1, qRound(large.bottom()) - 1)};
}

QPoint PanelZoom::unzoomed(const QPointF& place) const {
    const QPointF small = place * UnzoomedPercent / percent_;
    return {qFloor(small.x()), qFloor(small.y())};
}

} // namespace tabrova
