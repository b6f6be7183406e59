// The document's tracks: how one is added, removed and named. The per-track lists and arrays stay in step, as
// far as a document that was read in part lets them.
#pragma once

#include "core/document/document.h"

namespace tabrova {

constexpr std::string_view NewTrackName = "Untitled Track";
constexpr std::string_view NewTrackInstrument = "24"; // the nylon guitar
constexpr std::string_view NewTrackVolume = "127";
constexpr int LeastVolume = 60;
constexpr int MostVolume = 127;

// Six rows more in the grids. False, with nothing changed, if the document cannot grow.
bool growByOneTrack(Document& document);

// The three list rows of a new track; returns their row, from 0.
int appendTrackRows(Document& document);

// After the grids and the lists: the last six tunings, the count, and the flag of the current track.
void finishNewTrack(Document& document, bool guitar);

// The current track goes; the tracks behind it move up, and the cursor's track is the first. A document of
// one track is left as it is.
void removeCurrentTrack(Document& document);

// "" for a track that the list does not have; `track` counts from 1.
std::string trackName(const Document& document, int track);

// Writes the current track's row of a list; a row that is not there is passed over.
void setCurrentTrackRow(const Document& document, std::vector<std::string>& list, std::string text);

} // namespace tabrova
