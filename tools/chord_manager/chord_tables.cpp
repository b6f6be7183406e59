#include "tools/chord_manager/chord_tables.h"

namespace tabrova {

namespace {

constexpr std::size_t LowE = 0, A = 1, D = 2, G = 3, B = 4, HighE = 5;

constexpr ChordPlace PlacesA[] = {{A, 0}, {G, 2}};
constexpr ChordPlace PlacesAs[] = {{A, 1}, {G, 3}};
constexpr ChordPlace PlacesB[] = {{A, 2}, {B, 0}};
constexpr ChordPlace PlacesC[] = {{A, 3}, {B, 1}};
constexpr ChordPlace PlacesCs[] = {{A, 4}, {B, 2}};
constexpr ChordPlace PlacesD[] = {{D, 0}, {B, 3}};
// The second place sounds a B, deliberately: chords with a D# are known by it. B string 4 is never marked.
constexpr ChordPlace PlacesDs[] = {{D, 1}, {G, 4}};
constexpr ChordPlace PlacesE[] = {{LowE, 0}, {D, 2}, {HighE, 0}};
constexpr ChordPlace PlacesF[] = {{LowE, 1}, {D, 3}, {HighE, 1}};
constexpr ChordPlace PlacesFs[] = {{LowE, 2}, {D, 4}, {HighE, 2}};
constexpr ChordPlace PlacesG[] = {{LowE, 3}, {G, 0}, {HighE, 3}};
constexpr ChordPlace PlacesGs[] = {{LowE, 4}, {G, 1}, {HighE, 4}};

constexpr std::array<ChordNoteRow, ChordNotes> NoteFretTable = {{
    {"A", "mnA", PlacesA, false},
    {"A#", "mnAs", PlacesAs, true},
    {"B", "mnB", PlacesB, false},
    {"C", "mnC", PlacesC, false},
    {"C#", "mnCs", PlacesCs, true},
    {"D", "mnD", PlacesD, false},
    {"D#", "mnDs", PlacesDs, true},
    {"E", "mnE", PlacesE, false},
    {"F", "mnF", PlacesF, false},
    {"F#", "mnFs", PlacesFs, true},
    {"G", "mnG", PlacesG, false},
    {"G#", "mnGs", PlacesGs, true},
}};

constexpr std::array<ChordPlace, ChordNotes> RootMarkTable = {{
    {A, 0},    // A
    {A, 1},    // A#
    {A, 2},    // B
    {A, 3},    // C
    {A, 4},    // C#
    {D, 0},    // D
    {D, 1},    // D#
    {LowE, 0}, // E
    {LowE, 1}, // F
    {LowE, 2}, // F#
    {LowE, 3}, // G
    {LowE, 4}, // G#
}};

// "maj7-5" has the pattern of "maj7", and "0" is the diminished chord: both deliberately.
constexpr ChordTypeRow ChordTypes[] = {
    {"Maj", "1000100100000000000000"},    {"m", "1001000100000000000000"},
    {"7", "1000100100100000000000"},      {"m7", "1001000100100000000000"},
    {"maj7", "1000100100010000000000"},   {"sus4", "1000010100000000000000"},
    {"7sus4", "1000010100100000000000"},  {"6", "1000100101000000000000"},
    {"m6", "1001000101000000000000"},     {"+", "1000100010000000000000"},
    {"0", "1001001001000000000000"},      {"7-5", "1000101000100000000000"},
    {"7+5", "1000100010100000000000"},    {"m7-5", "1001001000100000000000"},
    {"m maj7", "1001000100010000000000"}, {"maj7+5", "1000100010010000000000"},
    {"maj7-5", "1000100100010000000000"}, {"9", "1000100100100010000000"},
    {"m9", "1001000100100010000000"},     {"maj9", "1000100100010010000000"},
    {"7+9", "1000100100100001000000"},    {"7-9", "1000100100100100000000"},
    {"7+9-5", "1000101000100001000000"},  {"6 9", "1000100101000010000000"},
    {"9+5", "1000100010100010000000"},    {"9-5", "1000101000100010000000"},
    {"m9-5", "1001001000100010000000"},   {"11", "1000100100100010010000"},
    {"m11", "1001000100100010010000"},    {"11-9", "1000100100100100010000"},
    {"13", "1000100100100010010001"},     {"m13", "1001000100100010010001"},
    {"maj13", "1000100100010010010001"},
};

} // namespace

std::span<const ChordNoteRow, ChordNotes> chordNoteTable() { return NoteFretTable; }

const ChordPlace& rootMark(std::size_t note) { return RootMarkTable[note]; }

std::span<const ChordTypeRow> builtInChordTypes() { return ChordTypes; }

} // namespace tabrova
