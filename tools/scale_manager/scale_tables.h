// The tables behind the scale manager: its six strings, the keys with the place of their box on the neck,
// where each fret stands in the picture of the neck, and the built-in scale types. Strings count from the
// lowest.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tabrova {

constexpr std::size_t ScaleStrings = 6;
constexpr std::size_t ScaleSlots = 5;  // of a string: notes that it may have
constexpr std::size_t ScaleMarks = 19; // of a string: frets 0 to 18
constexpr std::size_t ScaleKeys = 12;

struct ScaleStringRow {
    int openNote; // MIDI
    // The controls of this string.
    const char* marks;
    const char* labels;
    const char* entries;
};

constexpr std::array<ScaleStringRow, ScaleStrings> ScaleStringTable = {{
    {40, "DotL", "nt_l", "lst_LOWE"},
    {45, "DotA", "nt_a", "lst_A"},
    {50, "DotD", "nt_d", "lst_D"},
    {55, "DotG", "nt_g", "lst_G"},
    {59, "DotB", "nt_b", "lst_B"},
    {64, "DotE", "nt_e", "lst_E"},
}};

// A key, and by how many frets the box of E is moved up for it.
struct ScaleKeyRow {
    const char* name;
    int shift;
};

constexpr std::array<ScaleKeyRow, ScaleKeys> ScaleKeyTable = {{{"A", 5},
                                                               {"A#", 6},
                                                               {"B", 7},
                                                               {"C", 8},
                                                               {"C#", 9},
                                                               {"D", 10},
                                                               {"D#", 11},
                                                               {"E", 0},
                                                               {"F", 1},
                                                               {"F#", 2},
                                                               {"G", 3},
                                                               {"G#", 4}}};

// Where the marks of the frets begin in the picture of the neck, in twips, for the right hand.
constexpr std::array<int, ScaleMarks> RightHandedMarks = {-60,  300,  660,  990,  1320, 1650, 1980,
                                                          2340, 2670, 3030, 3360, 3720, 4080, 4410,
                                                          4740, 5070, 5400, 5760, 6120};

enum class NeckView { RightHanded, LeftHanded };

// In twips. For the left hand frets 0 to 17 change their places from end to end; the last mark stays, which
// no scale reaches.
int markPosition(NeckView view, std::size_t fret);

// The fields of the strings as they go to the writer: digits 0 to 5, a lone "9" for an empty string.
using ScaleFields = std::array<std::string_view, ScaleStrings>;

struct ScaleTypeRow {
    const char* name;
    ScaleFields fields;
};

// In the order in which they are written.
std::span<const ScaleTypeRow> builtInScales();

} // namespace tabrova
