// Every key with every built-in type in every style, through the window, against notes that are worked out
// from the open strings in semitones alone.
#include "tests/tools/chord_manager/checked_chord_window.h"

#include <QListWidget>

namespace tabrova::testing {

namespace {

struct Type {
    const char* name;
    std::set<int> semitones;
};

const std::vector<Type> Types = {
    {"Maj", {0, 4, 7}},
    {"m", {0, 3, 7}},
    {"7", {0, 4, 7, 10}},
    {"m7", {0, 3, 7, 10}},
    {"maj7", {0, 4, 7, 11}},
    {"sus4", {0, 5, 7}},
    {"7sus4", {0, 5, 7, 10}},
    {"6", {0, 4, 7, 9}},
    {"m6", {0, 3, 7, 9}},
    {"+", {0, 4, 8}},
    {"0", {0, 3, 6, 9}},
    {"7-5", {0, 4, 6, 10}},
    {"7+5", {0, 4, 8, 10}},
    {"m7-5", {0, 3, 6, 10}},
    {"m maj7", {0, 3, 7, 11}},
    {"maj7+5", {0, 4, 8, 11}},
    {"maj7-5", {0, 4, 7, 11}},
    {"9", {0, 4, 7, 10, 14}},
    {"m9", {0, 3, 7, 10, 14}},
    {"maj9", {0, 4, 7, 11, 14}},
    {"7+9", {0, 4, 7, 10, 15}},
    {"7-9", {0, 4, 7, 10, 13}},
    {"7+9-5", {0, 4, 6, 10, 15}},
    {"6 9", {0, 4, 7, 9, 14}},
    {"9+5", {0, 4, 8, 10, 14}},
    {"9-5", {0, 4, 6, 10, 14}},
    {"m9-5", {0, 3, 6, 10, 14}},
    {"11", {0, 4, 7, 10, 14, 17}},
    {"m11", {0, 3, 7, 10, 14, 17}},
    {"11-9", {0, 4, 7, 10, 13, 17}},
    {"13", {0, 4, 7, 10, 14, 17, 21}},
    {"m13", {0, 3, 7, 10, 14, 17, 21}},
    {"maj13", {0, 4, 7, 11, 14, 17, 21}},
};

constexpr int Frets = 5; // that the calculator looks at
constexpr int DSharp = 6;

// Of a MIDI note, from A on.
int indexOf(int midiNote) { return (midiNote + 3) % 12; }

std::set<int> notesOf(int root, const Type& type) {
    std::set<int> notes = {root};
    for (const int semitones : type.semitones)
        notes.insert((root + semitones) % 12);
    return notes;
}

// A mark stands wherever a note of the chord sounds, with one exception: the D# of the B string's fret 4 is
// marked on fret 4 of the G string, which sounds a B and is not marked for a B.
bool isMarked(const std::set<int>& notes, int string, int fret) {
    if (fret == 4 && string == 3) return notes.contains(DSharp);
    if (fret == 4 && string == 4) return false;
    return notes.contains(indexOf(PlainOpenNotes[string] + fret));
}

// The lowest marked fret or the highest one; 0 without any.
int pickedFret(const std::set<int>& notes, int string, bool highest) {
    int picked = -1;
    for (int fret = 0; fret < Frets; ++fret)
        if (isMarked(notes, string, fret) && (picked < 0 || highest)) picked = fret;
    return std::max(picked, 0);
}

// The root is red where the lowest string that has it has it.
std::pair<int, int> rootPlace(int root) {
    for (int string = 0; string < PlainStrings; ++string)
        for (int fret = 0; fret < Frets; ++fret)
            if (indexOf(PlainOpenNotes[string] + fret) == root) return {string, fret};
    return {-1, -1};
}

std::string marksText(int root, const std::set<int>& notes, int style) {
    std::string text;
    for (int string = 0; string < PlainStrings; ++string) {
        for (int fret = 0; fret < 7; ++fret) {
            const bool shown = style == PlainAll ? fret < Frets && isMarked(notes, string, fret)
                                                 : fret == pickedFret(notes, string, style == PlainBarre);
            const bool red = rootPlace(root) == std::pair(string, fret);
            text += shown ? (red ? 'R' : 'O') : (red ? 'r' : '.');
        }
        text += ' ';
    }
    return text;
}

std::string fretsText(const std::set<int>& notes, int style) {
    std::string text;
    for (int string = 0; string < PlainStrings; ++string)
        text += "[" + std::to_string(pickedFret(notes, string, style == PlainBarre)) + "]";
    return text;
}

std::string notesText(int root, const std::set<int>& notes) {
    std::string text;
    for (int note = 0; note < 12; ++note)
        text += note == root ? 'R' : notes.contains(note) ? 'x' : '-';
    return text;
}

// The head of each note by its letter, and the sign of each sharp.
std::string staffText(const std::set<int>& notes) {
    std::set<std::string> marks;
    for (const int note : notes) {
        const std::string& name = PlainKeys[static_cast<std::size_t>(note)];
        marks.insert("mn" + name.substr(0, 1));
        if (name.size() > 1) marks.insert("mn" + name.substr(0, 1) + "s");
    }
    std::string text;
    for (const std::string& mark : marks)
        text += mark + " ";
    return text;
}

std::string soundText(const std::set<int>& notes, int style) {
    PlainDesk desk;
    desk.AllNotesOff();
    desk.ChannelNotesOff(14);
    for (int string = 0; string < PlainStrings; ++string)
        desk.NoteOn(14, PlainOpenNotes[string] + pickedFret(notes, string, style == PlainBarre));
    return midiText(desk.midi);
}

std::string chordText(int key, const Type& type, int style) {
    constexpr const char* Suffixes[] = {"(Open)", "(Barre)", "(All Notes)"};
    const std::set<int> notes = notesOf(key, type);
    return PlainKeys[static_cast<std::size_t>(key)] + " " + type.name + " " + Suffixes[style] + "\n" +
           marksText(key, notes, style) + "\n" + notesText(key, notes) + "\n" + staffText(notes) + "\n" +
           fretsText(notes, style) + "\n" + soundText(notes, style);
}

} // namespace

class ChordNotes : public CheckedChordWindowTest, public ::testing::WithParamInterface<int> {
  protected:
    int rowOf(const char* type) const {
        const auto& list = window->at<QListWidget>("lstTypes");
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->text() == type) return row;
        return -1;
    }
    std::string shownChord() {
        const std::string sound = midiText(takeMidi());
        return window->title() + "\n" + window->marksText() + "\n" + window->keyBoxesText() + "\n" +
               window->staffText() + "\n" + window->fretsText() + "\n" + sound;
    }
};

TEST_P(ChordNotes, AreThoseOfTheSemitonesOnEveryStringInEveryKeyAndType) {
    open();
    for (int step = 0; step < GetParam(); ++step)
        window->key("Combo1", Qt::Key_Down);
    window->toggle("chkPlayNow");
    for (const Type& type : Types) {
        window->clickRow("lstTypes", rowOf(type.name));
        for (int key = 0; key < 12; ++key) {
            takeMidi();
            window->clickRow("lstKeys", key);
            ASSERT_EQ(shownChord(), chordText(key, type, GetParam()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, ChordNotes, ::testing::Values(PlainOpen, PlainBarre, PlainAll));

} // namespace tabrova::testing
