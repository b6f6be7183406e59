// The virtual fretboard: the notes of the cursor's column are shown on it, and a click on it changes one.
#include "core/document/document_operations.h"
#include "editing/editor.h"

namespace tabrova {

// A low window keeps the old image.
void Editor::DrawFretBoard() {
    if (host_.clientHeight() < LowestWindowWithFretboard) return;
    GetCurrentXPosition(document_);
    view_.DrawFretBoard(document_, {page_.color, host_.inlayColor()});
}

void Editor::picFretboard_MouseDown(MouseButton button, int x, int y) {
    if (!document_.isGuitarTrack(document_.CurrentTrack)) return;
    const auto place = neckPlaceAt(x, y, fretPitch(view_.picFretboard.height()));
    if (!place) return;
    GetCurrentXPosition(document_);
    if (button != MouseButton::Left && button != MouseButton::Right) return;
    const int row = Document::firstRowOfTrack(document_.CurrentTrack) + place->string;
    const std::string text = button == MouseButton::Left ? std::to_string(place->fret) : std::string();
    document_.setNote(document_.CurrentColumn, row, text);
    refreshdrawing();
}

} // namespace tabrova
