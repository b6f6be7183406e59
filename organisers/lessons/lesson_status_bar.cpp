#include "organisers/lessons/lesson_status_bar.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace tabrova {

namespace {

constexpr int TextLeft = 10;

} // namespace

LessonStatusBar::LessonStatusBar(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void LessonStatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor ground = palette().color(QPalette::Button);
    if (isDown() || underMouse()) ground = palette().color(QPalette::Midlight);
    painter.fillRect(rect(), ground);
    painter.fillRect(0, 0, width(), 1, palette().color(QPalette::Mid));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect().adjusted(TextLeft, 1, -TextLeft, 0), Qt::AlignVCenter | Qt::TextHideMnemonic,
                     text());
    if (!hasFocus()) return;
    QStyleOptionFocusRect mark;
    mark.initFrom(this);
    mark.rect = rect().adjusted(2, 3, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &mark, &painter, this);
}

} // namespace tabrova
