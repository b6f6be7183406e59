#include "platform/list_box.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tabrova {

namespace {

constexpr int MarkWidth = 2; // pixels

} // namespace

ListBox::ListBox(const QString& name, QWidget* parent, KeyClick keyClick)
    : QListWidget(parent), keyClick_(keyClick) {
    setObjectName(name);
    setUniformItemSizes(true);
    QObject::connect(this, &QListWidget::itemClicked, this, [this] { raiseClick(); });
}

void ListBox::raiseClick() {
    raised_ = true;
    if (Click) Click();
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    const auto command = QListWidget::selectionCommand(index, event);
    const bool wouldTakeBack = command & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle);
    return wouldTakeBack ? QItemSelectionModel::ClearAndSelect : command;
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->accept();
    rowAtPress_ = currentRow();
    raised_ = false;
    QListWidget::mousePressEvent(event);
}

// A drag from row to row chooses the last one without a click of the toolkit's own.
void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->accept();
    QListWidget::mouseReleaseEvent(event);
    if (!raised_ && currentRow() != rowAtPress_) raiseClick();
    rowAtPress_ = currentRow();
}

// The toolkit's own signal comes only after a press on the same row.
void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->accept();
    QListWidget::mouseDoubleClickEvent(event);
    if (QListWidgetItem* item = itemAt(event->position().toPoint())) setCurrentItem(item);
    if (chosenRow() >= 0 && DoubleClick) DoubleClick();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    const bool entered = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // A key that is still held down from before has chosen nothing here.
    const bool choosing = chosenRow() >= 0 && !event->isAutoRepeat();
    if (entered && DoubleClick) {
        if (choosing) DoubleClick();
        return;
    }
    if (keyClick_ == KeyClick::AtEnter && (entered || event->key() == Qt::Key_Space)) {
        if (choosing) raiseClick();
        return;
    }
    const int before = currentRow();
    const bool nothingChosen = selectedItems().isEmpty();
    const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    // The toolkit would pass over the row that has the keyboard, and leave one that is alone.
    if (nothingChosen && arrow && before >= 0)
        setCurrentRow(before, QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
    const bool chosenNow = nothingChosen && !selectedItems().isEmpty();
    if (keyClick_ == KeyClick::AtMove && (currentRow() != before || chosenNow)) raiseClick();
}

// The style marks the row that has the keyboard; where there is none, the list itself has the mark.
void ListBox::paintEvent(QPaintEvent* event) {
    QListWidget::paintEvent(event);
    if (!hasFocus() || currentRow() >= 0) return;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), MarkWidth));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

} // namespace tabrova
