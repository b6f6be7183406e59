// The tracks' commands, step by step: how one is added, removed and chosen, and its properties.
#pragma once

#include "editing/command_table.h"
#include "editing/editor.h"
#include "platform/message_boxes.h"
#include "sound/player_state.h"

namespace tabrova {

class TrackCommands {
  public:
    TrackCommands(EditingParts parts, Editor& editor, const PlayerState& player, MessageBoxes& boxes);

    void registerRows(CommandTable& table);

    // Asks whether it is to be a percussion track; the new track is the current one afterwards.
    void AddTrack();
    // Asks before it removes the current track. The only track of a document stays.
    void mnuKillTrack();
    // The track of this row, from 0, becomes the current one, and its program the device's. A row below 0
    // chooses nothing.
    void TrackNames_Click(int row);

    // The current track's row of the lists. A row that a damaged document does not have is passed over.
    // Bytes of the code page; without a name the old one stays. The track is then chosen afresh.
    void setName(const std::optional<std::string>& name);
    // The device takes the program too.
    void setInstrument(int program);
    // As its properties name it. What sounds is not asked.
    void instrumentChosen();
    void setVolume(int volume);
    // The strings from the lowest to the highest, 13 being standard.
    void assignTuning(std::int16_t s1, std::int16_t s2, std::int16_t s3, std::int16_t s4, std::int16_t s5,
                      std::int16_t s6);

    // The list of the tracks comes into view.
    void mnuChoose();
    // Whoever shows the current track shows it afresh.
    void showChosen();
    // The status bar's words for the current track.
    void showTrackPanel();

  private:
    BoxAnswer askForKind();

    EditingParts parts_;
    Document& document_;
    Editor& editor_;
    const PlayerState& player_;
    MessageBoxes& boxes_;
};

} // namespace tabrova
