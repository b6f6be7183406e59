// The editor's commands that change the shape of the grid.
#include "core/document/document_operations.h"
#include "editing/clipboard.h"
#include "editing/editor.h"
#include "editing/key_codes.h"

namespace tabrova {

void Editor::clearCurrentStaff(const StaffClear& what) {
    const Act act(parts_.acts, "clearCurrentStaff");
    clearStaff(document_, what);
    refreshdrawing();
}

void Editor::mnuEditNewBarAfterCurrentBar() {
    const Act act(parts_.acts, "mnuEditNewBarAfterCurrentBar");
    newStaffAfterCurrent(document_);
    refreshdrawing();
}

void Editor::mnuEditNewBarBeforeCurrent() {
    const Act act(parts_.acts, "mnuEditNewBarBeforeCurrent");
    newStaffBeforeCurrent(document_);
    refreshdrawing();
}

void Editor::mnuEditnewBarAtEndofDocument() {
    const Act act(parts_.acts, "mnuEditnewBarAtEndofDocument");
    AppendStaff();
    refreshdrawing();
}

void Editor::mnuDeleteBar() {
    if (document_.StaffCount <= 1) return clearOnlyStaff();
    const Act act(parts_.acts, "mnuDeleteBar");
    deleteCurrentStaff(document_);
    cursor_.pullPageIntoDocument();
    // The cursor comes back into the document by plain moves.
    while (document_.CurrentStaff > document_.StaffCount)
        picDocument_KeyDown(key::Left, 0);
    refreshdrawing();
}

void Editor::clearOnlyStaff() {
    const Act act(parts_.acts, "mnuDeleteBar");
    ClearStaffallall(document_);
    refreshdrawing();
}

// The bar mark of the new column goes as if the user removed it.
void Editor::InsertColumnAllTracks() {
    const Act act(parts_.acts, "mnuEditInsertNoteOnAllTracks");
    InsertColumn(document_, Rows::AllTracks);
    picDocument_KeyDown(key::U, 0);
    refreshdrawing();
}

void Editor::InsertColumnOnTrack() {
    const Act act(parts_.acts, "mnuEditInsertNoteOnCurrentTrack");
    InsertColumn(document_, Rows::CurrentTrack);
    refreshdrawing();
}

void Editor::RemoveColumnAllTracks() {
    const Act act(parts_.acts, "mnuEditRemoveNoteonAllTracks");
    RemoveColumn(document_, Rows::AllTracks);
    refreshdrawing();
}

void Editor::RemoveColumnOnTrack() {
    const Act act(parts_.acts, "mnuEditRemoveNoteonCurrentTrack");
    RemoveColumn(document_, Rows::CurrentTrack);
    refreshdrawing();
}

void Editor::SetNoteLength(int columns) {
    const Act act(parts_.acts, "SetNoteLength");
    tabrova::SetNoteLength(document_, columns);
    refreshdrawing();
}

void Editor::copyStaff() {
    const Act act(parts_.acts, "mnuCopyStaff");
    tabrova::copyStaff(document_);
}

void Editor::copyColumns(int columns) {
    const Act act(parts_.acts, "mnuCopyNextBeat");
    tabrova::copyColumns(document_, columns);
}

void Editor::pasteColumns(Rows rows) {
    const Act act(parts_.acts, "mnuEditPaste");
    PasteProcedure(document_, rows);
    refreshdrawing();
}

} // namespace tabrova
