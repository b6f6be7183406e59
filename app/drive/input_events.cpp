#include "app/drive/input_events.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeySequence>
#include <QMouseEvent>
#include <QTest>

namespace tabrova {

namespace {

Qt::Key keyOf(QChar character) {
    return character.unicode() >= 0x20 ? static_cast<Qt::Key>(character.toUpper().unicode())
                                       : Qt::Key_unknown;
}

// What a key types, as a keyboard would send it; nothing with Control or Alt.
QString textOf(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier)) return {};
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return "\r";
    case Qt::Key_Tab:
        return "\t";
    case Qt::Key_Backspace:
        return "\b";
    case Qt::Key_Delete:
        return "\x7F";
    case Qt::Key_Escape:
        return "\x1B";
    default:
        break;
    }
    if (key < 0x20 || key > 0xFFFF) return {};
    const QChar capital(static_cast<char16_t>(key));
    return modifiers & Qt::ShiftModifier ? capital : capital.toLower();
}

} // namespace

bool pressKey(QWidget* widget, const QString& keyName) {
    const QKeySequence keys = QKeySequence::fromString(keyName, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown) return false;
    const Qt::Key key = keys[0].key();
    const Qt::KeyboardModifiers modifiers = keys[0].keyboardModifiers();
    QTest::sendKeyEvent(QTest::Click, widget, key, textOf(key, modifiers), modifiers);
    return true;
}

void typeText(QWidget* widget, const QString& text) {
    widget->setFocus();
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, widget, keyOf(character), QString(character), Qt::NoModifier);
}

std::optional<MouseCommand> mouseCommand(const QStringList& words) {
    MouseCommand command;
    QStringList rest = words;
    if (rest.size() >= 2) {
        bool x = false, y = false;
        const QPoint at(rest[0].toInt(&x), rest[1].toInt(&y));
        if (x && y) {
            command.position = at;
            rest = rest.mid(2);
        }
    }
    if (rest.isEmpty()) return command;
    const QString button = rest.takeFirst().toLower();
    if (!rest.isEmpty()) return std::nullopt;
    if (button == "right") {
        command.button = Qt::RightButton;
    } else if (button == "middle") {
        command.button = Qt::MiddleButton;
    } else if (button != "left") {
        return std::nullopt;
    }
    return command;
}

void Mouse::send(QWidget* widget, QEvent::Type type, Qt::MouseButton button, const QPoint& at) const {
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, held_, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void Mouse::press(QWidget* widget, Qt::MouseButton button, const QPoint& at) {
    held_ |= button;
    QTest::mousePress(widget, button, Qt::NoModifier, at);
}

void Mouse::release(QWidget* widget, Qt::MouseButton button, const QPoint& at) {
    held_ &= ~button;
    QTest::mouseRelease(widget, button, Qt::NoModifier, at);
}

void Mouse::act(QWidget* control, MouseAct what, const MouseCommand& command) {
    QPoint at = command.position.value_or(control->rect().center());
    QWidget* widget = control;
    // The rows of a list and the lines of a text stand in a widget inside the control's frame.
    if (auto* area = qobject_cast<QAbstractScrollArea*>(control)) {
        widget = area->viewport();
        at = widget->mapFrom(control, at);
    }
    switch (what) {
    case MouseAct::Click:
        press(widget, command.button, at);
        release(widget, command.button, at);
        break;
    case MouseAct::Down:
        press(widget, command.button, at);
        break;
    case MouseAct::Up:
        release(widget, command.button, at);
        break;
    case MouseAct::Move:
        send(widget, QEvent::MouseMove, Qt::NoButton, at);
        break;
    case MouseAct::DoubleClick:
        if (widget->isEnabled()) send(widget, QEvent::MouseButtonDblClick, command.button, at);
        break;
    }
}

} // namespace tabrova
