#include "workbench/entry_commands.h"

#include "editing/key_codes.h"

namespace tabrova {

namespace {

struct KeyOfItem {
    const char* item;
    int keyCode;
    int shift;
};

constexpr KeyOfItem Items[] = {
    {"mnuNoteDeleteNote", key::Delete, 0},
    {"mnuNoteDeleteTechnique", key::Delete, key::ShiftBit},
    {"mnuInsertSeparator", key::Enter, 0},
    {"mnuInsertOpenRepeat", key::Space, 0},
    {"mnuInsertClosedRepeat", key::Space, key::ShiftBit},
    {"mnuNoteRemoveBar", key::U, 0},
};

struct KeyOfWord {
    const char* word;
    int keyCode;
};

constexpr KeyOfWord Words[] = {
    {"bend", 'B'},   {"hammer", 'H'}, {"slide", 'S'},     {"vibrato", 'V'},
    {"whammy", 'W'}, {"dive", 'D'},   {"ghostnote", 'G'}, {"harmonic", 'M'},
    {"fade", 'F'},   {"tap", 'T'},    {"slap", 'L'},      {"pop", 'O'},
    {"ring", 'R'},   {"dead", 'X'},   {"staccato", 'Z'},  {"jump", 'J'},
};

} // namespace

void EntryCommands::registerRows(CommandTable& table) {
    table.item("mnuStandard", [this] { mnuStandard(); });
    table.item("mnuCCP", [this] { mnuCCP(); });
    table.item("mnuIntelligent", [this] { mnuIntelligent(); });
    for (const KeyOfItem& row : Items)
        table.item(row.item, [this, row] { bench_.editor.picDocument_KeyDown(row.keyCode, row.shift); });
    for (const KeyOfWord& row : Words)
        table.word(row.word, [this, row] { bench_.editor.picDocument_KeyDown(row.keyCode, 0); });
}

void EntryCommands::mnuIntelligent() { bench_.editor.modes.intelligent = menus_.isChecked("mnuIntelligent"); }

void EntryCommands::chooseMode(bool powerChord) {
    bench_.editor.modes.powerChord = powerChord;
    menus_.setChecked("mnuStandard", !powerChord);
    menus_.setChecked("mnuCCP", powerChord);
}

} // namespace tabrova
