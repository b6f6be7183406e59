#include "app/drive/control_values.h"

#include "forms/text_edges.h"
#include "platform/window_timer.h"
#include "shell/status_bar.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>

namespace tabrova {

namespace {

template <class T>
T* as(QObject* control) {
    return qobject_cast<T*>(control);
}

// "=TEXT" names the row with that text.
int rowFor(const QString& value, const QStringList& items) {
    if (value.startsWith('=')) return static_cast<int>(items.indexOf(value.mid(1)));
    bool number = false;
    const int row = value.toInt(&number);
    return number && row >= -1 && row < items.size() ? row : -2;
}

QStringList itemsOf(QObject* control) {
    QStringList items;
    if (auto* list = as<QListWidget>(control))
        for (int row = 0; row < list->count(); ++row)
            items.append(list->item(row)->text());
    if (auto* box = as<QComboBox>(control))
        for (int row = 0; row < box->count(); ++row)
            items.append(box->itemText(row));
    if (auto* tabs = as<QTabWidget>(control))
        for (int tab = 0; tab < tabs->count(); ++tab)
            items.append(tabTextOf(*tabs, tab));
    return items;
}

std::optional<int> rowOf(QObject* control) {
    if (auto* list = as<QListWidget>(control))
        return list->selectedItems().isEmpty() ? -1 : list->currentRow();
    if (auto* box = as<QComboBox>(control)) return box->currentIndex();
    if (auto* tabs = as<QTabWidget>(control)) return tabs->currentIndex();
    return std::nullopt;
}

std::optional<QString> textOf(QObject* control) {
    if (auto* box = as<QLineEdit>(control)) return box->text();
    if (auto* box = as<QPlainTextEdit>(control)) return box->toPlainText();
    if (auto* box = as<QTextEdit>(control)) return box->toPlainText();
    if (auto* label = as<QLabel>(control)) return label->text();
    if (auto* box = as<QComboBox>(control)) return box->currentText();
    if (auto* list = as<QListWidget>(control))
        return list->selectedItems().isEmpty() ? QString() : list->selectedItems().first()->text();
    if (auto* button = as<QAbstractButton>(control)) return button->text();
    if (auto* action = as<QAction>(control)) return action->text();
    if (auto* bar = dynamic_cast<StatusBar*>(control)) return bar->trackPanel();
    if (auto* widget = as<QWidget>(control); widget && widget->isWindow()) return titleOf(*widget);
    return std::nullopt;
}

struct Range {
    int minimum;
    int maximum;
    int value;
};

std::optional<Range> rangeOf(QObject* control) {
    if (auto* slider = as<QAbstractSlider>(control))
        return Range{slider->minimum(), slider->maximum(), slider->value()};
    if (auto* box = as<QSpinBox>(control)) return Range{box->minimum(), box->maximum(), box->value()};
    if (auto* bar = as<QProgressBar>(control)) return Range{bar->minimum(), bar->maximum(), bar->value()};
    return std::nullopt;
}

std::optional<bool> checkedOf(QObject* control) {
    if (auto* button = as<QAbstractButton>(control); button && button->isCheckable())
        return button->isChecked();
    if (auto* action = as<QAction>(control); action && action->isCheckable()) return action->isChecked();
    return std::nullopt;
}

// The color of such a control is that of its caption, of any other that of its ground.
bool hasCaption(QObject* control) { return as<QLabel>(control) || as<QCheckBox>(control); }

bool isEnabled(QObject* control) {
    if (auto* action = as<QAction>(control)) return action->isEnabled();
    if (auto* timer = dynamic_cast<ListedTimer*>(control)) return timer->timerEnabled();
    auto* widget = as<QWidget>(control);
    return widget && widget->isEnabled();
}

bool isVisible(QObject* control) {
    if (auto* action = as<QAction>(control)) return action->isVisible();
    auto* widget = as<QWidget>(control);
    return widget && (widget->isWindow() ? widget->isVisible() : !widget->isHidden());
}

QJsonValue geometryOf(QWidget* widget) {
    const QRect place = widget->geometry();
    return QJsonArray{place.left(), place.top(), place.width(), place.height()};
}

QString setText(QObject* control, const QString& value) {
    if (auto* line = as<QLineEdit>(control)) {
        line->setFocus();
        line->selectAll();
        value.isEmpty() ? line->backspace() : line->insert(value);
        emit line->editingFinished();
    } else if (auto* plain = as<QPlainTextEdit>(control)) {
        plain->selectAll();
        plain->insertPlainText(value);
    } else if (auto* rich = as<QTextEdit>(control)) {
        rich->selectAll();
        rich->insertPlainText(value);
    } else {
        return "cannot be set";
    }
    return {};
}

QString setRow(QObject* control, int row) {
    if (row == -2) return "no such row";
    if (auto* list = as<QListWidget>(control)) {
        list->setCurrentRow(row);
        // The list raises its own itemClicked from it.
        if (list->item(row)) emit list->clicked(list->currentIndex());
    } else if (auto* box = as<QComboBox>(control)) {
        box->setCurrentIndex(row);
        emit box->activated(row);
        emit box->textActivated(box->currentText());
    } else if (auto* tabs = as<QTabWidget>(control)) {
        tabs->setCurrentIndex(row);
    }
    return {};
}

} // namespace

QJsonValue controlValue(QObject* control) {
    if (const auto checked = checkedOf(control)) return *checked ? 1 : 0;
    if (const auto range = rangeOf(control)) return range->value;
    if (const auto row = rowOf(control)) return *row;
    if (const auto text = textOf(control)) return *text;
    return QJsonValue::Null;
}

std::optional<QJsonValue> controlProperty(QObject* control, const QString& property) {
    auto* widget = as<QWidget>(control);
    const auto optional = [](auto value) {
        return value ? std::optional<QJsonValue>(QJsonValue(*value)) : std::nullopt;
    };
    if (property == "text" || property == "caption") return optional(textOf(control));
    if (property == "title")
        return widget ? std::optional<QJsonValue>(titleOf(*widget->window())) : std::nullopt;
    if (property == "items") return QJsonValue(QJsonArray::fromStringList(itemsOf(control)));
    if (property == "row") return optional(rowOf(control));
    if (property == "enabled") return QJsonValue(isEnabled(control));
    if (property == "visible") return QJsonValue(isVisible(control));
    if (property == "checked") return optional(checkedOf(control));
    if (property == "geometry" && widget) return geometryOf(widget);
    const auto range = rangeOf(control);
    if (property == "min" && range) return QJsonValue(range->minimum);
    if (property == "max" && range) return QJsonValue(range->maximum);
    if (property == "color" && widget)
        return QJsonValue(widget->palette()
                              .color(hasCaption(control) ? QPalette::WindowText : widget->backgroundRole())
                              .name());
    if (property == "tooltip" && widget) return QJsonValue(widget->toolTip());
    if (property == "tooltip" && as<QAction>(control)) return QJsonValue(as<QAction>(control)->toolTip());
    return std::nullopt;
}

QString setControl(QObject* control, const QString& value) {
    if (!isEnabled(control)) return "disabled";
    bool number = false;
    const int asNumber = value.toInt(&number);
    if (const auto checked = checkedOf(control)) {
        if (!number) return "not 0 or 1";
        if (*checked == (asNumber != 0)) return {};
        if (auto* button = as<QAbstractButton>(control)) button->click();
        if (auto* action = as<QAction>(control)) action->trigger();
        return {};
    }
    if (rangeOf(control)) {
        if (!number) return "not a number";
        if (auto* slider = as<QAbstractSlider>(control)) slider->setValue(asNumber);
        if (auto* box = as<QSpinBox>(control)) box->setValue(asNumber);
        return {};
    }
    if (rowOf(control)) return setRow(control, rowFor(value, itemsOf(control)));
    return setText(control, value);
}

bool isActionReachable(QObject* action) {
    auto* item = as<QAction>(action);
    if (!item || !item->isEnabled()) return false;
    QObject* above = item->menu() ? item->menu()->parent() : item->parent();
    while (auto* menu = as<QMenu>(above)) {
        if (!menu->menuAction()->isEnabled()) return false;
        above = menu->parent();
    }
    return true;
}

} // namespace tabrova
