// Key presses and mouse buttons of the toolkit as the editor's codes. Keys go by what they type, not by their
// place.
#pragma once

#include "editing/editor.h"

class QKeyEvent;

namespace tabrova {

struct KeyPress {
    int keyCode; // 0 for a key that has no code of its own
    int shift;   // 1 Shift, 2 Control, 4 Alt
};

KeyPress keyPressOf(const QKeyEvent& event);

// A press of Shift, Control, Alt and the like alone, which is no command.
bool isModifierAlone(const QKeyEvent& event);

// Whatever is neither the left nor the right button counts as the middle one.
MouseButton mouseButtonOf(int qtButton);

} // namespace tabrova
