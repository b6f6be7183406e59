#include "tools/chord_manager/chord_calculator.h"

#include "core/text/conversions.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr std::size_t FretsOfCalculator = 5; // 0 to 4: the marks behind them are a user's

bool isDigit(char character) { return character >= '0' && character <= '9'; }

void showNote(ChordDisplay& display, std::size_t note) {
    const auto table = chordNoteTable();
    for (const ChordPlace& place : table[note].places)
        display.marks[place.string][place.fret].visible = true;
    display.staff[note] = true;
    if (table[note].sharp) display.staff[note - 1] = true;
}

// The lowest of the marked frets, or the highest; 0 if none is marked.
std::size_t pickedFret(const std::array<ChordMarkState, ChordFretMarks>& marks, CalculatorStyle style) {
    std::size_t picked = 0;
    for (std::size_t step = 0; step < FretsOfCalculator; ++step) {
        const std::size_t fret = style == CalculatorStyle::Barre ? step : FretsOfCalculator - 1 - step;
        if (marks[fret].visible) picked = fret;
    }
    return picked;
}

void showOnly(std::array<ChordMarkState, ChordFretMarks>& marks, std::size_t fret) {
    for (std::size_t each = 0; each < FretsOfCalculator; ++each)
        marks[each].visible = each == fret;
}

} // namespace

const char* titleSuffix(CalculatorStyle style) {
    constexpr std::array suffixes = {"(Open)", "(Barre)", "(All Notes)"};
    return suffixes[static_cast<std::size_t>(style)];
}

ChordValues chordValues(std::string_view text) {
    ChordValues values{};
    for (std::size_t interval = 0; interval < std::min(values.size(), text.size()); ++interval)
        if (isDigit(text[interval])) values[interval] = text[interval] - '0';
    return values;
}

void ClearChordDisplay(ChordDisplay& display) {
    display.marks = {};
    display.chkKey = {};
}

void showChordNotes(ChordDisplay& display, std::size_t root, const ChordValues& values) {
    display.userChord = false;
    ClearChordDisplay(display);
    display.marks[rootMark(root).string][rootMark(root).fret] = {true, MarkColor::Root};
    display.chkKey[root] = {true, true};
    for (std::size_t interval = 0; interval < values.size(); ++interval)
        if (values[interval] == 1) display.chkKey[(root + interval) % ChordNotes].checked = true;
    display.staff = {};
    for (std::size_t note = 0; note < ChordNotes; ++note)
        if (display.chkKey[note].checked) showNote(display, note);
}

void pickChordFrets(ChordDisplay& display, CalculatorStyle style) {
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        const std::size_t fret = pickedFret(display.marks[string], style);
        if (style != CalculatorStyle::AllNotes) showOnly(display.marks[string], fret);
        display.frets[string] = std::to_string(fret);
    }
}

void showUserChord(ChordDisplay& display, std::string_view text) {
    display.userChord = true;
    ClearChordDisplay(display);
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        std::string& fret = display.frets[string];
        const std::string_view entry = text.substr(std::min(string, text.size()), 1);
        fret = std::string(entry == "x" ? " " : entry);
        for (std::size_t mark = 0; mark < ChordFretMarks; ++mark)
            if (fret == std::to_string(mark)) display.marks[string][mark].visible = true;
    }
}

std::optional<int> chordNote(std::size_t string, std::string_view fretText) {
    const auto fret = toInteger16(fretText);
    return fret ? std::optional<int>(*fret + ChordStringTable[string].openNote) : std::nullopt;
}

} // namespace tabrova
