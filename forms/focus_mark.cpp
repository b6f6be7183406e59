#include "forms/focus_mark.h"

#include <QEvent>
#include <QPainter>
#include <QPushButton>

namespace tabrova {

namespace {

constexpr qreal Inset = 3.5; // pixels, as all here
constexpr qreal Rounding = 2;
constexpr int Opacity = 150; // of 255

void paintMark(QPushButton& button) {
    QColor ink = button.palette().color(QPalette::ButtonText);
    ink.setAlpha(Opacity);
    QPainter painter(&button);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1));
    painter.drawRoundedRect(QRectF(button.rect()).adjusted(Inset, Inset, -Inset, -Inset), Rounding, Rounding);
}

} // namespace

void FocusMark::addTo(QPushButton& button) { button.installEventFilter(this); }

bool FocusMark::eventFilter(QObject* watched, QEvent* event) {
    auto* button = qobject_cast<QPushButton*>(watched);
    if (event->type() != QEvent::Paint || !button || !button->hasFocus()) return false;
    watched->event(event); // the style's picture first
    paintMark(*button);
    return true;
}

} // namespace tabrova
