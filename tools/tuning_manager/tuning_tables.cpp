#include "tools/tuning_manager/tuning_tables.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr std::array NoteNames = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};

constexpr TuningPreset Presets[] = {
    {"Standard Tuning (Concert)", {12, 12, 12, 12, 12, 12}},
    {"Dropped D (DADGBE)", {10, 12, 12, 12, 12, 12}},
    {"Open A (EAEAC#E)", {12, 12, 14, 14, 14, 12}},
    {"Open C (CGCGCE)", {8, 10, 10, 12, 13, 12}},
    {"Open C Minor (CGCGCEb)", {8, 10, 10, 12, 13, 11}},
    {"Open D (DADF#AD)", {10, 12, 12, 11, 10, 10}},
    {"Open D Minor (DADFAD)", {10, 12, 12, 10, 10, 10}},
    {"Open Dsus4 (DADGAD)", {10, 12, 12, 12, 10, 10}},
    {"Open E (EBEG#BE)", {12, 14, 14, 13, 12, 12}},
    {"Open E Minor (EBEGBE)", {12, 14, 14, 12, 12, 12}},
    {"Open Esus11 (EAEGBE)", {12, 12, 14, 12, 12, 12}},
    {"Open F (CFCFAC)", {8, 8, 10, 10, 10, 8}},
    {"Open F (FACFCF)", {13, 12, 10, 10, 13, 13}},
    {"Open G (DGDGBD)", {10, 10, 12, 12, 12, 10}},
    {"Open G (GBDGBD)", {15, 14, 12, 12, 12, 10}},
    {"Alternate I (EGDEAE)", {12, 10, 12, 9, 10, 12}},
    {"Alternate II (CGDAEG)", {8, 10, 12, 14, 5, 15}},
    {"Alternate III (CGDGBE)", {8, 10, 12, 12, 12, 12}},
    {"Nashville (EADGBE)", {24, 24, 24, 24, 12, 12}},
    {"Down a step (EbAbDbGbBbEb)", {11, 11, 11, 11, 11, 11}},
    {"6 String Bass (BEADGC)", {7, 7, 7, 7, 8, 8}},
};

constexpr std::size_t StringA = 1;
// From position 1 on.
constexpr std::array<std::string_view, TuningItems> PositionsOfA = {
    "-A",  "-B", "-B#", "-C",  "-C#", "-D",  "-D#", "-E", "-F",  "-F#", "-G",  "-G#", "A",
    "+A#", "+B", "+C",  "+C#", "+D",  "+D#", "+E",  "+F", "+F#", "+G",  "+G#", "+A"};

} // namespace

std::string tuningItem(std::size_t string, int item) {
    const int note = TuningStringTable[string].standardNote + item - StandardItem;
    std::string text = item < StandardItem ? "-" : item > StandardItem ? "+" : "";
    text += NoteNames[static_cast<std::size_t>(note) % NoteNames.size()];
    return text;
}

int assignedPosition(std::size_t string, std::string_view text) {
    for (int item = 0; item < TuningItems; ++item)
        if (text == (string == StringA ? std::string(PositionsOfA[static_cast<std::size_t>(item)])
                                       : tuningItem(string, item)))
            return item + 1;
    return StandardItem + 1;
}

std::span<const TuningPreset> tuningPresets() { return Presets; }

char tuningLetter(int item) { return static_cast<char>('A' + item); }

std::optional<int> itemOfLetter(char letter) {
    return letter >= 'A' && letter < 'A' + TuningItems ? std::optional<int>(letter - 'A') : std::nullopt;
}

} // namespace tabrova
