#include "platform/message_boxes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace tabrova {

namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton buttonOf(BoxAnswer answer) {
    switch (answer) {
    case BoxAnswer::Yes:
        return QMessageBox::Yes;
    case BoxAnswer::No:
        return QMessageBox::No;
    case BoxAnswer::Cancel:
        return QMessageBox::Cancel;
    case BoxAnswer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

BoxAnswer answerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Ok:
        return BoxAnswer::Ok;
    default:
        return BoxAnswer::Cancel;
    }
}

// The toolkit answers the window's cross and Escape by a button of its own choice; here they are no button.
class BoxWindow : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        reject();
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) return reject();
        QMessageBox::keyPressEvent(event);
    }
};

} // namespace

BoxAnswer DesktopMessageBoxes::ask(const MessageBox& box) {
    BoxWindow window(QApplication::activeWindow());
    window.setWindowTitle(box.title);
    window.setTextFormat(Qt::PlainText);
    window.setText(box.text);
    window.setIcon(iconOf(box.icon));
    for (const BoxAnswer button : box.buttons) {
        const QString text = buttonTexts[button];
        QPushButton* shown = window.addButton(buttonOf(button));
        if (!text.isEmpty()) shown->setText(text);
    }
    window.setDefaultButton(buttonOf(box.buttons.first()));
    return answerOf(window.exec());
}

BoxAnswer RecordingMessageBoxes::ask(const MessageBox& box) {
    BoxAnswer answer = box.buttons.first();
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    }
    asked_.append({box, answer});
    return answer;
}

QList<RecordingMessageBoxes::Asked> RecordingMessageBoxes::take() { return std::exchange(asked_, {}); }

} // namespace tabrova
