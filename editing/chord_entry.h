// A chord of the chord manager in the document: it goes to the column under the cursor, on all strings of the
// current track, and the cursor stays.
#pragma once

#include "editing/editor.h"
#include "sound/player_state.h"

#include <array>
#include <string>

namespace tabrova {

// Fret texts, string 0 to 5.
using StringFrets = std::array<std::string, StringsPerTrack>;

class ChordEntry {
  public:
    ChordEntry(EditingParts parts, Editor& editor, const PlayerState& player)
        : parts_(parts), document_(parts.document), editor_(editor), player_(player) {}

    // False on a percussion track, which takes no chords. Nothing is done while the document plays.
    //
    // Each fret from "0" to "6" is entered as if it had been typed on its string, with its sound and with the
    // power chords' fifths; any other text leaves the string empty.
    bool AddChordToDocument(const StringFrets& frets);
    // Techniques stay.
    bool RemoveChordFromDocument();

  private:
    bool isGuitarTrack() const { return document_.isGuitarTrack(document_.CurrentTrack); }
    void emptyColumn();

    EditingParts parts_;
    Document& document_;
    Editor& editor_;
    const PlayerState& player_;
};

} // namespace tabrova
