#include "organisers/help/topic_list.h"

#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace tabrova {

namespace {

constexpr int VisibleRows = 20;
constexpr int VisibleFound = 12;

} // namespace

TopicList::TopicList(const QString& name, const QString& textOfNone, const QStringList& rows, QWidget* parent)
    : QComboBox(parent), textOfNone_(textOfNone) {
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    addItems(rows);
    setMaxVisibleItems(VisibleRows);
    auto* found = new QCompleter(model(), this);
    found->setCompletionMode(QCompleter::PopupCompletion);
    found->setCaseSensitivity(Qt::CaseInsensitive);
    found->setFilterMode(Qt::MatchContains);
    found->setMaxVisibleItems(VisibleFound);
    setCompleter(found);
    showChosen();
    connect(this, &QComboBox::activated, this, [this](int row) { choose(row); });
    connect(lineEdit(), &QLineEdit::returnPressed, this, [this] { choose(rowOf(currentText())); });
}

void TopicList::choose(int row) {
    if (row >= 0) row_ = row;
    showChosen();
    if (row >= 0 && chosen) chosen(row);
}

void TopicList::showChosen() {
    const QSignalBlocker quiet(this);
    setCurrentIndex(row_);
    setEditText(row_ < 0 ? textOfNone_ : itemText(row_));
    lineEdit()->setCursorPosition(static_cast<int>(currentText().size()));
    // Whatever is typed next takes the text's place; its beginning is what is seen.
    lineEdit()->home(hasFocus());
}

int TopicList::rowOf(const QString& typed) const {
    const int same = findText(typed, Qt::MatchFixedString);
    if (same >= 0 || typed.isEmpty()) return same;
    const int first = findText(typed, Qt::MatchContains);
    for (int row = first + 1; first >= 0 && row < count(); ++row)
        if (itemText(row).contains(typed, Qt::CaseInsensitive)) return -1;
    return first;
}

// A click, too, selects the text, so that what is typed takes its place; the press would move the selection
// away if it did not come first.
void TopicList::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason)
        QMetaObject::invokeMethod(lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
}

// The list of found rows and other windows only borrow the keyboard.
void TopicList::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        showChosen();
}

} // namespace tabrova
