// The whole-page redraw, scrolling, and the commands that replace or lengthen the document.
#include "core/document/document_operations.h"
#include "editing/editor.h"
#include "editing/statistics_line.h"

namespace tabrova {

// A range that shrinks below the thumb moves it, like any other change of its value, with a redraw of its
// own: the notation is then drawn over itself, deliberately.
void Editor::refreshdrawing() {
    const Act act(parts_.acts, "refreshdrawing");
    drawPage();
    changes().scrollBar = true;
    if (!cursor_.takeScrollRange()) {
        VScroll1_Moved(cursor_.scroll.maximum);
        drawPage();
        showWhatWasDrawn();
    }
    showWhatWasDrawn();
}

void Editor::drawPage() {
    DrawFretBoard();
    view_.startRedraw();
    document_.VisibleStaves = visibleStaves(view_.picDocument.height());
    document_.ColumnWidth = columnWidth(view_.picDocument.width());
    view_.drawStaves(document_);
    view_.drawStripBackground();
}

// The cursor's top is left alone: whoever changes the staff or string keeps it up to date.
void Editor::showWhatWasDrawn() {
    ++changes().redraws;
    DrawNotationAndRhythm();
    view_.endRedraw();
    changes().strip = true;
    changes().page = true;
    cursor_.placeMarkerInColumn();
    MoveCursor(Direction::Nowhere);
    changes().techniques = true;
    SetDebugLabel();
    parts_.texts.title = "Tabrova - " + document_.Title + " by " + document_.Author;
    changes().title = true;
}

void Editor::DrawNotationAndRhythm() {
    if (document_.isGuitarTrack(document_.CurrentTrack)) cursor_.column();
    view_.DrawNotationAndRhythm(document_);
}

bool Editor::VScroll1_Moved(int value) {
    if (!cursor_.scrollTo(value)) return false;
    changes().scrollBar = true;
    changes().pageTakesKeyboard = true;
    SetDebugLabel();
    return true;
}

void Editor::VScroll1_Change(int value) {
    const Act act(parts_.acts, "VScroll1_Change");
    if (VScroll1_Moved(value)) refreshdrawing();
}

void Editor::pageResized() {
    const Act act(parts_.acts, "pageResized");
    refreshdrawing();
    cursor_.keepOnPage(view_.picDocument.height());
    MoveCursor(Direction::Nowhere);
    SetDebugLabel();
    refreshdrawing();
}

void Editor::SetDebugLabel() {
    const Act act(parts_.acts, "SetDebugLabel");
    parts_.texts.statistics =
        parts_.surroundings.debugMode ? debugLine(document_) : statisticsLine(document_, parts_.words);
    changes().statistics = true;
}

void Editor::focusPage() {
    const Act act(parts_.acts, "focusPage");
    changes().pageTakesKeyboard = true;
}

void Editor::MakeNewDocument() {
    const Act act(parts_.acts, "MakeNewDocument");
    resetToNewDocument(document_);
    cursor_.goHome();
    changes().scrollBar = true;
    MoveCursor(Direction::Nowhere);
    changes().tracks = true;
    parts_.texts.trackPanel = "Untitled Track " + parts_.words.selectedTrack;
    changes().trackPanel = true;
}

bool Editor::AppendStaff() {
    const Act act(parts_.acts, "AppendStaff");
    if (!growByOneStaff(document_)) return false;
    refreshdrawing();
    return true;
}

void Editor::setCursorColor(QRgb color) {
    const Act act(parts_.acts, "lstColors_Click");
    cursor_.objects.color = color;
    cursor_.objects.noteLineColor = color;
    refreshdrawing();
}

void Editor::setCursorBorderWidth(int pixels) {
    const Act act(parts_.acts, "chkEyeBall_Click");
    cursor_.objects.borderWidth = pixels;
    changes().page = true;
    changes().strip = true;
}

void Editor::showPageLine(bool shown) {
    const Act act(parts_.acts, "mnuViewNotation");
    cursor_.objects.vLine1Visible = shown;
    changes().page = true;
}

void Editor::setTabOneColor(bool oneColor) {
    const Act act(parts_.acts, "chkTABOUT_Click");
    view_.picDocument.setBackground(oneColor ? WhitePaper : PaperColor);
    refreshdrawing();
}

} // namespace tabrova
