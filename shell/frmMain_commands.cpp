// Which command of the main window runs what: its menus and its toolbar.
#include "editing/clipboard.h"
#include "editing/key_codes.h"
#include "shell/frmMain.h"
#include "shell/toolbar_commands.h"

namespace tabrova {

void frmMain::connectMenus() {
    menu_->connectItem("mnuFileNew", [this] { commands_.mnuFileNew(); });
    menu_->connectItem("mnuFileOpen", [this] { commands_.mnuFileOpen(); });
    menu_->connectItem("mnuFileSave", [this] { commands_.mnuFileSave(); });
    menu_->connectItem("mnuSaveAs", [this] { commands_.mnuSaveAs(); });
    menu_->connectItem("mnuExit", [this] { close(); });
    menu_->connectItem("mnuStandard", [this] { chooseMode(false); });
    menu_->connectItem("mnuCCP", [this] { chooseMode(true); });
    menu_->connectItem("mnuIntelligent",
                       [this] { editor_.modes.intelligent = menu_->isChecked("mnuIntelligent"); });
    menu_->connectItem("mnuViewRefresh", [this] { editor_.refreshdrawing(); });
    menu_->connectItem("mnuToolsOptions", [this] { showOptions(OptionsTab::Sound); });
    menu_->connectItem("mnuSoundPlayAll", [this] { play(PlayFrom::Start); });
    menu_->connectItem("mnuPlayFromHere", [this] { play(PlayFrom::Cursor); });
    menu_->connectItem("mnuPlaybackStop", [this] { mnuPlaybackStop(); });
    menu_->connectItem("mnuTechSupport",
                       [this] { openSettingAddress("SupportAddress", "mailto:support@tabrova.invalid"); });
    menu_->connectItem("mnuNewVersionCheck",
                       [this] { openSettingAddress("UpdatePage", "https://tabrova.invalid/update"); });
    menu_->connectItem("mnuAbout", [this] { showAbout(); });
    menu_->setChecked("mnuStandard", true);
    connectStaffMenu();
    connectNoteMenu();
    connectClipboardMenu();
}

void frmMain::connectStaffMenu() {
    struct ClearRow {
        const char* name;
        StaffClear what;
    };
    constexpr ClearRow rows[] = {
        {"ClearStaffallall", {Rows::AllTracks, true, true, true}},
        {"clearstaffallnorepeats", {Rows::AllTracks, true, true, false}},
        {"clearstaffallnotes", {Rows::AllTracks, true, false, false}},
        {"clearstaffalltech", {Rows::AllTracks, false, true, false}},
        {"clearstaffcurrentall",
         {Rows::CurrentTrack, true, true, true}}, // the marks of all tracks, deliberately
        {"clearstaffcurrentnorepeats", {Rows::CurrentTrack, true, true, false}},
        {"clearstaffcurrentnotes", {Rows::CurrentTrack, true, false, false}},
        {"clearstaffcurrenttech", {Rows::CurrentTrack, false, true, false}}};
    for (const ClearRow& row : rows)
        menu_->connectItem(row.name, [this, what = row.what] { editor_.clearCurrentStaff(what); });
    menu_->connectItem("mnuEditNewBarBeforeCurrent", [this] { editor_.mnuEditNewBarBeforeCurrent(); });
    menu_->connectItem("mnuEditNewBarAfterCurrentBar", [this] { editor_.mnuEditNewBarAfterCurrentBar(); });
    menu_->connectItem("mnuEditnewBarAtEndofDocument", [this] { editor_.mnuEditnewBarAtEndofDocument(); });
    menu_->connectItem("mnuDeleteBar", [this] { editor_.mnuDeleteBar(); });
}

void frmMain::connectClipboardMenu() {
    constexpr int MostBeats = 8;
    menu_->connectItem("mnuCopyStaff", [this] { copyStaff(document_); });
    for (int index = 0; index < MostBeats; ++index)
        menu_->connectItem(QString("mnuCopyNextBeat(%1)").arg(index),
                           [this, index] { copyColumns(document_, index + 1); });
    menu_->connectItem("mnuEditPaste(0)", [this] { editor_.pasteColumns(Rows::AllTracks); });
    menu_->connectItem("mnuEditPaste(1)", [this] { editor_.pasteColumns(Rows::CurrentTrack); });
}

void frmMain::runToolbarWord(const QString& word) {
    const ToolbarCommand command = toolbarCommand(word);
    switch (command.kind) {
    case ToolbarCommand::Kind::MenuItem:
        menu_->action(command.menuItem)->trigger();
        break;
    case ToolbarCommand::Kind::Key:
        editor_.picDocument_KeyDown(command.value, 0);
        break;
    case ToolbarCommand::Kind::NoteLength:
        editor_.SetNoteLength(command.value);
        break;
    case ToolbarCommand::Kind::Nothing:
        break;
    }
}

void frmMain::connectNoteMenu() {
    const auto sends = [this](const char* name, int keyCode, int shift) {
        menu_->connectItem(name, [this, keyCode, shift] { editor_.picDocument_KeyDown(keyCode, shift); });
    };
    sends("mnuNoteDeleteNote", key::Delete, 0);
    sends("mnuNoteDeleteTechnique", key::Delete, key::ShiftBit);
    sends("mnuInsertSeparator", key::Enter, 0);
    sends("mnuInsertOpenRepeat", key::Space, 0);
    sends("mnuInsertClosedRepeat", key::Space, key::ShiftBit);
    sends("mnuNoteRemoveBar", key::U, 0);
    menu_->connectItem("mnuEditInsertNoteOnAllTracks", [this] { editor_.InsertColumnAllTracks(); });
    menu_->connectItem("mnuEditInsertNoteOnCurrentTrack", [this] { editor_.InsertColumnOnTrack(); });
    menu_->connectItem("mnuEditRemoveNoteonAllTracks", [this] { editor_.RemoveColumnAllTracks(); });
    menu_->connectItem("mnuEditRemoveNoteonCurrentTrack", [this] { editor_.RemoveColumnOnTrack(); });
}

void frmMain::chooseMode(bool powerChord) {
    editor_.modes.powerChord = powerChord;
    menu_->setChecked("mnuStandard", !powerChord);
    menu_->setChecked("mnuCCP", powerChord);
}

} // namespace tabrova
