// What the toolbar's key words stand for: a menu item, a key of the editor, or a note length.
#pragma once

#include <QString>

namespace tabrova {

struct ToolbarCommand {
    enum class Kind { Nothing, MenuItem, Key, NoteLength };
    Kind kind = Kind::Nothing;
    const char* menuItem = "";
    int value = 0; // the key code, or the note's length in columns
};

// Nothing for a word that has no command.
ToolbarCommand toolbarCommand(const QString& word);

} // namespace tabrova
