#include "core/document/track_table.h"

#include "core/document/document_operations.h"

#include <algorithm>
#include <limits>

namespace tabrova {

namespace {

bool hasRow(const std::vector<std::string>& list, int row) {
    return row >= 0 && row < static_cast<int>(list.size());
}

template <class Value>
void eraseRows(std::vector<Value>& list, int first, int count) {
    if (first < 0 || first + count > static_cast<int>(list.size())) return;
    list.erase(list.begin() + first, list.begin() + first + count);
}

} // namespace

bool growByOneTrack(Document& document) {
    return document.TrackCount < std::numeric_limits<std::int16_t>::max() &&
           ResizeGrids(document, document.ColumnCapacity, document.RowCapacity + StringsPerTrack);
}

int appendTrackRows(Document& document) {
    document.TrackNames.emplace_back(NewTrackName);
    document.TrackInstruments.emplace_back(NewTrackInstrument);
    document.TrackVolumes.emplace_back(NewTrackVolume);
    return static_cast<int>(document.TrackNames.size()) - 1;
}

void finishNewTrack(Document& document, bool guitar) {
    const auto strings = std::min<std::ptrdiff_t>(StringsPerTrack, std::ssize(document.TuningTable));
    std::fill_n(document.TuningTable.rbegin(), strings, StandardTuning);
    ++document.TrackCount;
    const auto tracks = static_cast<std::size_t>(std::max<int>(document.TrackCount, 0));
    document.GuitarTrackFlags.resize(std::max(tracks, document.GuitarTrackFlags.size()), False16);
    const auto flag = static_cast<std::size_t>(document.CurrentTrack - 1);
    if (flag < document.GuitarTrackFlags.size()) document.GuitarTrackFlags[flag] = boolean16(guitar);
}

void removeCurrentTrack(Document& document) {
    if (document.TrackCount <= 1) return;
    const int row = document.CurrentTrack - 1;
    const int firstString = Document::firstRowOfTrack(document.CurrentTrack);
    for (auto* list : {&document.TrackNames, &document.TrackInstruments, &document.TrackVolumes})
        eraseRows(*list, row, 1);
    eraseRows(document.GuitarTrackFlags, row, 1);
    // The table keeps its length until the grids shrink.
    if (firstString >= 0 && firstString + StringsPerTrack < std::ssize(document.TuningTable))
        std::move(document.TuningTable.begin() + firstString + StringsPerTrack, document.TuningTable.end(),
                  document.TuningTable.begin() + firstString);
    document.NoteGrid.removeRows(firstString, StringsPerTrack);
    document.TechniqueGrid.removeRows(firstString, StringsPerTrack);
    --document.TrackCount;
    ResizeGrids(document, document.ColumnCapacity,
                std::max(document.RowCapacity - StringsPerTrack, StringsPerTrack));
    document.CurrentTrack = 1;
}

std::string trackName(const Document& document, int track) {
    return hasRow(document.TrackNames, track - 1) ? document.TrackNames[static_cast<std::size_t>(track - 1)]
                                                  : std::string();
}

void setCurrentTrackRow(const Document& document, std::vector<std::string>& list, std::string text) {
    if (hasRow(list, document.CurrentTrack - 1))
        list[static_cast<std::size_t>(document.CurrentTrack - 1)] = std::move(text);
}

} // namespace tabrova
