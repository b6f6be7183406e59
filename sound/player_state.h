// Whether the player runs, and how fast it shall.
#pragma once

namespace tabrova {

struct PlayerState {
    bool playing = false;
    int soundingColumn = 0; // of the document, from 0; what plays, or is about to
    // Of the loaded document properties: playback looks at this, not at the document's field.
    bool speedBoost = false;
};

} // namespace tabrova
