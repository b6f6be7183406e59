#include "editing/track_commands.h"

#include "core/document/document_operations.h"
#include "core/document/track_table.h"
#include "core/text/code_page.h"
#include "editing/track_texts.h"
#include "platform/box_title.h"
#include "sound/pitch.h"

namespace tabrova {

TrackCommands::TrackCommands(EditingParts parts, Editor& editor, const PlayerState& player,
                             MessageBoxes& boxes)
    : parts_(parts), document_(parts.document), editor_(editor), player_(player), boxes_(boxes) {}

void TrackCommands::registerRows(CommandTable& table) {
    table.item("mnuAddTrack", [this] { AddTrack(); });
    table.item("mnuKillTrack", [this] { mnuKillTrack(); });
    table.item("mnuChoose", [this] { mnuChoose(); });
}

// The grids grow before the question, and the flag comes last: the track that is chosen by then is the new
// one. Any answer but No makes a percussion track.
void TrackCommands::AddTrack() {
    if (player_.playing) return;
    const Act act(parts_.acts, "AddTrack");
    if (!growByOneTrack(document_)) return;
    const BoxAnswer answer = askForKind();
    const int row = appendTrackRows(document_);
    parts_.acts.changes().tracks = true;
    TrackNames_Click(row);
    finishNewTrack(document_, answer == BoxAnswer::No);
    editor_.refreshdrawing();
}

// The window may be resized, and must follow, while the box is open.
BoxAnswer TrackCommands::askForKind() {
    const ActInterlude interlude(parts_.acts);
    return boxes_.ask({BoxTitle,
                       QString::fromStdString(parts_.words.percussionQuestion),
                       BoxIcon::Question,
                       {BoxAnswer::Yes, BoxAnswer::No}});
}

void TrackCommands::mnuKillTrack() {
    if (player_.playing) return;
    if (document_.TrackCount <= 1) {
        boxes_.ask({BoxTitle, QString::fromStdString(parts_.words.onlyTrack), BoxIcon::Information});
        return;
    }
    const std::string question = parts_.words.removeTrackQuestion + " '" +
                                 shownNameUtf8(trackName(document_, document_.CurrentTrack)) + "' ?";
    if (boxes_.ask({BoxTitle,
                    QString::fromStdString(question),
                    BoxIcon::Question,
                    {BoxAnswer::Yes, BoxAnswer::No}}) != BoxAnswer::Yes)
        return;
    const Act act(parts_.acts, "mnuKillTrack");
    removeCurrentTrack(document_);
    parts_.acts.changes().tracks = true;
    TrackNames_Click(0);
    editor_.MoveCursor(Direction::Nowhere);
    editor_.refreshdrawing();
}

void TrackCommands::TrackNames_Click(int row) {
    if (row < 0) return;
    const Act act(parts_.acts, "TrackNames_Click");
    document_.CurrentTrack = static_cast<std::int16_t>(row + 1);
    showTrackPanel();
    parts_.acts.changes().trackChosen = true;
    if (const auto program = trackProgram(document_, document_.CurrentTrack))
        parts_.sound.ProgramChange(GuitarChannel, *program);
    editor_.refreshdrawing();
}

void TrackCommands::mnuChoose() {
    const Act act(parts_.acts, "mnuChoose");
    parts_.acts.changes().trackListOpens = true;
}

void TrackCommands::showChosen() {
    const Act act(parts_.acts, "TrackNames");
    parts_.acts.changes().trackChosen = true;
}

void TrackCommands::showTrackPanel() {
    const Act act(parts_.acts, "showTrackPanel");
    parts_.texts.trackPanel =
        parts_.words.track + " " + shownNameUtf8(trackName(document_, document_.CurrentTrack));
    parts_.acts.changes().trackPanel = true;
}

void TrackCommands::setName(const std::optional<std::string>& name) {
    const Act act(parts_.acts, "Command9_Click");
    if (name) setCurrentTrackRow(document_, document_.TrackNames, *name);
    parts_.acts.changes().tracks = true;
    TrackNames_Click(document_.CurrentTrack - 1);
}

void TrackCommands::setInstrument(int program) {
    const Act act(parts_.acts, "lst_Instrument_Click");
    setCurrentTrackRow(document_, document_.TrackInstruments, std::to_string(program));
    parts_.sound.ProgramChange(GuitarChannel, program);
}

void TrackCommands::instrumentChosen() {
    const Act act(parts_.acts, "frmInstrumentSelector");
    parts_.acts.changes().instrument = true;
    editor_.refreshdrawing();
}

void TrackCommands::setVolume(int volume) {
    if (document_.TrackCount <= 0) return;
    const Act act(parts_.acts, "tVolume_Change");
    setCurrentTrackRow(document_, document_.TrackVolumes, std::to_string(volume));
}

void TrackCommands::assignTuning(std::int16_t s1, std::int16_t s2, std::int16_t s3, std::int16_t s4,
                                 std::int16_t s5, std::int16_t s6) {
    const Act act(parts_.acts, "assignTuning");
    tabrova::assignTuning(document_, s1, s2, s3, s4, s5, s6);
    parts_.acts.changes().tuning = true;
    editor_.refreshdrawing();
}

} // namespace tabrova
