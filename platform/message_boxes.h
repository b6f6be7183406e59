// Message boxes: a title, a text, an icon and some buttons, one of which is the answer.
#pragma once

#include <QList>
#include <QString>

#include <deque>
#include <map>

namespace tabrova {

enum class BoxIcon { None, Information, Question, Exclamation, Critical };
enum class BoxAnswer { Ok, Cancel, Yes, No };

struct MessageBox {
    QString title;
    QString text;
    BoxIcon icon = BoxIcon::None;
    QList<BoxAnswer> buttons = {BoxAnswer::Ok}; // the first is the default
};

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    // What stands on the buttons instead of the toolkit's words.
    std::map<BoxAnswer, QString> buttonTexts;
    // A box that is closed without a button answers Cancel.
    virtual BoxAnswer ask(const MessageBox& box) = 0;
};

class DesktopMessageBoxes : public MessageBoxes {
  public:
    BoxAnswer ask(const MessageBox& box) override;
};

// Answers from a queue, by the default button when the queue is empty, and keeps what was asked.
class RecordingMessageBoxes : public MessageBoxes {
  public:
    struct Asked {
        MessageBox box;
        BoxAnswer answer;
    };

    BoxAnswer ask(const MessageBox& box) override;
    void queueAnswer(BoxAnswer answer) { answers_.push_back(answer); }
    // The boxes since the last call.
    QList<Asked> take();

  private:
    std::deque<BoxAnswer> answers_;
    QList<Asked> asked_;
};

} // namespace tabrova
