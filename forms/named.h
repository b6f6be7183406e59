// How forms make their controls: each carries its own name.
#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

namespace tabrova {

template <class Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

// The label of a control: its access key gives the control the focus.
inline QLabel* labelOf(QWidget* control, const QString& name, QWidget* parent) {
    auto* label = named(new QLabel(parent), name);
    label->setBuddy(control);
    return label;
}

} // namespace tabrova
