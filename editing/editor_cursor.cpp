// The cursor's moves, by key and by mouse.
#include "editing/editor.h"
#include "editing/panel_placement.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int LastColumnInStaff = ColumnsPerStaff - 1;
constexpr int LastString = StringsPerTrack - 1;

} // namespace

void Editor::MoveCursor(Direction direction) {
    const Act act(parts_.acts, "MoveCursor");
    switch (direction) {
    case Direction::Right:
        moveRight();
        break;
    case Direction::Left:
        moveLeft();
        break;
    case Direction::Up:
        cursor_.stepString(-1);
        break;
    case Direction::Down:
        cursor_.stepString(1);
        break;
    case Direction::Nowhere:
        break;
    }
    cursor_.placeLines();
    DrawFretBoard();
    changes().cursor = true;
}

// Moving past the end makes the document grow.
void Editor::moveRight() {
    if (cursor_.stepColumn(1)) return;
    if (document_.CurrentStaff == document_.StaffCount && !AppendStaff()) return;
    stepStaffForward();
}

void Editor::stepStaffForward() {
    cursor_.stepStaff(1, 0);
    refreshdrawing();
    if (document_.CurrentStaff != document_.TopStaff + document_.VisibleStaves + 1) return;
    VScroll1_Change(scroll().value + 1);
    cursor_.slideMarker(-1);
    // Puts the staff back behind the correction that the scrolling made of its own.
    cursor_.renumberStaff(document_.VisibleStaves - 1);
    picDocument_MouseDown(MouseButton::None, page().nCursor.left, page().nCursor.top);
}

void Editor::moveLeft() {
    if (cursor_.stepColumn(-1)) return;
    if (document_.CurrentStaff > 1) stepStaffBack();
    refreshdrawing();
}

void Editor::stepStaffBack() {
    cursor_.stepStaff(-1, LastColumnInStaff);
    if (document_.CurrentStaff != document_.TopStaff) return;
    VScroll1_Change(scroll().value - 1);
    cursor_.slideMarker(1);
    cursor_.renumberStaff(1);
}

void Editor::goTo(int staff, int columnInStaff) {
    const int staves = document_.StaffCount;
    const int visible = document_.VisibleStaves;
    if (staves < 1 || visible < 1) return;
    const Act act(parts_.acts, "goTo");
    staff = std::clamp(staff, 1, staves);
    if (staff <= document_.TopStaff) VScroll1_Change(staff);
    if (staff > document_.TopStaff + visible) VScroll1_Change(staff - visible + 1);
    cursor_.moveTo(staff, std::clamp(columnInStaff, 0, LastColumnInStaff), document_.CurrentString,
                   SlotHeight * (staff - document_.TopStaff - 1) + CursorTop);
    refreshdrawing();
}

void Editor::picDocument_MouseDown(MouseButton button, int x, int y) {
    if (x < CursorLeft || y < CursorTop) return;
    const Act act(parts_.acts, "picDocument_MouseDown");
    placeCursorAt(x, y);
    if (button != MouseButton::Right || !document_.isGuitarTrack(document_.CurrentTrack)) return;
    const PanelSize& palette = parts_.surroundings.fretPalette;
    changes().fretPalette =
        placeAtPointer(x, y, parts_.surroundings.page, {0, 0, palette.width, palette.height});
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
    cursor_.moveTo(staff, column, static_cast<int>(std::min<double>(string, LastString)), slotTop);
    refreshdrawing();
}

} // namespace tabrova
