// Where the Tab key goes on a form: from control to control in reading order, as they stand at that moment. A
// container is read as one block where it stands, whatever lies beside it.
#pragma once

#include <QWidget>

#include <vector>

namespace tabrova {

enum class TabStep { Next, Previous };

// The form's controls that can have the focus, in reading order. Controls that are hidden are left out, but
// for `at`, which may have hidden itself while it has the focus.
std::vector<QWidget*> controlsInReadingOrder(const QWidget& form, const QWidget* at = nullptr);

// The control that takes the focus after or before `at`, round the form's end; the first or the last one if
// `at` is no control of the form. nullptr if there is no other. A group of radio buttons is one stop, at the
// chosen one, or at the first if none is chosen.
QWidget* tabStop(const QWidget& form, const QWidget* at, TabStep step);

// The first control that the Tab key reaches; nullptr if there is none.
QWidget* firstTabStop(const QWidget& form);

} // namespace tabrova
