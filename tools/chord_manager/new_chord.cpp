#include "tools/chord_manager/new_chord.h"

#include "core/text/conversions.h"

namespace tabrova {

bool isSilentEntry(std::string_view text) { return text.empty() || text == " " || text == "x"; }

bool isBadEntry(std::string_view text) {
    if (isSilentEntry(text)) return false;
    const auto fret = toNumber(text);
    return !fret || *fret > HighestEnteredFret;
}

std::size_t previewMark(std::string_view text) {
    if (isSilentEntry(text)) return SilentMark;
    const auto fret = toInteger16(text);
    return fret && *fret >= 0 && *fret <= HighestEnteredFret ? static_cast<std::size_t>(*fret) : SilentMark;
}

std::optional<std::string> chordLine(const ChordEntries& entries) {
    std::string line;
    for (const std::string& entry : entries) {
        if (isBadEntry(entry)) return std::nullopt;
        line += entry;
    }
    return line;
}

} // namespace tabrova
