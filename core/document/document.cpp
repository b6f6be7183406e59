#include "core/document/document.h"

namespace tabrova {

std::string_view Document::barMark(int column) const {
    if (column < 0 || column >= static_cast<int>(BarMarkRow.size())) return {};
    return pool.text(BarMarkRow[static_cast<std::size_t>(column)]);
}

void Document::setBarMark(int column, std::string_view text) {
    if (column < 0 || column >= static_cast<int>(BarMarkRow.size())) return;
    BarMarkRow[static_cast<std::size_t>(column)] = pool.intern(text);
}

bool Document::isGuitarTrack(int track) const {
    return track >= 1 && track <= static_cast<int>(GuitarTrackFlags.size()) &&
           GuitarTrackFlags[static_cast<std::size_t>(track - 1)] != False16;
}

} // namespace tabrova
