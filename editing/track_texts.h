// The texts that a track's properties show.
#pragma once

#include "core/document/document.h"

#include <optional>
#include <string>

namespace tabrova {

// The open strings' note names, from the lowest string to the highest, separated by blanks: "E A D G B E" in
// standard tuning. `track` counts from 1; a tuning that is not there counts as standard.
std::string tuningNames(const Document& document, int track);

// The track's program as a row of the instrument list; std::nullopt for a text that is no number.
std::optional<int> trackProgram(const Document& document, int track);

// The track's volume, brought into 60 to 127; std::nullopt for a text that is no number.
std::optional<int> trackVolume(const Document& document, int track);

} // namespace tabrova
