// The virtual fretboard: the notes of the cursor's column are shown on it, and a click on it changes one.
#include "editing/editor.h"

namespace tabrova {

// A low window keeps the old image.
void Editor::DrawFretBoard() {
    if (parts_.surroundings.clientHeight < LowestWindowWithFretboard) return;
    cursor_.column();
    view_.DrawFretBoard(document_, {page().color, parts_.surroundings.inlayColor});
}

void Editor::picFretboard_MouseDown(MouseButton button, int x, int y) {
    if (!document_.isGuitarTrack(document_.CurrentTrack)) return;
    const auto place = neckPlaceAt(x, y, fretPitch(view_.picFretboard.height()));
    if (!place) return;
    const Act act(parts_.acts, "picFretboard_MouseDown");
    const int column = cursor_.column();
    if (button != MouseButton::Left && button != MouseButton::Right) return;
    const int row = Document::firstRowOfTrack(document_.CurrentTrack) + place->string;
    const std::string text = button == MouseButton::Left ? std::to_string(place->fret) : std::string();
    document_.setNote(column, row, text);
    refreshdrawing();
}

} // namespace tabrova
