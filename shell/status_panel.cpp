#include "shell/status_panel.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace tabrova {

StatusPanel::StatusPanel(const QString& name, QWidget* parent) : ElidedLabel(name, Qt::ElideRight, parent) {
    setCursor(Qt::PointingHandCursor);
    // The mouse leaves the keyboard where it is.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize StatusPanel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2, ElidedLabel::sizeHint().height()};
}

QSize StatusPanel::minimumSizeHint() const { return {0, ElidedLabel::sizeHint().height()}; }

void StatusPanel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Escape && left) return left();
    const bool presses = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (!presses) return ElidedLabel::keyPressEvent(event);
    if (!event->isAutoRepeat() && pressed) pressed();
}

void StatusPanel::paintEvent(QPaintEvent* event) {
    ElidedLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    QStyleOptionFocusRect mark;
    mark.initFrom(this);
    mark.state |= QStyle::State_KeyboardFocusChange; // no mouse brings the keyboard here
    mark.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &mark, &painter, this);
}

} // namespace tabrova
