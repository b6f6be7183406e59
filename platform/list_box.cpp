#include "platform/list_box.h"

#include <QKeyEvent>

namespace tabrova {

ListBox::ListBox(const QString& name, QWidget* parent) : QListWidget(parent) {
    setObjectName(name);
    setUniformItemSizes(true);
    QObject::connect(this, &QListWidget::itemClicked, this, [this] { raiseClick(); });
    QObject::connect(this, &QListWidget::itemDoubleClicked, this, [this] {
        if (DoubleClick) DoubleClick();
    });
}

void ListBox::raiseClick() {
    raised_ = true;
    if (Click) Click();
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    rowAtPress_ = currentRow();
    raised_ = false;
    QListWidget::mousePressEvent(event);
}

// A drag from row to row chooses the last one without a click of the toolkit's own.
void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (!raised_ && currentRow() != rowAtPress_) raiseClick();
    rowAtPress_ = currentRow();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    const bool entered = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (entered && DoubleClick) {
        if (currentItem()) DoubleClick();
        return;
    }
    const int before = currentRow();
    const bool nothingChosen = selectedItems().isEmpty();
    QListWidget::keyPressEvent(event);
    const bool chosenNow = nothingChosen && !selectedItems().isEmpty();
    if (currentRow() != before || chosenNow) raiseClick();
}

} // namespace tabrova
