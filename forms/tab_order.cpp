#include "forms/tab_order.h"

#include "forms/reading_order.h"

#include <QAbstractButton>
#include <QButtonGroup>

#include <algorithm>

namespace tabrova {

namespace {

bool isUsable(const QWidget& widget, const QWidget& form) {
    return widget.isVisibleTo(&form) && widget.isEnabled();
}

bool hasTabKey(const QWidget* widget) { return (widget->focusPolicy() & Qt::TabFocus) != 0; }

// The buttons of which only one can be chosen, this one among them. None for any other widget, nor for a
// group without the Tab key. The toolkit leaves the key to one of them, the one that had the focus last.
QList<QAbstractButton*> groupOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (!button) return {};
    QList<QAbstractButton*> group;
    if (button->group()) {
        if (button->group()->exclusive()) group = button->group()->buttons();
    } else if (button->autoExclusive() && button->parentWidget()) {
        group = button->parentWidget()->findChildren<QAbstractButton*>();
        group.removeIf(
            [](const QAbstractButton* other) { return !other->autoExclusive() || other->group(); });
    }
    return std::any_of(group.begin(), group.end(), hasTabKey) ? group : QList<QAbstractButton*>();
}

// The chosen button of a group, or else its first.
const QWidget* stopOfGroup(QList<QAbstractButton*> group, const QWidget& form) {
    group.removeIf([&form](const QAbstractButton* button) { return !isUsable(*button, form); });
    for (const QAbstractButton* button : group)
        if (button->isChecked()) return button;
    return group.value(0);
}

// A widget with a proxy is only the shell of one that has the focus.
bool takesFocus(const QWidget& widget) {
    return (widget.focusPolicy() != Qt::NoFocus || !groupOf(widget).isEmpty()) && !widget.focusProxy();
}

bool isTabStop(const QWidget& widget, const QWidget& form) {
    if (!isUsable(widget, form)) return false;
    const QList<QAbstractButton*> group = groupOf(widget);
    return group.isEmpty() ? hasTabKey(&widget) : stopOfGroup(group, form) == &widget;
}

bool isSeen(const QWidget& widget, const QWidget* at) {
    return !widget.isHidden() || (at && widget.isAncestorOf(at));
}

std::vector<QWidget*> controlsIn(const QWidget& container, const QWidget* at);

// A control comes before the controls inside it, as a check box that is a group's title does.
std::vector<QWidget*> controlsOfBlock(QWidget& block, const QWidget* at) {
    std::vector<QWidget*> controls = controlsIn(block, at);
    if (takesFocus(block)) controls.insert(controls.begin(), &block);
    return controls;
}

std::vector<QWidget*> controlsIn(const QWidget& container, const QWidget* at) {
    std::vector<std::vector<QWidget*>> blocks;
    std::vector<QRect> places;
    for (QObject* child : container.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow() || !isSeen(*widget, at)) continue;
        blocks.push_back(controlsOfBlock(*widget, at));
        places.push_back(widget->geometry());
        if (!blocks.back().empty()) continue;
        blocks.pop_back();
        places.pop_back();
    }
    std::vector<QWidget*> controls;
    for (const std::size_t block : readingOrder(places, container.layoutDirection()))
        controls.insert(controls.end(), blocks[block].begin(), blocks[block].end());
    return controls;
}

// The control itself, or the one that it is a part of.
std::ptrdiff_t positionOf(const std::vector<QWidget*>& controls, const QWidget* at) {
    for (; at; at = at->parentWidget()) {
        const auto found = std::find(controls.begin(), controls.end(), at);
        if (found != controls.end()) return found - controls.begin();
    }
    return -1;
}

} // namespace

std::vector<QWidget*> controlsInReadingOrder(const QWidget& form, const QWidget* at) {
    return controlsIn(form, at);
}

QWidget* tabStop(const QWidget& form, const QWidget* at, TabStep step) {
    std::vector<QWidget*> controls = controlsIn(form, at);
    if (step == TabStep::Previous) std::reverse(controls.begin(), controls.end());
    const std::ptrdiff_t position = positionOf(controls, at);
    // What follows `at` first, then what stands before it.
    std::rotate(controls.begin(), controls.begin() + (position + 1), controls.end());
    if (position >= 0) controls.pop_back();
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&form](const QWidget* control) { return isTabStop(*control, form); });
    return found == controls.end() ? nullptr : *found;
}

QWidget* firstTabStop(const QWidget& form) { return tabStop(form, nullptr, TabStep::Next); }

} // namespace tabrova
