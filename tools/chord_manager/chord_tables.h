// The tables behind the chord calculator: the six strings, the twelve notes with the frets where the
// calculator finds them, and the built-in chord types. Strings count from the lowest, as a chord chart reads.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tabrova {

constexpr std::size_t ChordStrings = 6;
constexpr std::size_t ChordNotes = 12;     // from A on, in semitones
constexpr std::size_t ChordFretMarks = 7;  // of a string: frets 0 to 6
constexpr std::size_t ChordIntervals = 22; // semitones above the root, 0 to 21

struct ChordStringRow {
    const char* name;
    int openNote;    // MIDI
    int documentRow; // of a track, 0 is the highest string
    // The controls of this string.
    const char* fretText;
    const char* marks;
    const char* previewMarks;
    const char* entry;
};

constexpr std::array<ChordStringRow, ChordStrings> ChordStringTable = {{
    {"Low E", 40, 5, "tbLowe", "shpLowe", "shplowe2", "txt_addcrdL"},
    {"A", 45, 4, "tbA", "shpA", "shpA2", "txt_addcrda"},
    {"D", 50, 3, "tbD", "shpD", "shpd2", "txt_addcrdD"},
    {"G", 55, 2, "tbG", "shpG", "shpg2", "txt_addcrdg"},
    {"B", 59, 1, "TbB", "shpB", "shpb2", "txt_addcrdb"},
    {"High E", 64, 0, "tbE", "shpE", "shpe2", "txt_addcrde"},
}};

struct ChordPlace {
    std::size_t string;
    std::size_t fret;
    bool operator==(const ChordPlace&) const = default;
};

// One note: there are only sharps.
struct ChordNoteRow {
    const char* name;
    const char* staffMark;              // the note head, or the sharp sign of a sharp
    std::span<const ChordPlace> places; // all marks of the note, from the lowest string
    bool sharp;                         // shows the head of the note before it too
};

// By note index: 0 is A, 11 is G#.
std::span<const ChordNoteRow, ChordNotes> chordNoteTable();

// The mark that is red if the note is the root.
const ChordPlace& rootMark(std::size_t note);

struct ChordTypeRow {
    const char* name;
    std::string_view pattern; // ChordIntervals characters "0" or "1"
};

// In the order in which they are written.
std::span<const ChordTypeRow> builtInChordTypes();

} // namespace tabrova
