#include "core/document/document_file.h"
#include "core/document/document_operations.h"
#include "core/files/line_reader.h"

namespace tabrova {

namespace {

// Every text is kept once; a file of nothing but different ones would fill the memory.
constexpr std::size_t MostTexts = 1024 * 1024;

bool readText(LineReader& lines, std::string& field) {
    const auto line = lines.next();
    if (line) field = *line;
    return line.has_value();
}

bool readInteger(LineReader& lines, std::int16_t& field) {
    const auto line = lines.next();
    const auto value = line ? toInteger16(*line) : std::nullopt;
    if (value) field = *value;
    return value.has_value();
}

bool readBoolean(LineReader& lines, std::int16_t& field) {
    const auto line = lines.next();
    const auto value = line ? toBoolean(*line) : std::nullopt;
    if (value) field = boolean16(*value);
    return value.has_value();
}

// Where the cursor stood at the time of saving is in the file, and is passed over.
bool readHeader(Document& document, LineReader& lines) {
    if (!readText(lines, document.Title) || !readText(lines, document.Author)) return false;
    if (!readInteger(lines, document.PreventReverberations) || !readInteger(lines, document.Tempo))
        return false;
    if (!readText(lines, document.Notes) || !readBoolean(lines, document.DoubleTime)) return false;
    if (!readInteger(lines, document.TrackCount)) return false;
    document.CurrentTrack = 1;
    if (!lines.next() || !lines.next()) return false;
    return readInteger(lines, document.StaffCount);
}

bool readTracks(Document& document, LineReader& lines) {
    if (document.TrackCount < 1) return false;
    const auto count = static_cast<std::size_t>(document.TrackCount);
    document.GuitarTrackFlags.assign(count, False16);
    for (std::size_t track = 0; track < count; ++track) {
        std::string name, volume, instrument;
        std::int16_t flag = False16;
        if (!readText(lines, name) || !readText(lines, volume)) return false;
        if (!readBoolean(lines, flag) || !readText(lines, instrument)) return false;
        document.TrackNames.push_back(std::move(name));
        document.TrackVolumes.push_back(std::move(volume));
        document.TrackInstruments.push_back(std::move(instrument));
        document.GuitarTrackFlags[track] = flag;
    }
    return true;
}

bool readGrid(LineReader& lines, TextPool& pool, CellGrid& grid) {
    const auto rows = static_cast<std::size_t>(grid.rows());
    const std::size_t cells = static_cast<std::size_t>(grid.columns()) * rows;
    for (std::size_t cell = 0; cell < cells; ++cell) {
        cell += lines.skipEmptyLines(cells - cell);
        if (cell == cells) break;
        const auto line = lines.next();
        if (!line) return false;
        if (pool.size() > MostTexts) return false;
        if (!line->empty())
            grid.set(static_cast<int>(cell / rows), static_cast<int>(cell % rows), pool.intern(*line));
    }
    return true;
}

bool readBarMarks(LineReader& lines, Document& document) {
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        const auto line = lines.next();
        if (!line || document.pool.size() > MostTexts) return false;
        document.setBarMark(column, *line);
    }
    return true;
}

} // namespace

bool readDocument(Document& document, std::istream& file) {
    document.TrackNames.clear();
    document.TrackVolumes.clear();
    document.TrackInstruments.clear();
    LineReader lines(file);
    if (!readHeader(document, lines) || !readTracks(document, lines)) return false;
    const int rows = document.TrackCount * StringsPerTrack;
    if (document.StaffCount < 1 || !ResizeGrids(document, document.StaffCount * ColumnsPerStaff, rows))
        return false;
    // Entries that the file does not reach are 0, like those of any added string.
    document.TuningTable.assign(static_cast<std::size_t>(rows), 0);
    for (std::int16_t& tuning : document.TuningTable)
        if (!readInteger(lines, tuning)) return false;
    return readGrid(lines, document.pool, document.NoteGrid) &&
           readGrid(lines, document.pool, document.TechniqueGrid) && readBarMarks(lines, document);
}

} // namespace tabrova
