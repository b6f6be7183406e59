// A slow plain model of the edits that change the grid's shape and of copy and paste: cells are strings,
// every command is the loop over single cells in which its rule is told. A statement that reads or writes a
// cell outside the arrays is passed over, and the next one runs.
#pragma once

#include "core/document/document_operations.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tabrova::testing {

class PlainGrid {
  public:
    using Marks = std::vector<std::string>;
    using Cells = std::vector<Marks>; // by column, then by row

    int columnCapacity = 32, rowCapacity = 6;
    int staffCount = 1, trackCount = 1, staff = 1, columnInStaff = 0, track = 1;
    Cells notes, techniques, clipboardNotes, clipboardTechniques;
    Marks marks, clipboardMarks;
    int clipboardStart = 0, clipboardLength = 0;
    std::vector<int> tuning;

    PlainGrid() { resizeGrids(32, 6); }
    explicit PlainGrid(const Document& document)
        : columnCapacity(document.ColumnCapacity), rowCapacity(document.RowCapacity),
          staffCount(document.StaffCount), trackCount(document.TrackCount), staff(document.CurrentStaff),
          columnInStaff(document.ColumnInStaff), track(document.CurrentTrack),
          notes(cellsOf(document, document.NoteGrid)), techniques(cellsOf(document, document.TechniqueGrid)),
          clipboardNotes(cellsOf(document, document.ClipboardNotes)),
          clipboardTechniques(cellsOf(document, document.ClipboardTechniques)),
          marks(marksOf(document, document.BarMarkRow)),
          clipboardMarks(marksOf(document, document.ClipboardBarMarks)),
          clipboardStart(document.ClipboardStart), clipboardLength(document.ClipboardLength),
          tuning(document.TuningTable.begin(), document.TuningTable.end()) {}

    bool operator==(const PlainGrid&) const = default;

    // Everything of `document` that this model has; the rest stays.
    void fill(Document& document) const {
        document.StaffCount = static_cast<std::int16_t>(staffCount);
        document.TrackCount = static_cast<std::int16_t>(trackCount);
        document.CurrentStaff = static_cast<std::int16_t>(staff);
        document.ColumnInStaff = columnInStaff;
        document.CurrentTrack = static_cast<std::int16_t>(track);
        document.ClipboardStart = clipboardStart;
        document.ClipboardLength = clipboardLength;
        ResizeGrids(document, columnCapacity, rowCapacity);
        document.TuningTable.assign(tuning.begin(), tuning.end());
        fillCells(document, document.NoteGrid, notes);
        fillCells(document, document.TechniqueGrid, techniques);
        fillCells(document, document.ClipboardNotes, clipboardNotes);
        fillCells(document, document.ClipboardTechniques, clipboardTechniques);
        fillMarks(document, document.BarMarkRow, marks);
        fillMarks(document, document.ClipboardBarMarks, clipboardMarks);
        GetCurrentXPosition(document);
    }

    int here() const { return staff * 32 - 32 + columnInStaff; }

    // Sizes that there cannot be change nothing.
    void resizeGrids(int columns, int rows) {
        if (columns < 0 || rows < 0) return;
        columnCapacity = columns;
        rowCapacity = rows;
        resizeCells(notes, columns, rows);
        resizeCells(techniques, columns, rows);
        marks.resize(static_cast<std::size_t>(columns));
        clipboardMarks.resize(static_cast<std::size_t>(columns));
        resizeCells(clipboardNotes, 32, rows);
        resizeCells(clipboardTechniques, 32, rows);
        tuning.resize(static_cast<std::size_t>(rows), 0);
    }

    // False, with nothing changed, for rows that there cannot be.
    bool appendStaff() {
        if (trackCount < 0) return false;
        ++staffCount;
        resizeGrids(columnCapacity + 32, trackCount * 6);
        return true;
    }

    // The grids' part of a new document: the clipboard stays, as far as its rows fit.
    void newDocument() {
        staffCount = trackCount = staff = track = 1;
        columnInStaff = 0;
        resizeGrids(32, 6);
        clear(true, true, true, true);
        tuning.assign(6, 13);
    }

    void clear(bool allTracks, bool clearNotes, bool clearTechniques, bool clearMarks) {
        for (int column = staff * 32 - 32; column <= staff * 32 - 1; ++column) {
            for (int row = firstRow(allTracks); row <= lastRow(allTracks); ++row) {
                if (clearNotes) put(notes, column, row, "");
                if (clearTechniques) put(techniques, column, row, "");
            }
            if (clearMarks) putMark(marks, column, "");
        }
    }

    bool newStaffAfterCurrent() {
        if (!appendStaff()) return false;
        moveStaffRight(staff * 32);
        ++staff;
        clear(true, true, true, true);
        --staff;
        return true;
    }

    bool newStaffBeforeCurrent() {
        if (!appendStaff()) return false;
        moveStaffRight(staff * 32 - 32);
        clear(true, true, true, true);
        return true;
    }

    // For two staves or more; the cursor is still to be brought back.
    void deleteStaff() {
        clear(true, true, true, true);
        for (int column = staff * 32; column <= columnCapacity - 1; ++column)
            takeColumn(column - 32, column, true, true);
        --staffCount;
        resizeGrids(columnCapacity - 32, rowCapacity);
    }
    void bringCursorBack() {
        while (staff > staffCount) {
            if (columnInStaff > 0) {
                --columnInStaff;
            } else if (staff > 1) {
                columnInStaff = 31;
                --staff;
            }
        }
    }

    void ensureRoomForInsert(bool allTracks) {
        bool held = false;
        for (int row = firstRow(allTracks); row <= lastRow(allTracks); ++row)
            if (!cell(notes, columnCapacity - 1, row).empty()) held = true;
        if (held) appendStaff();
    }

    // Without what key U does to the mark of the new column.
    void insertColumn(bool allTracks) {
        ensureRoomForInsert(allTracks);
        for (int column = staffCount * 32; column >= here() + 1; --column)
            takeColumn(column, column - 1, allTracks, allTracks);
        emptyColumn(here(), allTracks);
    }
    void removeBarMark() {
        std::string& mark = marks[static_cast<std::size_t>(here())];
        if (mark.substr(0, 1) == "." || mark.substr(0, 1) == "r") mark = "";
    }

    void removeColumn(bool allTracks) {
        for (int column = here(); column <= columnCapacity - 1; ++column)
            takeColumn(column, column + 1, allTracks, allTracks);
    }

    void insertColumnAfterCursor() {
        ensureRoomForInsert(true);
        for (int column = staffCount * 32; column >= here() + 2; --column) {
            takeColumn(column, column - 1, false, true);
            emptyColumn(column - 1, false);
        }
    }

    void removeColumnAfterCursor() {
        for (int column = here() + 1; column <= columnCapacity - 1; ++column)
            takeColumn(column, column + 1, false, true);
    }

    std::optional<int> noteLength() const {
        for (int length = 1; length < staffCount * 32; ++length)
            for (int row = firstRow(false); row <= lastRow(false); ++row)
                if (!cell(notes, here() + length, row).empty()) return length;
        return std::nullopt;
    }

    void setNoteLength(int columns) {
        const std::optional<int> found = noteLength();
        if (!found) return;
        int length = *found;
        for (; length > columns; --length)
            removeColumnAfterCursor();
        for (; length < columns; ++length)
            insertColumnAfterCursor();
    }

    void copyStaff() {
        clipboardStart = staff * 32 - 32;
        clipboardLength = 32;
        copyData(0, rowCapacity);
    }
    void copyColumns(int columns) {
        clipboardStart = here();
        clipboardLength = columns;
        copyData(0, rowCapacity);
    }

    void copyData(int first, int behindLast) {
        for (int column = 0; column < 32; ++column) {
            for (int row = 0; row < rowCapacity; ++row) {
                put(clipboardNotes, column, row, "");
                put(clipboardTechniques, column, row, "");
            }
            putMark(clipboardMarks, column, "");
        }
        for (int i = 0; i <= clipboardLength - 1; ++i) {
            for (int row = first; row < behindLast; ++row) {
                take(clipboardNotes, i, notes, clipboardStart + i, row);
                take(clipboardTechniques, i, techniques, clipboardStart + i, row);
            }
            if (inside(marks, clipboardStart + i))
                putMark(clipboardMarks, i, marks[static_cast<std::size_t>(clipboardStart + i)]);
        }
    }

    void paste(bool allTracks) {
        if (clipboardLength + here() > columnCapacity) appendStaff();
        for (int pass = 0; pass < clipboardLength; ++pass) {
            const int end = staffCount * 32;
            for (int column = end; column >= here() + 1; --column) {
                ensureRoomForInsert(allTracks);
                takeColumn(column, column - 1, allTracks, false);
            }
            emptyColumn(here(), allTracks);
        }
        for (int i = 0; i <= clipboardLength - 1; ++i)
            for (int row = firstRow(allTracks); row <= lastRow(allTracks); ++row) {
                take(notes, here() + i, clipboardNotes, i, row);
                take(techniques, here() + i, clipboardTechniques, i, row);
            }
    }

  private:
    static Cells cellsOf(const Document& document, const CellGrid& grid) {
        Cells cells(static_cast<std::size_t>(grid.columns()), Marks(static_cast<std::size_t>(grid.rows())));
        for (int column = 0; column < grid.columns(); ++column)
            for (int row = 0; row < grid.rows(); ++row)
                cells[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)] =
                    document.pool.text(grid.at(column, row));
        return cells;
    }
    static Marks marksOf(const Document& document, const std::vector<TextId>& row) {
        Marks list;
        for (const TextId id : row)
            list.emplace_back(document.pool.text(id));
        return list;
    }
    static void fillCells(Document& document, CellGrid& grid, const Cells& cells) {
        for (std::size_t column = 0; column < cells.size(); ++column)
            for (std::size_t row = 0; row < cells[column].size(); ++row)
                grid.set(static_cast<int>(column), static_cast<int>(row),
                         document.pool.intern(cells[column][row]));
    }
    static void fillMarks(Document& document, std::vector<TextId>& row, const Marks& list) {
        for (std::size_t column = 0; column < list.size(); ++column)
            row[column] = document.pool.intern(list[column]);
    }

    static bool inside(const Marks& list, int at) { return at >= 0 && at < static_cast<int>(list.size()); }
    static bool inside(const Cells& cells, int column, int row) {
        return column >= 0 && column < static_cast<int>(cells.size()) &&
               inside(cells[static_cast<std::size_t>(column)], row);
    }
    static std::string cell(const Cells& cells, int column, int row) {
        if (!inside(cells, column, row)) return "";
        return cells[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
    }
    static void put(Cells& cells, int column, int row, const std::string& text) {
        if (!inside(cells, column, row)) return;
        cells[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)] = text;
    }
    static void putMark(Marks& list, int column, const std::string& text) {
        if (inside(list, column)) list[static_cast<std::size_t>(column)] = text;
    }
    static void take(Cells& cells, int to, const Cells& source, int from, int row) {
        if (inside(cells, to, row) && inside(source, from, row)) put(cells, to, row, cell(source, from, row));
    }
    static void resizeCells(Cells& cells, int columns, int rows) {
        cells.resize(static_cast<std::size_t>(columns));
        for (Marks& column : cells)
            column.resize(static_cast<std::size_t>(rows));
    }

    int firstRow(bool allTracks) const { return allTracks ? 0 : (track - 1) * 6; }
    int lastRow(bool allTracks) const { return (allTracks ? trackCount : track) * 6 - 1; }

    void takeColumn(int to, int from, bool allTracks, bool withMarks) {
        for (int row = firstRow(allTracks); row <= lastRow(allTracks); ++row) {
            take(notes, to, notes, from, row);
            take(techniques, to, techniques, from, row);
        }
        if (withMarks && inside(marks, to) && inside(marks, from))
            marks[static_cast<std::size_t>(to)] = marks[static_cast<std::size_t>(from)];
    }
    void emptyColumn(int column, bool allTracks) {
        for (int row = firstRow(allTracks); row <= lastRow(allTracks); ++row) {
            put(notes, column, row, "");
            put(techniques, column, row, "");
        }
    }
    void moveStaffRight(int first) {
        for (int column = columnCapacity - 1; column >= first; --column)
            takeColumn(column + 32, column, true, true);
    }
};

// Where the document and its model first differ.
inline ::testing::AssertionResult sameGrid(const Document& document, const PlainGrid& expected) {
    const PlainGrid actual(document);
    if (actual == expected) return ::testing::AssertionSuccess();
    auto difference = ::testing::AssertionFailure();
    const auto number = [&](const char* name, int is, int wanted) {
        if (is != wanted) difference << name << " is " << is << ", not " << wanted << "; ";
    };
    number("ColumnCapacity", actual.columnCapacity, expected.columnCapacity);
    number("RowCapacity", actual.rowCapacity, expected.rowCapacity);
    number("StaffCount", actual.staffCount, expected.staffCount);
    number("TrackCount", actual.trackCount, expected.trackCount);
    number("CurrentStaff", actual.staff, expected.staff);
    number("ColumnInStaff", actual.columnInStaff, expected.columnInStaff);
    number("CurrentTrack", actual.track, expected.track);
    number("ClipboardStart", actual.clipboardStart, expected.clipboardStart);
    number("ClipboardLength", actual.clipboardLength, expected.clipboardLength);
    const auto list = [&](const char* name, const PlainGrid::Marks& is, const PlainGrid::Marks& wanted,
                          const std::string& place) {
        number((name + place + " size").c_str(), static_cast<int>(is.size()),
               static_cast<int>(wanted.size()));
        for (std::size_t at = 0; at < std::min(is.size(), wanted.size()); ++at)
            if (is[at] != wanted[at])
                difference << name << place << '(' << at << ") is \"" << is[at] << "\", not \"" << wanted[at]
                           << "\"; ";
    };
    const auto cells = [&](const char* name, const PlainGrid::Cells& is, const PlainGrid::Cells& wanted) {
        number((std::string(name) + " columns").c_str(), static_cast<int>(is.size()),
               static_cast<int>(wanted.size()));
        for (std::size_t at = 0; at < std::min(is.size(), wanted.size()); ++at)
            list(name, is[at], wanted[at], " column " + std::to_string(at) + " row ");
    };
    cells("NoteGrid", actual.notes, expected.notes);
    cells("TechniqueGrid", actual.techniques, expected.techniques);
    list("BarMarkRow", actual.marks, expected.marks, "");
    cells("ClipboardNotes", actual.clipboardNotes, expected.clipboardNotes);
    cells("ClipboardTechniques", actual.clipboardTechniques, expected.clipboardTechniques);
    list("ClipboardBarMarks", actual.clipboardMarks, expected.clipboardMarks, "");
    if (actual.tuning != expected.tuning) difference << "TuningTable differs";
    return difference;
}

} // namespace tabrova::testing
