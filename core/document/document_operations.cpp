#include "core/document/document_operations.h"

namespace tabrova {

namespace {

// A pool that a file filled with its own texts is emptied with the document, unless the clipboard needs it.
constexpr std::size_t TextsWorthKeeping = 4096;

bool sizesFit(std::int64_t columns, std::int64_t rows) {
    return columns >= 0 && rows >= 0 && columns * rows <= LargestGrid && columns <= LargestGrid &&
           rows <= LargestGrid;
}

struct KeptText {
    TextId* mark = nullptr;
    CellGrid* grid = nullptr;
    int column = 0;
    int row = 0;
    std::string text;
};

void collect(Document& document, CellGrid& grid, std::vector<KeptText>& kept) {
    for (int column = 0; column < grid.columns(); ++column) {
        if (grid.column(column).width() == CellColumn::Width::Empty) continue;
        for (int row = 0; row < grid.rows(); ++row)
            if (const TextId id = grid.at(column, row))
                kept.push_back({nullptr, &grid, column, row, std::string(document.pool.text(id))});
    }
}

// Called when the grids are empty, so that only the clipboard holds ids.
void forgetTextsOfOldDocument(Document& document) {
    if (document.pool.size() < TextsWorthKeeping) return;
    std::vector<KeptText> kept;
    collect(document, document.ClipboardNotes, kept);
    collect(document, document.ClipboardTechniques, kept);
    for (TextId& mark : document.ClipboardBarMarks)
        if (mark) kept.push_back({&mark, nullptr, 0, 0, std::string(document.pool.text(mark))});
    document.ClipboardNotes.clear();
    document.ClipboardTechniques.clear();
    document.pool.clear();
    for (const KeptText& cell : kept) {
        const TextId id = document.pool.intern(cell.text);
        if (cell.mark) {
            *cell.mark = id;
        } else {
            cell.grid->set(cell.column, cell.row, id);
        }
    }
}

} // namespace

bool ResizeGrids(Document& document, std::int32_t columns, std::int32_t rows) {
    if (!sizesFit(columns, rows)) return false;
    document.NoteGrid.resize(columns, rows);
    document.TechniqueGrid.resize(columns, rows);
    document.ColumnCapacity = columns;
    document.RowCapacity = rows;
    document.BarMarkRow.resize(static_cast<std::size_t>(columns), EmptyText);
    document.ClipboardBarMarks.resize(static_cast<std::size_t>(columns), EmptyText);
    document.ClipboardNotes.resize(ClipboardColumns, rows);
    document.ClipboardTechniques.resize(ClipboardColumns, rows);
    // New entries are 0: whoever adds a track sets its tuning.
    document.TuningTable.resize(static_cast<std::size_t>(rows), 0);
    return true;
}

bool growByOneStaff(Document& document) {
    if (document.StaffCount >= MostStaves) return false;
    if (!ResizeGrids(document, document.ColumnCapacity + ColumnsPerStaff,
                     document.TrackCount * StringsPerTrack))
        return false;
    ++document.StaffCount;
    return true;
}

void assignTuning(Document& document, std::int16_t s1, std::int16_t s2, std::int16_t s3, std::int16_t s4,
                  std::int16_t s5, std::int16_t s6) {
    int row = document.CurrentTrack * StringsPerTrack;
    for (const std::int16_t value : {s1, s2, s3, s4, s5, s6}) {
        --row;
        if (row >= 0 && row < static_cast<int>(document.TuningTable.size()))
            document.TuningTable[static_cast<std::size_t>(row)] = value;
    }
}

int staffStart(const Document& document) { return (document.CurrentStaff - 1) * ColumnsPerStaff; }

void moveToFirstColumn(Document& document) { document.CurrentColumn = 0; }

std::int32_t GetCurrentXPosition(Document& document) {
    document.CurrentColumn = staffStart(document) + document.ColumnInStaff;
    return document.CurrentColumn;
}

void emptyStaff(Document& document, RowRange rows, const StaffParts& parts) {
    const int first = staffStart(document);
    if (parts.notes) document.NoteGrid.clear(first, ColumnsPerStaff, rows.first, rows.count);
    if (parts.techniques) document.TechniqueGrid.clear(first, ColumnsPerStaff, rows.first, rows.count);
    if (parts.barMarks) clearBarMarks(document, first, ColumnsPerStaff);
}

void ClearStaffallall(Document& document) {
    emptyStaff(document, {0, document.NoteGrid.rows()}, {true, true, true});
}

void clearBarMarks(Document& document, int first, int count) {
    for (int column = first; column < first + count; ++column)
        document.setBarMark(column, "");
}

void forgetFileName(Document& document) { document.HasFileName = False16; }

void resetToNewDocument(Document& document) {
    document.HasFileName = False16;
    document.Title = "Untitled";
    document.Author = "Anonymous";
    document.Tempo = DefaultTempo;
    document.DoubleTime = False16;
    document.Notes.clear();
    document.PreventReverberations = 1;
    document.TuningTable.assign(StringsPerTrack, StandardTuning);
    document.StaffCount = 1;
    document.TopStaff = 0;
    document.TrackCount = 1;
    document.CurrentStaff = 1;
    document.CurrentTrack = 1;
    document.CurrentString = 0;
    document.ColumnInStaff = 0;
    document.GuitarTrackFlags.assign(1, False16);
    ResizeGrids(document, ColumnsPerStaff, StringsPerTrack);
    document.GuitarTrackFlags.front() = True16;
    document.TrackNames.assign(1, "Untitled Track");
    document.TrackInstruments.assign(1, "24");
    document.TrackVolumes.assign(1, "127");
    ClearStaffallall(document);
    forgetTextsOfOldDocument(document);
}

} // namespace tabrova
