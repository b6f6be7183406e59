#include "editing/cursor.h"

#include "core/document/document_operations.h"

#include <algorithm>

namespace tabrova {

CellPlace Cursor::cell() {
    GetCurrentXPosition(document_);
    return {document_.CurrentColumn, document_.cursorRow()};
}

bool Cursor::stepColumn(int columns) {
    // Compared before it is counted: a damaged document's column may be any number.
    const int last = columns > 0 ? ColumnsPerStaff - columns : -columns;
    if (columns > 0 ? document_.ColumnInStaff >= last : document_.ColumnInStaff < last) return false;
    document_.ColumnInStaff += columns;
    objects.nCursor.left += columns * document_.ColumnWidth;
    return true;
}

bool Cursor::stepString(int strings) {
    const int string = document_.CurrentString + strings;
    if (strings > 0 ? string >= StringsPerTrack : string < 0) return false;
    document_.CurrentString = static_cast<std::int16_t>(string);
    objects.nCursor.top += strings * StringSpacing;
    return true;
}

void Cursor::stepStaff(int staves, int column) {
    document_.ColumnInStaff = column;
    slideMarker(staves);
    renumberStaff(staves);
}

void Cursor::moveTo(int staff, int columnInStaff, int string, int slotTop) {
    document_.ColumnInStaff = columnInStaff;
    document_.CurrentString = static_cast<std::int16_t>(string);
    document_.CurrentStaff = static_cast<std::int16_t>(staff);
    placeMarkerInColumn();
    objects.nCursor.top = slotTop + StringSpacing * string;
}

void Cursor::goHome() {
    scroll.value = document_.TopStaff + 1;
    objects.nCursor.left = CursorLeft;
    objects.nCursor.top = CursorTop;
}

void Cursor::renumberStaff(int staves) {
    document_.CurrentStaff = static_cast<std::int16_t>(document_.CurrentStaff + staves);
}

void Cursor::placeMarkerInColumn() {
    objects.nCursor.left = document_.ColumnInStaff * document_.ColumnWidth + CursorLeft;
}

bool Cursor::scrollTo(int value) {
    value = std::clamp(value, scroll.minimum, scroll.maximum);
    if (value == scroll.value) return false;
    scroll.value = value;
    const int rowOfCursor = document_.CurrentStaff - document_.TopStaff;
    document_.TopStaff = static_cast<std::int16_t>(value - 1);
    int staff = document_.TopStaff + rowOfCursor;
    if (rowOfCursor == document_.VisibleStaves + 1) staff -= document_.VisibleStaves;
    document_.CurrentStaff = static_cast<std::int16_t>(staff);
    return true;
}

int Cursor::scrollMaximum() const {
    return document_.VisibleStaves >= document_.StaffCount
               ? 1
               : document_.StaffCount - document_.VisibleStaves + 1;
}

bool Cursor::takeScrollRange() {
    scroll.maximum = scrollMaximum();
    return scroll.value <= scroll.maximum;
}

void Cursor::pullPageIntoDocument() {
    const int staves = scroll.value - scrollMaximum();
    if (staves <= 0) return;
    scroll.value -= staves;
    document_.TopStaff = static_cast<std::int16_t>(document_.TopStaff - staves);
    slideMarker(staves);
}

void Cursor::keepOnPage(int pageHeight) {
    constexpr int RoomBelowCursor = 15;
    const int bottom =
        objects.nCursor.top + RoomBelowCursor + (StringsPerTrack - document_.CurrentString) * StringSpacing;
    if (bottom <= pageHeight || document_.VisibleStaves < 1 || objects.nCursor.top <= SlotHeight) return;
    while (objects.nCursor.top > document_.VisibleStaves * SlotHeight) {
        slideMarker(-1);
        renumberStaff(-1);
    }
}

} // namespace tabrova
