#include "shell/highlight_shape.h"

#include <QPainter>

namespace tabrova {

HighlightShape::HighlightShape(const char* name, QWidget* panel) : QWidget(panel) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void HighlightShape::paintEvent(QPaintEvent*) {
    constexpr int Border = 2;
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Highlight);
    QColor tint = color;
    tint.setAlpha(40);
    painter.fillRect(rect(), tint);
    painter.setPen(QPen(color, Border));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

} // namespace tabrova
