// The current track as text tablature: seven lines of heading, then blocks of sixteen columns, six lines of
// strings and one of marks, as mail and web pages show them in a monospaced font.
#pragma once

#include "core/document/document.h"
#include "core/files/file_text.h"

namespace tabrova {

constexpr int ColumnsPerBlock = 16;
// From more staves on the user is told that it may take a while.
constexpr int LongExport = 20;

// What the heading says besides the document; bytes of the code page.
struct TablatureHeading {
    std::string webAddress;
    std::string date;
    std::string tuning;     // names of the open strings
    std::string instrument; // of a guitar track
};

// All lines, ended by CR LF. Blocks that the grids do not reach are left out.
FileText textTablature(const Document& document, const TablatureHeading& heading);

} // namespace tabrova
