#include "core/shell/key_mapping.h"

#include "editing/key_codes.h"

#include <QKeyEvent>

namespace tabrova {

namespace {

int codeOfKey(int qtKey) {
    switch (qtKey) {
    case Qt::Key_Backspace:
        return key::Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return key::Enter;
    case Qt::Key_Space:
        return key::Space;
    case Qt::Key_Left:
        return key::Left;
    case Qt::Key_Up:
        return key::Up;
    case Qt::Key_Right:
        return key::Right;
    case Qt::Key_Down:
        return key::Down;
    case Qt::Key_Delete:
        return key::Delete;
    default:
        break;
    }
    const bool letter = qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z;
    const bool digit = qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9;
    return letter || digit ? qtKey : 0;
}

// Digits that a layout types with Shift, and letters and digits whose key the toolkit names otherwise.
int codeOfText(const QString& text) {
    if (text.size() != 1) return 0;
    const char16_t character = text.at(0).toUpper().unicode();
    const bool digit = character >= u'0' && character <= u'9';
    const bool letter = character >= u'A' && character <= u'Z';
    return digit || letter ? character : 0;
}

} // namespace

KeyPress keyPressOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const int shift = (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
                      (modifiers & Qt::AltModifier ? 4 : 0);
    const int typed = codeOfText(event.text());
    return {typed != 0 ? typed : codeOfKey(event.key()), shift};
}

bool isModifierAlone(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

MouseButton mouseButtonOf(int qtButton) {
    switch (qtButton) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    default:
        return MouseButton::Middle;
    }
}

} // namespace tabrova
