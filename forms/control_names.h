// Controls by their own names. A window that another one opened is its child, but a form of its own: its
// controls are not found in the form that opened it.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

namespace tabrova {

// Whether the object lies in the form itself.
bool belongsToForm(const QObject* object, const QWidget* form);

// The controls, menu items and timers of the form that have names.
QList<QObject*> namedControls(const QWidget& form);

// Without regard to case; nullptr for a name that is not there.
QObject* controlNamed(const QWidget& form, const QString& name);

} // namespace tabrova
