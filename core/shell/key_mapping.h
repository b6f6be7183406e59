// Key presses of the toolkit as the editor's key codes. Keys go by what they type, not by their place.
#pragma once

class QKeyEvent;

namespace tabrova {

struct KeyPress {
    int keyCode; // 0 for a key that has no code of its own
    int shift;   // 1 Shift, 2 Control, 4 Alt
};

KeyPress keyPressOf(const QKeyEvent& event);

// A press of Shift, Control, Alt and the like alone, which is no command.
bool isModifierAlone(const QKeyEvent& event);

} // namespace tabrova
