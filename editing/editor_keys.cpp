// Keys, techniques and bar marks: what a key does to the cell under the cursor.
#include "core/document/document_operations.h"
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

Editor::Editor(EditorParts parts)
    : document_(parts.document), view_(parts.view), sound_(parts.sound), host_(parts.host),
      words_(parts.words) {}

void Editor::picDocument_KeyDown(int keyCode, int shift) {
    if (isArrowKey(keyCode)) MoveCursor(directionOf(keyCode));
    GetCurrentXPosition(document_);
    if (!document_.isGuitarTrack(document_.CurrentTrack)) {
        const auto row = keyRow(keyCode, shift);
        if (!row || !row->acceptedOnPercussion) return;
    }
    runKey(keyCode, shift);
    // A key without a row of its own is a plain redraw.
    if (!isArrowKey(keyCode)) refreshdrawing();
    host_.refreshPage();
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
    const std::string_view mark = document_.barMark(document_.CurrentColumn);
    if (mark.starts_with('.') || mark.starts_with('r')) document_.setBarMark(document_.CurrentColumn, "");
}

void Editor::StoreTechnique(int code) {
    GetCurrentXPosition(document_);
    if (code == key::B) openPanel(Panel::Bend);
    blankTechniquePlace();
    document_.setTechnique(document_.CurrentColumn, document_.cursorRow(), techniqueText(code));
    if (modes.intelligent && (code == key::H || code == key::T)) picDocument_KeyDown(key::Right, 0);
}

// The second and third row put the first digit into the cell, which the typed digit then completes.
void Editor::chooseFromPalette(const Rect& highlight) {
    picDocument_KeyDown(key::Delete, 0);
    const auto fret = paletteFret(highlight);
    if (!fret || !document_.isGuitarTrack(document_.CurrentTrack)) return;
    if (*fret >= 10)
        document_.setNote(document_.CurrentColumn, document_.cursorRow(), std::to_string(*fret / 10));
    picDocument_KeyDown(key::Digit0 + *fret % 10, 0);
}

void Editor::openPanel(Panel panel) {
    host_.openPanel(panel,
                    placeBesideCursor(page_.nCursor, host_.pageGeometry(), host_.panelGeometry(panel)));
}

// A piece of plain string over the technique's place; the redraw behind every key puts the rest right.
void Editor::blankTechniquePlace() {
    const Rect place = {page_.nCursor.right() + 2, page_.nCursor.top + 1, document_.ColumnWidth - CursorWidth,
                        CellHeight};
    view_.copyToPage({place, sprite::BlankCell, Raster::SrcCopy});
}

} // namespace tabrova
