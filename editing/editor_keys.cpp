// Keys, techniques and bar marks: what a key does to the cell under the cursor.
#include "editing/editor.h"
#include "editing/fret_palette.h"
#include "editing/key_codes.h"
#include "editing/key_table.h"
#include "editing/panel_placement.h"

namespace tabrova {

namespace {

Direction directionOf(int keyCode) {
    switch (keyCode) {
    case key::Right:
        return Direction::Right;
    case key::Left:
        return Direction::Left;
    case key::Up:
        return Direction::Up;
    default:
        return Direction::Down;
    }
}

} // namespace

Editor::Editor(EditingParts parts)
    : parts_(parts), document_(parts.document), view_(parts.view), cursor_(parts.document) {}

void Editor::picDocument_KeyDown(int keyCode, int shift) {
    const Act act(parts_.acts, "picDocument_KeyDown");
    if (isArrowKey(keyCode)) MoveCursor(directionOf(keyCode));
    cursor_.column();
    if (!document_.isGuitarTrack(document_.CurrentTrack)) {
        const auto row = keyRow(keyCode, shift);
        if (!row || !row->acceptedOnPercussion) return;
    }
    runKey(keyCode, shift);
    // A key without a row of its own is a plain redraw.
    if (!isArrowKey(keyCode)) refreshdrawing();
    changes().page = true;
    SetDebugLabel();
}

void Editor::runKey(int keyCode, int shift) {
    const auto row = keyRow(keyCode, shift);
    if (!row) return;
    switch (row->action) {
    case KeyAction::StoreNote:
        DrawAndStoreNote(row->code);
        break;
    case KeyAction::StoreTechnique:
        StoreTechnique(row->code);
        break;
    case KeyAction::RemoveBarMark:
        removeBarMark();
        break;
    case KeyAction::Move:
        break;
    }
}

// Any mark that begins with "r" counts as a repeat.
void Editor::removeBarMark() {
    const int column = cursor_.column();
    const std::string_view mark = document_.barMark(column);
    if (mark.starts_with('.') || mark.starts_with('r')) document_.setBarMark(column, "");
}

void Editor::StoreTechnique(int code) {
    const Act act(parts_.acts, "StoreTechnique");
    const CellPlace cell = cursor_.cell();
    if (code == key::B) openPanel(Panel::Bend);
    blankTechniquePlace();
    document_.setTechnique(cell.column, cell.row, techniqueText(code));
    if (modes.intelligent && (code == key::H || code == key::T)) picDocument_KeyDown(key::Right, 0);
}

// The second and third row put the first digit into the cell, which the typed digit then completes.
void Editor::chooseFromPalette(const Rect& highlight) {
    const Act act(parts_.acts, "picNoteSelector_Click");
    changes().pageTakesKeyboard = true;
    picDocument_KeyDown(key::Delete, 0);
    const auto fret = paletteFret(highlight);
    if (!fret || !document_.isGuitarTrack(document_.CurrentTrack)) return;
    const CellPlace cell = cursor_.cell();
    if (*fret >= 10) document_.setNote(cell.column, cell.row, std::to_string(*fret / 10));
    picDocument_KeyDown(key::Digit0 + *fret % 10, 0);
}

void Editor::takeBend(int code) {
    const Act act(parts_.acts, "picBend_KeyDown");
    StoreTechnique(code);
    refreshdrawing();
    changes().pageTakesKeyboard = true;
}

void Editor::takeRepeat(int times) {
    const Act act(parts_.acts, "RepeatScroller_KeyDown");
    DrawAndStoreNote(code::ClosedRepeatBase + times);
    changes().page = true;
    changes().pageTakesKeyboard = true;
}

void Editor::panelClosed() { picDocument_KeyDown(key::RedrawOnly, 0); }

void Editor::openPanel(Panel panel) {
    const Surroundings& around = parts_.surroundings;
    const PanelSize& size = panel == Panel::Bend ? around.bendPanel : around.repeatPanel;
    const Rect place = placeBesideCursor(page().nCursor, around.page, {0, 0, size.width, size.height});
    changes().panel = PanelOpening{panel, place};
}

// A piece of plain string over the technique's place; the redraw behind every key puts the rest right.
void Editor::blankTechniquePlace() {
    const Rect place = {page().nCursor.right() + 2, page().nCursor.top + 1,
                        document_.ColumnWidth - CursorWidth, CellHeight};
    view_.copyToPage({place, sprite::BlankCell, Raster::SrcCopy});
}

} // namespace tabrova
