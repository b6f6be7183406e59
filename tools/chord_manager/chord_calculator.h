// The chord calculator: from a root and a chord type to marks, frets and note heads, and a user's chord to
// the same display. It is no search: a fixed table says where each note lies between frets 0 and 4 of a
// guitar in standard tuning, and a string's fret is its lowest or its highest marked one. No string is muted,
// and the lowest note need not be the root.
#pragma once

#include "tools/chord_manager/chord_tables.h"

#include <optional>
#include <string>

namespace tabrova {

enum class MarkColor { Plain, Root };

struct ChordMarkState {
    bool visible = false;
    MarkColor color = MarkColor::Plain;
    bool operator==(const ChordMarkState&) const = default;
};

struct ChordKeyState {
    bool checked = false;
    bool root = false; // its caption is red
    bool operator==(const ChordKeyState&) const = default;
};

// A fret as decimal text; " " or "" for a silent string. One byte of the code page at the most.
using ChordFretTexts = std::array<std::string, ChordStrings>;

// What the window shows of one chord.
struct ChordDisplay {
    std::array<std::array<ChordMarkState, ChordFretMarks>, ChordStrings> marks;
    std::array<ChordKeyState, ChordNotes> chkKey;
    std::array<bool, ChordNotes> staff{}; // by note index: heads, and the signs of the sharps
    ChordFretTexts frets;
    bool userChord = false; // from the bank, not from the calculator
};

// In the order of the list.
enum class CalculatorStyle { OpenStrings, Barre, AllNotes };

// "(Open)" and so on, the end of a chord's title.
const char* titleSuffix(CalculatorStyle style);

// By interval: 1 for a note of the chord. Other digits stand for nothing.
using ChordValues = std::array<int, ChordIntervals>;

// The first characters of the text, each as a number; 0 where it is no digit or the text has ended.
ChordValues chordValues(std::string_view text);

void ClearChordDisplay(ChordDisplay& display);

// Marks and note heads of all of the chord's notes. The root is one of them whatever the values say.
void showChordNotes(ChordDisplay& display, std::size_t root, const ChordValues& values);

// One fret a string. A string without a mark sounds open.
void pickChordFrets(ChordDisplay& display, CalculatorStyle style);

// `text` is a fret or "x" for each string, the lowest first; a string that it has no character for is silent.
// The staff keeps what it showed.
void showUserChord(ChordDisplay& display, std::string_view text);

// The MIDI note of a string with this fret text; nothing if the text is no number.
std::optional<int> chordNote(std::size_t string, std::string_view fretText);

} // namespace tabrova
