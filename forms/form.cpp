#include "forms/form.h"

#include "forms/captions.h"
#include "forms/focus_mark.h"
#include "forms/tab_order.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>

namespace tabrova {

namespace {

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// Takes Return and Enter before a control does. On some desktops they check a box and open a list, and a
// default button would press itself again and again while the key is held down, perhaps from before it was
// there.
class ReturnKey : public QObject {
  public:
    using Take = std::function<void(QWidget* at, QKeyEvent* event)>;
    ReturnKey(Take take, QObject* parent) : QObject(parent), take_(std::move(take)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        auto* key = static_cast<QKeyEvent*>(event);
        if (!isReturn(*key)) return false;
        take_(qobject_cast<QWidget*>(watched), key);
        return true;
    }

  private:
    Take take_;
};

// A list that one can type into takes the typed text at Return.
bool leavesReturnToTheForm(QWidget* control) {
    const auto* list = qobject_cast<QComboBox*>(control);
    return list ? !list->isEditable() : qobject_cast<QAbstractButton*>(control) != nullptr;
}

// Return checks no box: it presses only buttons that act.
QAbstractButton* pressedByReturn(QWidget* control) {
    const bool box = qobject_cast<QCheckBox*>(control) || qobject_cast<QRadioButton*>(control);
    return box ? nullptr : qobject_cast<QAbstractButton*>(control);
}

QPushButton* defaultButton(const QWidget& form) {
    for (QPushButton* button : form.findChildren<QPushButton*>())
        if (button->window() == &form && button->isDefault() && button->isVisible()) return button;
    return nullptr;
}

bool canHaveFocus(const QWidget* control) { return control && control->isVisible() && control->isEnabled(); }

} // namespace

Form::Form(const char* name, const std::filesystem::path& programFolder, QWidget* parent)
    : QDialog(parent), programFolder_(programFolder),
      returnKey_(new ReturnKey([this](QWidget* at, QKeyEvent* event) { takeReturn(at, event); }, this)),
      focusMark_(new FocusMark(this)) {
    setObjectName(name);
}

void Form::LoadLanguage() {
    settleControls();
    loadLanguage(*this, programFolder_,
                 [this](std::string_view name, const QString& text) { takeMessage(name, text); });
}

void Form::takeMessage(std::string_view, const QString&) {}

// The toolkit would make the first push button the default one, and the one that last had the focus after it;
// a text with a tag in it would be markup.
void Form::settleControls() {
    for (QWidget* control : findChildren<QWidget*>()) {
        if (control->window() != this) continue;
        if (auto* button = qobject_cast<QPushButton*>(control)) {
            button->setAutoDefault(false);
            focusMark_->addTo(*button);
        }
        if (leavesReturnToTheForm(control)) control->installEventFilter(returnKey_);
        auto* label = qobject_cast<QLabel*>(control);
        if (label && label->textFormat() == Qt::AutoText) label->setTextFormat(Qt::PlainText);
    }
}

void Form::showEvent(QShowEvent* event) {
    // On a small screen the toolkit would open it smaller than its controls ask for.
    if (!event->spontaneous() && !testAttribute(Qt::WA_Resized)) resize(sizeHint());
    QDialog::showEvent(event);
    if (event->spontaneous()) return; // it only comes back from the task bar
    settleControls();
    setAttribute(Qt::WA_KeyboardFocusChange); // the style shows at once where the focus is
    focusFirst();
}

// As if Tab had gone there, so that the text of a line is selected.
void Form::focusFirst() {
    QWidget* first = canHaveFocus(firstFocus_) ? firstFocus_.data() : firstTabStop(*this);
    if (first) first->setFocus(Qt::TabFocusReason);
}

bool Form::focusNextPrevChild(bool next) {
    QWidget* stop = tabStop(*this, focusWidget(), next ? TabStep::Next : TabStep::Previous);
    if (!stop) return false;
    stop->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (isReturn(*event)) return takeReturn(focusWidget(), event);
    if (!event->matches(QKeySequence::Cancel)) return event->ignore();
    if (!event->isAutoRepeat()) close();
}

void Form::takeReturn(QWidget* at, QKeyEvent* event) {
    if (event->modifiers() & ~Qt::KeypadModifier) return event->ignore();
    if (event->isAutoRepeat()) return;
    QAbstractButton* button = pressedByReturn(at);
    if (!button) button = defaultButton(*this);
    if (button) button->click();
}

void Form::done(int result) {
    const bool open = isVisible();
    const QPointer<Form> form = this;
    QDialog::done(result);
    if (!open || !form || !closed) return;
    const auto tell = closed; // which goes with the form, if it goes now
    tell();
}

} // namespace tabrova
