#include "forms/preset_list.h"

#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace tabrova {

PresetList::PresetList(const QString& name, QWidget* parent) : QComboBox(parent) {
    setObjectName(name);
    setEditable(true);
    lineEdit()->setReadOnly(true);
    lineEdit()->installEventFilter(this);
}

void PresetList::showRow(int row, const QString& text) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(row);
    if (row < 0) setEditText(text);
}

// Once the button is let go: the list would take the release for a choice.
bool PresetList::eventFilter(QObject* watched, QEvent* event) {
    if (watched != lineEdit() || event->type() != QEvent::MouseButtonRelease)
        return QComboBox::eventFilter(watched, event);
    showPopup();
    return true;
}

} // namespace tabrova
