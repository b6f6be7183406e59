// The whole-page redraw, scrolling, and the commands that replace or lengthen the document.
#include "core/document/document_operations.h"
#include "editing/editor.h"
#include "editing/key_codes.h"
#include "editing/statistics_line.h"

#include <algorithm>

namespace tabrova {

void Editor::refreshdrawing() {
    DrawFretBoard();
    view_.picDocument.Cls();
    view_.picStandardNotation.Cls();
    document_.VisibleStaves = visibleStaves(view_.picDocument.height());
    document_.ColumnWidth = columnWidth(view_.picDocument.width());
    view_.drawStaves(document_);
    view_.drawStripBackground();
    updateScrollRange();
    DrawNotationAndRhythm();
    host_.refreshStrip();
    host_.refreshPage();
    // The cursor's top is left alone: whoever changes the staff or string keeps it up to date.
    page_.nCursor.left = document_.ColumnInStaff * document_.ColumnWidth + CursorLeft;
    MoveCursor(Direction::Nowhere);
    host_.UpdateTechniqueButtons(document_.isGuitarTrack(document_.CurrentTrack));
    SetDebugLabel();
    host_.setTitle("Tabrova - " + document_.Title + " by " + document_.Author);
}

void Editor::DrawNotationAndRhythm() {
    if (document_.isGuitarTrack(document_.CurrentTrack)) GetCurrentXPosition(document_);
    view_.DrawNotationAndRhythm(document_);
}

int Editor::scrollMaximum() const {
    return document_.VisibleStaves >= document_.StaffCount
               ? 1
               : document_.StaffCount - document_.VisibleStaves + 1;
}

void Editor::updateScrollRange() {
    scroll_.maximum = scrollMaximum();
    host_.mirrorScrollBar(scroll_.maximum, std::min(scroll_.value, scroll_.maximum));
    // A range that shrinks below the thumb moves it, like any other change of its value.
    if (scroll_.value > scroll_.maximum) VScroll1_Change(scroll_.maximum);
}

void Editor::VScroll1_Change(int value) {
    value = std::clamp(value, scroll_.minimum, scroll_.maximum);
    if (value == scroll_.value) return;
    scroll_.value = value;
    host_.mirrorScrollBar(scroll_.maximum, scroll_.value);
    const int rowOfCursor = document_.CurrentStaff - document_.TopStaff;
    document_.TopStaff = static_cast<std::int16_t>(value - 1);
    host_.focusPage();
    // The cursor stays where it is on the screen and lands on another staff.
    int staff = document_.TopStaff + rowOfCursor;
    if (rowOfCursor == document_.VisibleStaves + 1) staff -= document_.VisibleStaves;
    document_.CurrentStaff = static_cast<std::int16_t>(staff);
    SetDebugLabel();
    refreshdrawing();
}

void Editor::pageResized() {
    refreshdrawing();
    keepCursorOnPage();
    MoveCursor(Direction::Nowhere);
    SetDebugLabel();
    refreshdrawing();
}

void Editor::keepCursorOnPage() {
    constexpr int RoomBelowCursor = 15;
    const int bottom =
        page_.nCursor.top + RoomBelowCursor + (StringsPerTrack - document_.CurrentString) * StringSpacing;
    if (bottom <= view_.picDocument.height() || document_.VisibleStaves < 1 ||
        page_.nCursor.top <= SlotHeight)
        return;
    while (page_.nCursor.top > document_.VisibleStaves * SlotHeight) {
        page_.nCursor.top -= SlotHeight;
        --document_.CurrentStaff;
    }
}

void Editor::SetDebugLabel() {
    host_.setStatistics(host_.debugMode() ? debugLine(document_) : statisticsLine(document_, words_));
}

void Editor::MakeNewDocument() {
    host_.unloadFileProperties();
    resetToNewDocument(document_);
    scroll_.value = document_.TopStaff + 1;
    host_.mirrorScrollBar(scroll_.maximum, scroll_.value);
    page_.nCursor.left = CursorLeft;
    page_.nCursor.top = CursorTop;
    MoveCursor(Direction::Nowhere);
    host_.tracksReplaced();
    host_.setTrackPanel("Untitled Track " + words_.selectedTrack);
}

bool Editor::AppendStaff() {
    if (!growByOneStaff(document_)) return false;
    refreshdrawing();
    return true;
}

} // namespace tabrova
