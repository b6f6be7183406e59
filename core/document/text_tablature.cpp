#include "core/document/text_tablature.h"

#include "core/document/bar_marks.h"
#include "core/document/track_table.h"

#include <algorithm>
#include <array>

namespace tabrova {

namespace {

// Each bend as two characters of the code page, with its "½" and "ß".
struct BendText {
    std::string_view technique;
    std::string_view shown;
};
constexpr std::array Bends = {
    BendText{"b0.5", "b\xBD"}, BendText{"b1.0", "b1"},       BendText{"b1.5", "B\xBD"},
    BendText{"b2.0", "B2"},    BendText{"b2.5", "\xDF\xBD"}, BendText{"b3.0", "B3"},
};

std::string_view shownTechnique(std::string_view technique) {
    const auto bend = std::ranges::find(Bends, technique, &BendText::technique);
    return bend == Bends.end() ? technique : bend->shown;
}

// Two characters; a longer text stands as it is and moves what is right of it.
void addField(std::string& line, std::string_view text) {
    line += text;
    if (text.size() < 2) line.append(2 - text.size(), '-');
}

constexpr int MarkWidth = 6;
// What is cut off the line of marks: it puts each mark below the bar character that ends its cell.
constexpr int MarksCut = 5;

std::string shownMark(std::string_view mark) {
    std::string text;
    if (mark == "r") text = "|";
    // How often the passage is played in all.
    if (const auto repeats = closedRepeatCount(mark)) text = "x" + std::to_string(*repeats + 1);
    return std::string(MarkWidth - text.size(), ' ') + text;
}

std::string stringLine(const Document& document, int firstColumn, int row) {
    std::string line;
    for (int column = firstColumn; column < firstColumn + ColumnsPerBlock; ++column) {
        line += document.barMark(column).empty() ? '-' : '|';
        addField(line, document.note(column, row));
        addField(line, shownTechnique(document.technique(column, row)));
        line += '-';
    }
    return line;
}

std::string marksLine(const Document& document, int firstColumn) {
    std::string line;
    for (int column = firstColumn; column < firstColumn + ColumnsPerBlock; ++column)
        line += shownMark(document.barMark(column));
    return line.substr(MarksCut);
}

void addHeading(FileText& text, const Document& document, const TablatureHeading& heading) {
    const int speed = document.DoubleTime != False16 ? 2 * document.Tempo : document.Tempo;
    text.addLine(document.Title + " by " + document.Author + " - Created with Tabrova 3 (" +
                 heading.webAddress + ")");
    text.addLine(heading.date);
    text.addLine(" ");
    text.addLine("Tempo: " + std::to_string(speed));
    text.addLine("Track: " + trackName(document, document.CurrentTrack));
    text.addLine("Tuning: " + heading.tuning);
    text.addLine(document.isGuitarTrack(document.CurrentTrack) ? "Instrument: " + heading.instrument
                                                               : "Percussion.");
}

} // namespace

FileText textTablature(const Document& document, const TablatureHeading& heading) {
    FileText text;
    addHeading(text, document, heading);
    const int columns = std::min(document.StaffCount * ColumnsPerStaff, document.NoteGrid.columns());
    for (int column = 0; column < columns; column += ColumnsPerBlock) {
        for (int string = 0; string < StringsPerTrack; ++string)
            text.addLine(
                stringLine(document, column, Document::firstRowOfTrack(document.CurrentTrack) + string));
        text.addLine(marksLine(document, column));
        text.addLine(" ");
    }
    return text;
}

} // namespace tabrova
