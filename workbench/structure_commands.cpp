#include "workbench/structure_commands.h"

#include "platform/box_title.h"

namespace tabrova {

namespace {

constexpr int MostBeats = 8;

struct ClearRow {
    const char* item;
    StaffClear what;
};

constexpr ClearRow ClearRows[] = {
    {"ClearStaffallall", {Rows::AllTracks, true, true, true}},
    {"clearstaffallnorepeats", {Rows::AllTracks, true, true, false}},
    {"clearstaffallnotes", {Rows::AllTracks, true, false, false}},
    {"clearstaffalltech", {Rows::AllTracks, false, true, false}},
    {"clearstaffcurrentall", {Rows::CurrentTrack, true, true, true}}, // the marks of all tracks, deliberately
    {"clearstaffcurrentnorepeats", {Rows::CurrentTrack, true, true, false}},
    {"clearstaffcurrentnotes", {Rows::CurrentTrack, true, false, false}},
    {"clearstaffcurrenttech", {Rows::CurrentTrack, false, true, false}},
};

struct LengthRow {
    const char* word;
    int columns;
};

constexpr LengthRow Lengths[] = {{"wholenote", 16},  {"halfnote", 8},   {"triplet", 3},
                                 {"quarternote", 4}, {"eighthnote", 2}, {"sixteenthnote", 1}};

} // namespace

void StructureCommands::registerRows(CommandTable& table) {
    registerStaves(table);
    registerColumns(table);
    table.item("mnuCopyStaff", [this] { editor_.copyStaff(); });
    for (int index = 0; index < MostBeats; ++index)
        table.item("mnuCopyNextBeat(" + std::to_string(index) + ")",
                   [this, index] { editor_.copyColumns(index + 1); });
    table.item("mnuEditPaste(0)", [this] { editor_.pasteColumns(Rows::AllTracks); });
    table.item("mnuEditPaste(1)", [this] { editor_.pasteColumns(Rows::CurrentTrack); });
}

void StructureCommands::registerStaves(CommandTable& table) {
    for (const ClearRow& row : ClearRows)
        table.item(row.item, [this, what = row.what] { editor_.clearCurrentStaff(what); });
    table.item("mnuEditNewBarBeforeCurrent", [this] { editor_.mnuEditNewBarBeforeCurrent(); });
    table.item("mnuEditNewBarAfterCurrentBar", [this] { editor_.mnuEditNewBarAfterCurrentBar(); });
    table.item("mnuEditnewBarAtEndofDocument", [this] { editor_.mnuEditnewBarAtEndofDocument(); });
    table.item("mnuDeleteBar", [this] { mnuDeleteBar(); });
}

void StructureCommands::registerColumns(CommandTable& table) {
    table.item("mnuEditInsertNoteOnAllTracks", [this] { editor_.InsertColumnAllTracks(); });
    table.item("mnuEditInsertNoteOnCurrentTrack", [this] { editor_.InsertColumnOnTrack(); });
    table.item("mnuEditRemoveNoteonAllTracks", [this] { editor_.RemoveColumnAllTracks(); });
    table.item("mnuEditRemoveNoteonCurrentTrack", [this] { editor_.RemoveColumnOnTrack(); });
    for (const LengthRow& row : Lengths)
        table.word(row.word, [this, columns = row.columns] { editor_.SetNoteLength(columns); });
}

void StructureCommands::mnuDeleteBar() {
    const bool only = bench_.document.StaffCount <= 1;
    const MessageBox question = {BoxTitle,
                                 QString::fromStdString(bench_.words.clearOnlyStaffQuestion),
                                 BoxIcon::Information,
                                 {BoxAnswer::Yes, BoxAnswer::No}};
    if (only && bench_.services.boxes.ask(question) != BoxAnswer::Yes) return;
    editor_.mnuDeleteBar();
}

} // namespace tabrova
