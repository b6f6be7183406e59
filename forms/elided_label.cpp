#include "forms/elided_label.h"

#include <QPainter>

namespace tabrova {

ElidedLabel::ElidedLabel(const QString& name, Qt::TextElideMode elide, QWidget* parent)
    : QLabel(parent), elide_(elide) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setMinimumWidth(0);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), elide_, width()));
}

} // namespace tabrova
