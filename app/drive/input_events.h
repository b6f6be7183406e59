// Keys and mouse events as a person would make them.
#pragma once

#include <QEvent>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <optional>

namespace tabrova {

// A key by its name, such as "Shift+Space", "Return", "7" or "Num+3". False for a name that is no key.
bool pressKey(QWidget* widget, const QString& keyName);

// Gives the widget the focus and types the text key by key.
void typeText(QWidget* widget, const QString& text);

enum class MouseAct { Click, Down, Move, Up, DoubleClick };

struct MouseCommand {
    std::optional<QPoint> position; // the widget's middle if left out
    Qt::MouseButton button = Qt::LeftButton;
};

// From the words behind the control's name; std::nullopt for words that do not fit.
std::optional<MouseCommand> mouseCommand(const QStringList& words);

// One mouse, whose keys may stay held from one act to the next.
class Mouse {
  public:
    void act(QWidget* control, MouseAct what, const MouseCommand& command);

  private:
    void press(QWidget* widget, Qt::MouseButton button, const QPoint& at);
    void release(QWidget* widget, Qt::MouseButton button, const QPoint& at);
    void send(QWidget* widget, QEvent::Type type, Qt::MouseButton button, const QPoint& at) const;

    Qt::MouseButtons held_ = Qt::NoButton;
};

} // namespace tabrova
