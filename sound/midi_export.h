// Chosen tracks of a document as a standard MIDI file: every column takes one step of the tempo, and every
// queued track has a channel and a file track of its own.
#pragma once

#include "core/document/document.h"
#include "sound/midi_file_control.h"

#include <functional>

namespace tabrova {

// The most tracks of one file: each takes a channel of its own, and one channel belongs to percussion.
constexpr std::size_t MostQueuedTracks = 15;

struct MidiExport {
    std::vector<int> queue; // tracks, from 0
    bool noteOffs = false;
    std::function<void(double percent)> progress; // told before each track; may be empty
};

// Writes the tracks to the file that the control names. False if it ended early, without a file: the tempo
// gives no step, or a cell of the very first column does not convert, a dead note included. Further on such a
// cell keeps the values of the event before it. Failures of writing are not reported.
bool exportMidiFile(const Document& document, const MidiExport& what, MIDIFile& file);

// The queue's tracks alone, into a file that was started.
bool AddTracksToMidiFile(const Document& document, const MidiExport& what, MIDIFile& file);

} // namespace tabrova
