#include "shell/key_mapping.h"

#include "editing/key_codes.h"

#include <QKeyEvent>

#include <string_view>

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

// By number; a blank for the keys between.
constexpr std::string_view PcKeys = "  1234567890    QWERTYUIOP    ASDFGHJKL     ZXCVBNM";
constexpr std::string_view MacintoshKeys = "ASDFHGZXCV BQWERYT123465 97 80 OU IP LJ K    NM";

int codeOfPlace(std::string_view keys, unsigned number) {
    return number < keys.size() && keys[number] != ' ' ? keys[number] : 0;
}

// What the toolkit tells of the place differs by system; X and Wayland count from 8.
int codeOfPlace(const QKeyEvent& event) {
#if defined(Q_OS_MACOS)
    return codeOfMacintoshKey(event.nativeVirtualKey());
#elif defined(Q_OS_WIN)
    return codeOfPcKey(event.nativeScanCode());
#else
    constexpr unsigned First = 8;
    return codeOfPcKey(event.nativeScanCode() - First);
#endif
}

bool isForeignText(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    if (characters.size() != 1 || characters[0] < 0x80) return false;
    return QChar::isDigit(characters[0]) ||
           (QChar::isLetter(characters[0]) && QChar::script(characters[0]) != QChar::Script_Latin);
}

} // namespace

int codeOfPcKey(unsigned number) { return codeOfPlace(PcKeys, number); }

int codeOfMacintoshKey(unsigned number) { return codeOfPlace(MacintoshKeys, number); }

QString placeItemOf(const QKeyEvent& event) {
    struct Row {
        int key;
        bool withControl;
        const char* item;
    };
    static constexpr Row Rows[] = {
        {Qt::Key_Home, false, "mnuGoStaffStart"},   {Qt::Key_End, false, "mnuGoStaffEnd"},
        {Qt::Key_Home, true, "mnuGoDocumentStart"}, {Qt::Key_End, true, "mnuGoDocumentEnd"},
        {Qt::Key_PageUp, false, "mnuGoPageUp"},     {Qt::Key_PageDown, false, "mnuGoPageDown"},
    };
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    for (const Row& row : Rows)
        if (row.key == event.key() && held == (row.withControl ? Qt::ControlModifier : Qt::NoModifier))
            return row.item;
    return {};
}

bool isCombination(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != Qt::NoModifier;
}

KeyPress keyPressOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const int shift = (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
                      (modifiers & Qt::AltModifier ? 4 : 0);
    if (isForeignText(event.text())) return {codeOfPlace(event), shift};
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
