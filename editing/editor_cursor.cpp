// The cursor's moves, by key and by mouse.
#include "core/document/document_operations.h"
#include "editing/editor.h"
#include "editing/panel_placement.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int LastColumnInStaff = ColumnsPerStaff - 1;
constexpr int LastString = StringsPerTrack - 1;

} // namespace

void Editor::MoveCursor(Direction direction) {
    switch (direction) {
    case Direction::Right:
        moveRight();
        break;
    case Direction::Left:
        moveLeft();
        break;
    case Direction::Up:
        if (document_.CurrentString > 0) {
            --document_.CurrentString;
            page_.nCursor.top -= StringSpacing;
        }
        break;
    case Direction::Down:
        if (document_.CurrentString < LastString) {
            ++document_.CurrentString;
            page_.nCursor.top += StringSpacing;
        }
        break;
    case Direction::Nowhere:
        break;
    }
    page_.placeLines();
    DrawFretBoard();
    host_.refreshFretboard();
}

void Editor::moveRight() {
    if (document_.ColumnInStaff < LastColumnInStaff) {
        ++document_.ColumnInStaff;
        page_.nCursor.left += document_.ColumnWidth;
        return;
    }
    // Moving past the end makes the document grow.
    if (document_.CurrentStaff == document_.StaffCount && !AppendStaff()) return;
    stepStaffForward();
}

void Editor::stepStaffForward() {
    document_.ColumnInStaff = 0;
    page_.nCursor.top += SlotHeight;
    ++document_.CurrentStaff;
    refreshdrawing();
    if (document_.CurrentStaff != document_.TopStaff + document_.VisibleStaves + 1) return;
    VScroll1_Change(scroll_.value + 1);
    page_.nCursor.top -= SlotHeight;
    // Puts the staff back behind the correction that the scrolling made of its own.
    document_.CurrentStaff = static_cast<std::int16_t>(document_.CurrentStaff + document_.VisibleStaves - 1);
    picDocument_MouseDown(MouseButton::None, page_.nCursor.left, page_.nCursor.top);
}

void Editor::moveLeft() {
    if (document_.ColumnInStaff > 0) {
        --document_.ColumnInStaff;
        page_.nCursor.left -= document_.ColumnWidth;
        return;
    }
    if (document_.CurrentStaff > 1) stepStaffBack();
    refreshdrawing();
}

void Editor::stepStaffBack() {
    document_.ColumnInStaff = LastColumnInStaff;
    page_.nCursor.top -= SlotHeight;
    --document_.CurrentStaff;
    if (document_.CurrentStaff != document_.TopStaff) return;
    VScroll1_Change(scroll_.value - 1);
    page_.nCursor.top += SlotHeight;
    ++document_.CurrentStaff;
}

void Editor::picDocument_MouseDown(MouseButton button, int x, int y) {
    if (x < CursorLeft || y < CursorTop) return;
    placeCursorAt(x, y);
    if (button == MouseButton::Right && document_.isGuitarTrack(document_.CurrentTrack))
        host_.openNoteSelector(placeAtPointer(x, y, host_.pageGeometry(), host_.noteSelectorGeometry()));
}

void Editor::placeCursorAt(int x, int y) {
    if (document_.ColumnWidth < 1) return;
    const int column = (x - CursorLeft) / document_.ColumnWidth;
    const int slot = (y - CursorTop) / SlotHeight;
    const int staff = document_.TopStaff + slot + 1;
    if (column >= ColumnsPerStaff || slot + 1 > document_.VisibleStaves || staff > document_.StaffCount)
        return;
    const int slotTop = SlotHeight * slot + CursorTop;
    const double string = roundHalfToEven(static_cast<double>(y - slotTop) / StringSpacing);
    document_.ColumnInStaff = column;
    document_.CurrentString = static_cast<std::int16_t>(std::min<double>(string, LastString));
    document_.CurrentStaff = static_cast<std::int16_t>(staff);
    SetDebugLabel();
    page_.nCursor.left = document_.ColumnWidth * column + CursorLeft;
    page_.nCursor.top = slotTop + StringSpacing * document_.CurrentString;
    refreshdrawing();
}

} // namespace tabrova
