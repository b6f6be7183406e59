// The readable source of an example: header lines, then for each staff a line of bar marks and six lines a
// track, each of 32 words. "-" is an empty cell, "7" a fret, "7/h" a fret with its technique.
#pragma once

#include "core/document/document.h"

#include <istream>

namespace tabrova {

// False, with a message on the standard error output, for a source that does not hold together.
bool readTabSource(Document& document, std::istream& source);

} // namespace tabrova
