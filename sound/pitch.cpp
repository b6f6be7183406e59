#include "sound/pitch.h"

namespace tabrova {

std::optional<std::int16_t> frettedPitch(const Document& document, std::string_view fret, int string,
                                         int tuningIndex) {
    if (tuningIndex < 0 || tuningIndex >= static_cast<int>(document.TuningTable.size())) return std::nullopt;
    const auto number = toNumber(fret);
    if (!number) return std::nullopt;
    const int tuning = document.TuningTable[static_cast<std::size_t>(tuningIndex)];
    return toInteger16(*number + OpenStringNotes[static_cast<std::size_t>(string)] + tuning - StandardTuning);
}

std::optional<double> listNumber(const std::vector<std::string>& list, int row) {
    if (row < 0 || row >= static_cast<int>(list.size())) return std::nullopt;
    return toNumber(list[static_cast<std::size_t>(row)]);
}

std::optional<std::int16_t> listInteger(const std::vector<std::string>& list, int row) {
    const auto number = listNumber(list, row);
    return number ? toInteger16(*number) : std::nullopt;
}

} // namespace tabrova
