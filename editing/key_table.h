// The whole command set of entry: which key does what, under which Shift state, and whether percussion tracks
// take it.
#pragma once

#include <optional>
#include <string_view>

namespace tabrova {

enum class KeyAction { Move, StoreNote, StoreTechnique, RemoveBarMark };
enum class ShiftRule { Any, Clear, Set };

struct KeyRow {
    int keyCode;
    ShiftRule shift;
    KeyAction action;
    int code; // what the action is called with
    bool acceptedOnPercussion;
};

// The row of a key under this modifier state (only the Shift bit, 1, is looked at); nothing for a key without
// one.
std::optional<KeyRow> keyRow(int keyCode, int shift);

// The technique that a key or an internal code stores; "" for the codes that empty the cell and for any
// other.
std::string_view techniqueText(int code);

bool isArrowKey(int keyCode);

} // namespace tabrova
