// The file of a drum song: one value a line, 16 drums, 16 volumes, the speed, and the steps of one row after
// the other. docs/file-formats.md lists the lines.
#pragma once

#include "core/files/file_text.h"
#include "tools/drum_machine/drum_song.h"

#include <istream>

namespace tabrova {

// Larger files are no songs.
constexpr std::uintmax_t LargestSongFile = 64 * 1024 * 1024;

// Rows without a drum must have been completed.
FileText drumSongText(const DrumSong& song);

// Overwrites the song line by line. False if a line does not convert, a drum has no place in the list or the
// file ends too early: the song then stands as far as the reading came. Volumes and speed outside their
// sliders take the nearest value that these have. What follows the last line is ignored.
bool readDrumSong(DrumSong& song, std::istream& file);

} // namespace tabrova
