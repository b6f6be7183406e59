// Key presses and mouse buttons of the toolkit as the editor's codes. Keys go by what they type; where that
// is no Latin text, by their place on the keyboard.
#pragma once

#include "editing/editor.h"

#include <QString>

class QKeyEvent;

namespace tabrova {

struct KeyPress {
    int keyCode; // 0 for a key that has no code of its own
    int shift;   // 1 Shift, 2 Control, 4 Alt
};

KeyPress keyPressOf(const QKeyEvent& event);

// The letter or digit, in its editor's code, that stands on a Latin keyboard where this key is; 0 for any
// other place. The number is that of a PC's keyboard, from 1 for Escape.
int codeOfPcKey(unsigned number);
// The same by the numbers of a Macintosh keyboard, from 0 for A.
int codeOfMacintoshKey(unsigned number);

// The menu item of a key that goes to a place, such as Home; "" for all others.
QString placeItemOf(const QKeyEvent& event);

// A press together with Control, Alt or Meta: a shortcut, or nothing.
bool isCombination(const QKeyEvent& event);

// A press of Shift, Control, Alt and the like alone, which is no command.
bool isModifierAlone(const QKeyEvent& event);

// Whatever is neither the left nor the right button counts as the middle one.
MouseButton mouseButtonOf(int qtButton);

} // namespace tabrova
