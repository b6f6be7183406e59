#include "tools/scale_manager/scale_calculator.h"

#include "core/text/conversions.h"

namespace tabrova {

namespace {

constexpr int HighestFretOfBox = 5;
constexpr char NoNote = '9';
constexpr std::string_view NoNoteEntry = "-";

// The fret above the box; nothing for a slot without a note.
std::optional<int> slotFret(std::string_view line, std::size_t slot) {
    if (slot >= line.size() || line[slot] < '0' || line[slot] > '0' + HighestFretOfBox) return std::nullopt;
    return line[slot] - '0';
}

// The character that the entry is stored as.
std::optional<char> slotOf(std::string_view entry) {
    if (entry == NoNoteEntry) return NoNote;
    const auto fret = toNumber(entry);
    if (entry.size() != 1 || !fret || *fret < 0 || *fret > HighestFretOfBox) return std::nullopt;
    return entry.front();
}

} // namespace

ScaleDisplay layScale(int shift, std::string_view line) {
    ScaleDisplay display;
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        for (std::size_t slot = 0; slot < ScaleSlots; ++slot) {
            const auto above = slotFret(line, string * ScaleSlots + slot);
            if (!above) continue;
            const int fret = shift + *above;
            display.marks[string][static_cast<std::size_t>(fret)] = true;
            display.labels[string][slot] = std::to_string(fret);
        }
    return display;
}

std::string paddedField(std::string_view field) {
    const std::size_t missing = field.size() < ScaleSlots ? ScaleSlots - field.size() : 0;
    return std::string(missing, NoNote) + std::string(field);
}

std::string scaleLine(const ScaleFields& fields) {
    std::string line;
    for (const std::string_view field : fields)
        line += paddedField(field);
    return line;
}

std::optional<std::string> newScaleLine(const ScaleEntries& entries) {
    std::string line;
    for (const auto& string : entries)
        for (const std::string& entry : string) {
            const auto slot = slotOf(entry);
            if (!slot) return std::nullopt;
            line += *slot;
        }
    return line;
}

std::optional<int> scaleNote(std::size_t string, std::string_view fretText) {
    const auto fret = toInteger16(fretText);
    return fret ? std::optional<int>(*fret + ScaleStringTable[string].openNote) : std::nullopt;
}

} // namespace tabrova
