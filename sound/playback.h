// The player: works straight on the grids, one column a tick. A note lasts until all sound of channel 0 is
// cut at the next sounding column; channels 0 and 1 serve every guitar track, channel 9 every percussion
// track. The timer only calls it; it keeps nothing of its own between two ticks but the PlaybackState.
#pragma once

#include "core/document/document.h"
#include "sound/midi_output.h"

namespace tabrova {

enum class PlayFrom { Start, Cursor };

// The state with which playing begins. A play from inside a repeat has lost its start.
PlaybackState playbackStart(const Document& document, PlayFrom from);

// Milliseconds of a column; std::nullopt for a tempo (columns a minute) that gives no 16-bit interval.
std::optional<int> playbackInterval(int tempo, bool doubleTime);

enum class TickResult { Playing, Ended };

// Plays the column at state.PlaybackPosition, and every column that follows it in no time. Past the last
// column it sends nothing and answers Ended: the caller stops the timer and silences the channels.
// A passage of no length that repeats for ever is left in its second round, and goes on at the next tick.
TickResult playTick(const Document& document, PlaybackState& state, MidiOutput& output);

} // namespace tabrova
