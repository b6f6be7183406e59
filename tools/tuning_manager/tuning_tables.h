// The tables behind the tuning manager: the strings with their lists of notes, the presets, and the letters
// of a tuning's file. Strings count from the lowest. A string's place in its list counts in semitones from an
// octave below its standard note.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tabrova {

constexpr std::size_t TuningStrings = 6;
constexpr int TuningItems = 25; // of a list: two octaves
constexpr int StandardItem = 12;

struct TuningStringRow {
    const char* name;
    int standardNote; // MIDI
    const char* list;
    const char* button;
};

constexpr std::array<TuningStringRow, TuningStrings> TuningStringTable = {{
    {"Low E", 40, "TuningL", "Image3"},
    {"A", 45, "TuningA", "Image1"},
    {"D", 50, "TuningD", "Image2"},
    {"G", 55, "TuningG", "Image4"},
    {"B", 59, "TuningB", "Image5"},
    {"High E", 64, "TuningE", "Image6"},
}};

// The note's name, with "-" before those below the standard note and "+" before those above it.
std::string tuningItem(std::size_t string, int item);

// The position from 1 that a track takes for the displayed text; 13, the standard note, if none has it. That
// of the A string is deliberately not the place in its list: "-A#" has none, and "-B" that of a semitone
// below.
int assignedPosition(std::size_t string, std::string_view text);

using TuningPlaces = std::array<int, TuningStrings>;

struct TuningPreset {
    const char* caption;
    TuningPlaces items;
};

// In the order of their list.
std::span<const TuningPreset> tuningPresets();

// "A" is item 0, "Y" item 24.
char tuningLetter(int item);
std::optional<int> itemOfLetter(char letter);

} // namespace tabrova
