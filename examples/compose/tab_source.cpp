#include "examples/compose/tab_source.h"

#include "core/document/document_operations.h"
#include "core/text/conversions.h"
#include "examples/compose/source_text.h"

#include <iostream>
#include <sstream>

namespace tabrova {

namespace {

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> parts(const std::string& text, char separator) {
    std::vector<std::string> list;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        list.push_back(trimmed(part));
    return list;
}

bool addTrack(Document& document, const std::string& value) {
    const std::vector<std::string> fields = parts(value, '|');
    if (fields.size() != 5) return false;
    document.TrackNames.push_back(codePageFromUtf8(fields[0]).value_or("?"));
    document.TrackInstruments.push_back(fields[1]);
    document.TrackVolumes.push_back(fields[2]);
    document.GuitarTrackFlags.push_back(boolean16(fields[3] == "guitar"));
    document.TrackCount = static_cast<std::int16_t>(document.TrackNames.size());
    if (!ResizeGrids(document, 0, document.TrackCount * StringsPerTrack)) return false;
    std::istringstream tuning(fields[4]);
    for (int string = 0; string < StringsPerTrack; ++string) {
        int entry = 0;
        if (!(tuning >> entry)) return false;
        const int row = Document::firstRowOfTrack(document.TrackCount) + string;
        document.TuningTable[static_cast<std::size_t>(row)] = static_cast<std::int16_t>(entry);
    }
    return true;
}

bool readHeader(Document& document, const std::string& line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) return false;
    const std::string name = line.substr(0, colon);
    const std::string value = trimmed(line.substr(colon + 1));
    if (name == "title") document.Title = codePageFromUtf8(value).value_or("?");
    if (name == "author") document.Author = codePageFromUtf8(value).value_or("?");
    if (name == "notes") document.Notes = codePageFromUtf8(value).value_or("?");
    if (name == "tempo") document.Tempo = toInteger16(value).value_or(DefaultTempo);
    return name == "track" ? addTrack(document, value) : true;
}

// Row -1 is the line of bar marks.
bool readRow(Document& document, const std::string& line, int firstColumn, int row) {
    std::istringstream words(line);
    for (int column = firstColumn; column < firstColumn + ColumnsPerStaff; ++column) {
        std::string word;
        if (!(words >> word)) return false;
        if (word == "-") continue;
        if (row < 0) {
            document.setBarMark(column, word);
            continue;
        }
        const std::size_t slash = word.find('/');
        document.setNote(column, row, word.substr(0, slash));
        if (slash != std::string::npos) document.setTechnique(column, row, word.substr(slash + 1));
    }
    return true;
}

bool readStaff(Document& document, std::istream& source) {
    const int firstColumn = document.ColumnCapacity;
    document.StaffCount = static_cast<std::int16_t>(firstColumn / ColumnsPerStaff + 1);
    if (!ResizeGrids(document, firstColumn + ColumnsPerStaff, document.RowCapacity)) return false;
    for (int row = -1; row < document.RowCapacity; ++row) {
        std::string line;
        if (!std::getline(source, line) || !readRow(document, line, firstColumn, row)) return false;
    }
    return true;
}

} // namespace

bool readTabSource(Document& document, std::istream& source) {
    resetToNewDocument(document);
    document.TrackNames.clear();
    document.TrackInstruments.clear();
    document.TrackVolumes.clear();
    document.GuitarTrackFlags.clear();
    document.TuningTable.clear();
    document.TrackCount = 0;
    ResizeGrids(document, 0, 0);
    for (std::string line; std::getline(source, line);) {
        if (trimmed(line).empty()) continue;
        const bool good =
            line.starts_with("staff") ? readStaff(document, source) : readHeader(document, line);
        if (good) continue;
        std::cerr << "The source does not hold together at: " << line << '\n';
        return false;
    }
    return document.TrackCount > 0 && document.ColumnCapacity > 0;
}

} // namespace tabrova
