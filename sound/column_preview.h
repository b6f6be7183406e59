// What a typed note sounds like: the column under the cursor, on all tracks, on the current one or not at
// all.
#pragma once

#include "core/document/document.h"
#include "sound/midi_output.h"

namespace tabrova {

// Values of Document::RealtimeMode.
enum class RealtimeMode : std::int16_t { AllTracks = 0, Nothing = 1, CurrentTrack = 2 };

// Sends the notes of CurrentColumn by RealtimeMode. A cell, tuning or volume that is not there or is no
// number silences that note alone.
void sendColumnPreview(const Document& document, MidiOutput& output);

// How long a preview sounds: two columns, in milliseconds. std::nullopt for a tempo that gives no interval.
std::optional<int> previewDuration(const Document& document);

} // namespace tabrova
