// The editor's commands that change the shape of the grid.
#include "core/document/document_operations.h"
#include "editing/clipboard.h"
#include "editing/editor.h"
#include "editing/key_codes.h"

namespace tabrova {

void Editor::finishStructureEdit() {
    refreshdrawing();
    SetDebugLabel();
}

void Editor::clearCurrentStaff(const StaffClear& what) {
    clearStaff(document_, what);
    finishStructureEdit();
}

void Editor::mnuEditNewBarAfterCurrentBar() {
    newStaffAfterCurrent(document_);
    finishStructureEdit();
}

void Editor::mnuEditNewBarBeforeCurrent() {
    newStaffBeforeCurrent(document_);
    finishStructureEdit();
}

void Editor::mnuEditnewBarAtEndofDocument() {
    AppendStaff();
    finishStructureEdit();
}

void Editor::mnuDeleteBar() {
    if (document_.StaffCount <= 1) {
        if (!host_.confirmClearingOnlyStaff()) return;
        ClearStaffallall(document_);
        return finishStructureEdit();
    }
    deleteCurrentStaff(document_);
    pullPageIntoDocument();
    // The cursor comes back into the document by plain moves.
    while (document_.CurrentStaff > document_.StaffCount)
        picDocument_KeyDown(key::Left, 0);
    finishStructureEdit();
}

// A page that is scrolled further than the shorter document reaches slides back under the cursor, which stays
// in its staff.
void Editor::pullPageIntoDocument() {
    const int staves = scroll_.value - scrollMaximum();
    if (staves <= 0) return;
    scroll_.value -= staves;
    document_.TopStaff = static_cast<std::int16_t>(document_.TopStaff - staves);
    page_.nCursor.top += staves * SlotHeight;
}

// The bar mark of the new column goes as if the user removed it.
void Editor::InsertColumnAllTracks() {
    InsertColumn(document_, Rows::AllTracks);
    picDocument_KeyDown(key::U, 0);
    finishStructureEdit();
}

void Editor::InsertColumnOnTrack() {
    InsertColumn(document_, Rows::CurrentTrack);
    finishStructureEdit();
}

void Editor::RemoveColumnAllTracks() {
    RemoveColumn(document_, Rows::AllTracks);
    finishStructureEdit();
}

void Editor::RemoveColumnOnTrack() {
    RemoveColumn(document_, Rows::CurrentTrack);
    finishStructureEdit();
}

void Editor::SetNoteLength(int columns) {
    tabrova::SetNoteLength(document_, columns);
    refreshdrawing();
}

void Editor::pasteColumns(Rows rows) {
    PasteProcedure(document_, rows);
    finishStructureEdit();
}

} // namespace tabrova
