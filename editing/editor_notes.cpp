// Note entry: one typed note is stored, its one cell drawn and its column sounded, with no walk over the
// page.
#include "core/document/bar_marks.h"
#include "editing/editor.h"
#include "editing/key_codes.h"
#include "sound/column_preview.h"
#include "sound/pitch.h"
#include "tabview/page_layout.h"
#include "tabview/page_marks.h"

namespace tabrova {

namespace {

constexpr int LowestChordString = 4; // power chords grow only from strings 4 and 5
constexpr double HighestChordRoot = 28.0;

bool isDigitCode(int code) { return code >= key::Digit0 && code <= key::Digit9; }

// The mark that a code stores; nothing for the codes of the note grid.
std::optional<std::string> barMarkOf(int code) {
    if (code == key::Enter) return ".";
    if (code == code::OpenedRepeat) return "r";
    if (code == code::ClosedRepeatPanel) return "";
    const int count = code - code::ClosedRepeatBase;
    if (count >= 1 && count <= MostRepeats) return closedRepeatMark(count);
    return std::nullopt;
}

std::string plainDecimal(double value) { return std::to_string(static_cast<int>(roundHalfToEven(value))); }

} // namespace

void Editor::DrawAndStoreNote(int code) {
    const Act act(parts_.acts, "DrawAndStoreNote");
    storeNoteText(code, cursor_.cell());
    if (code == code::ClosedRepeatPanel) openPanel(Panel::Repeat);
    // Before the drawing and the sound, and for every code: the chord's notes are in the grid when the column
    // sounds.
    if (modes.powerChord) CreateAndStorePChord();
    drawTypedCell();
    drawTypedBarMark();
    soundColumn();
}

void Editor::storeNoteText(int code, CellPlace cell) {
    const auto [column, row] = cell;
    if (const auto mark = barMarkOf(code)) return document_.setBarMark(column, *mark);
    if (isDigitCode(code)) {
        const std::string_view old = document_.note(column, row);
        std::string text = old == "1" || old == "2" ? std::string(old) : std::string();
        text.push_back(static_cast<char>(code));
        return document_.setNote(column, row, text);
    }
    document_.setNote(column, row, code == key::X ? "x" : code == key::J ? ">" : "");
}

// A fifth and an octave above the root on a standard guitar.
void Editor::CreateAndStorePChord() {
    if (document_.CurrentString < LowestChordString) return;
    const auto [column, row] = cursor_.cell();
    const auto root = toNumber(document_.note(column, row));
    if (!root || *root >= HighestChordRoot) return;
    const auto fret = toInteger16(*root + 2.0);
    if (!fret) return;
    document_.setNote(column, row - 1, plainDecimal(*fret));
    document_.setNote(column, row - 2, plainDecimal(*fret));
}

void Editor::drawTypedCell() {
    const std::string_view text = document_.note(document_.CurrentColumn, document_.cursorRow());
    if (const auto copy = typedCell(text, page().nCursor)) view_.copyToPage(*copy);
}

void Editor::drawTypedBarMark() {
    const std::string_view mark = document_.barMark(document_.CurrentColumn);
    for (const SpriteCopy& copy : typedBarMark(mark, page().nCursor, document_.CurrentString))
        view_.copyToPage(copy);
}

void Editor::soundColumn() {
    cursor_.column();
    parts_.sound.AllNotesOff();
    sendColumnPreview(document_, parts_.sound);
    const auto mode = static_cast<RealtimeMode>(document_.RealtimeMode);
    if (mode == RealtimeMode::AllTracks || mode == RealtimeMode::CurrentTrack)
        parts_.stopper.restart(previewDuration(document_));
}

void Editor::DrawAndStorePercussionNote(int drumKey) {
    const Act act(parts_.acts, "DrawAndStorePercussionNote");
    const CellPlace cell = cursor_.cell();
    document_.setNote(cell.column, cell.row, std::to_string(drumKey));
    parts_.sound.NoteOn(PercussionChannel, drumKey, parts_.sound.FixedVelocity);
    refreshdrawing();
}

} // namespace tabrova
