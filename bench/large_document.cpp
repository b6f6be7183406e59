#include "bench/large_document.h"

#include "core/document/document_operations.h"

namespace tabrova {

namespace {

void setTracks(Document& document, int tracks, int staves) {
    resetToNewDocument(document);
    document.TrackCount = static_cast<std::int16_t>(tracks);
    document.StaffCount = static_cast<std::int16_t>(staves);
    document.TrackNames.assign(static_cast<std::size_t>(tracks), "Untitled Track");
    document.TrackVolumes.assign(static_cast<std::size_t>(tracks), "127");
    document.TrackInstruments.assign(static_cast<std::size_t>(tracks), "24");
    document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
    ResizeGrids(document, staves * ColumnsPerStaff, tracks * StringsPerTrack);
    document.TuningTable.assign(static_cast<std::size_t>(tracks * StringsPerTrack), StandardTuning);
}

} // namespace

void makeLargeDocument(Document& document, int everyColumns) {
    setTracks(document, LargeTracks, LargeStaves);
    if (everyColumns == 0) return;
    for (int column = 0; column < document.ColumnCapacity; column += everyColumns) {
        for (int track = 0; track < LargeTracks; ++track) {
            const int row = track * StringsPerTrack + (column / everyColumns + track) % StringsPerTrack;
            document.setNote(column, row, std::to_string((column + track) % 25));
            if (column / everyColumns % 4 == 0) document.setTechnique(column, row, "h");
        }
    }
}

void makeDenseDocument(Document& document, int staves) {
    constexpr std::string_view Techniques[] = {"h", "s", "v", "r", "b1.0", "p0.5", "g", "."};
    setTracks(document, 1, staves);
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        for (int row = 0; row < StringsPerTrack; ++row) {
            document.setNote(column, row, std::to_string((column + row) % 30));
            if ((column + row) % 2 == 0)
                document.setTechnique(column, row,
                                      Techniques[static_cast<std::size_t>(column + row) / 2 % 8]);
        }
        if (column % 4 == 0) document.setBarMark(column, ".");
    }
}

} // namespace tabrova
