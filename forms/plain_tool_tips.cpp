#include "forms/plain_tool_tips.h"

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace tabrova {

QString asPlainHint(const QString& text) {
    return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}

void showPlainHint(const QPoint& globalPosition, const QString& text, QWidget* widget) {
    QToolTip::showText(globalPosition, asPlainHint(text), widget);
}

PlainToolTips::PlainToolTips(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool PlainToolTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || !Qt::mightBeRichText(widget->toolTip())) return false;
    showPlainHint(static_cast<QHelpEvent*>(event)->globalPos(), widget->toolTip(), widget);
    return true;
}

} // namespace tabrova
