#include "shell/toolbar_commands.h"

namespace tabrova {

namespace {

struct WordRow {
    const char* word;
    ToolbarCommand command;
};

constexpr ToolbarCommand item(const char* name) { return {ToolbarCommand::Kind::MenuItem, name, 0}; }
constexpr ToolbarCommand key(int code) { return {ToolbarCommand::Kind::Key, "", code}; }
constexpr ToolbarCommand length(int columns) { return {ToolbarCommand::Kind::NoteLength, "", columns}; }

constexpr WordRow Words[] = {
    {"new", item("mnuFileNew")},
    {"open", item("mnuFileOpen")},
    {"save", item("mnuFileSave")},
    {"print", item("mnuFilePrint")},
    {"properties", item("mnuFileProperties")},
    {"playall", item("mnuSoundPlayAll")},
    {"playfromhere", item("mnuPlayFromHere")},
    {"stop", item("mnuPlaybackStop")},
    {"tr3", item("mnuNewVersionCheck")},
    {"bend", key('B')},
    {"hammer", key('H')},
    {"slide", key('S')},
    {"vibrato", key('V')},
    {"whammy", key('W')},
    {"dive", key('D')},
    {"ghostnote", key('G')},
    {"harmonic", key('M')},
    {"fade", key('F')},
    {"tap", key('T')},
    {"slap", key('L')},
    {"pop", key('O')},
    {"ring", key('R')},
    {"dead", key('X')},
    {"staccato", key('Z')},
    {"jump", key('J')},
    {"wholenote", length(16)},
    {"halfnote", length(8)},
    {"triplet", length(3)},
    {"quarternote", length(4)},
    {"eighthnote", length(2)},
    {"sixteenthnote", length(1)},
};

} // namespace

ToolbarCommand toolbarCommand(const QString& word) {
    for (const WordRow& row : Words)
        if (word == row.word) return row.command;
    return {};
}

} // namespace tabrova
