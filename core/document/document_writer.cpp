#include "core/document/document_file.h"
#include "core/files/replaced_file.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace tabrova {

namespace {

// An index past an array ends the writing, with the lines so far kept: a read that failed half way can leave
// counts behind that the arrays do not have.
bool addTracks(FileText& text, const Document& document) {
    for (std::size_t track = 0; track < static_cast<std::size_t>(std::max<int>(document.TrackCount, 0));
         ++track) {
        if (track >= document.TrackNames.size()) return false;
        text.addLine(document.TrackNames[track]);
        if (track >= document.TrackVolumes.size()) return false;
        text.addLine(document.TrackVolumes[track]);
        if (track >= document.GuitarTrackFlags.size()) return false;
        text.addLine(printedBoolean(document.GuitarTrackFlags[track] != False16));
        if (track >= document.TrackInstruments.size()) return false;
        text.addLine(document.TrackInstruments[track]);
    }
    return true;
}

bool addTuning(FileText& text, const Document& document, int rows) {
    for (int row = 0; row < rows; ++row) {
        if (row >= static_cast<int>(document.TuningTable.size())) return false;
        text.addLine(printedInteger(document.TuningTable[static_cast<std::size_t>(row)]));
    }
    return true;
}

int emptyCellsFrom(const CellColumn& column, int from, int rows) {
    int row = from;
    if (column.width() == CellColumn::Width::Empty) return rows - from;
    if (column.width() == CellColumn::Width::One) {
        for (; row + 8 <= rows; row += 8) {
            std::uint64_t eight;
            std::memcpy(&eight, column.data() + row, sizeof eight);
            if (eight == 0) continue;
            if constexpr (std::endian::native == std::endian::little)
                return row + std::countr_zero(eight) / 8 - from;
            break;
        }
    }
    while (row < rows && column.at(row) == EmptyText)
        ++row;
    return row - from;
}

void addColumn(FileText& text, const TextPool& pool, const CellColumn& column, int rows) {
    for (int row = 0; row < rows; ++row) {
        const int empty = emptyCellsFrom(column, row, rows);
        row += empty;
        if (row < rows) {
            text.addLine(static_cast<std::size_t>(empty), pool.text(column.at(row)));
        } else {
            text.addEmptyLines(static_cast<std::size_t>(empty));
        }
    }
}

bool addGrid(FileText& text, const TextPool& pool, const CellGrid& grid, int columns, int rows) {
    for (int column = 0; column < columns; ++column) {
        if (column >= grid.columns()) return rows <= 0;
        addColumn(text, pool, grid.column(column), std::min(rows, grid.rows()));
        if (rows > grid.rows()) return false;
    }
    return true;
}

void addBarMarks(FileText& text, const Document& document, int columns) {
    for (int column = 0; column < std::min(columns, static_cast<int>(document.BarMarkRow.size())); ++column)
        text.addLine(document.barMark(column));
}

} // namespace

FileText documentText(const Document& document) {
    FileText text;
    text.addLine(document.Title);
    text.addLine(document.Author);
    text.addLine(std::to_string(document.PreventReverberations));
    text.addLine(printedInteger(document.Tempo));
    text.addLine(document.Notes);
    text.addLine(printedBoolean(document.DoubleTime != False16));
    text.addLine(printedInteger(document.TrackCount));
    text.addLine(printedInteger(document.CurrentTrack));
    text.addLine(printedInteger(document.CurrentStaff));
    text.addLine(printedInteger(document.StaffCount));
    const int columns = document.StaffCount * ColumnsPerStaff;
    const int rows = document.TrackCount * StringsPerTrack;
    if (addTracks(text, document) && addTuning(text, document, rows) &&
        addGrid(text, document.pool, document.NoteGrid, columns, rows) &&
        addGrid(text, document.pool, document.TechniqueGrid, columns, rows))
        addBarMarks(text, document, columns);
    return text;
}

// A pipe or a device is as if it was opened and its first write failed.
bool saveDocument(Document& document, const std::filesystem::path& path) {
    const Replaced replaced = replaceFile(path, documentText(document));
    if (replaced != Replaced::NotOpened) document.HasFileName = True16;
    return replaced == Replaced::Whole;
}

} // namespace tabrova
