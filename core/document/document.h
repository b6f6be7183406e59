// The one open document: a flat set of fields and arrays. There is no undo and no flag for unsaved changes;
// whoever changes a cell asks for a redraw afterwards.
//
// Columns and rows count from 0, tracks and staves from 1. Row = (track - 1) * 6 + string; string 0 is the
// highest. Texts are bytes of the code page (core/text/code_page.h).
#pragma once

#include "core/document/cell_grid.h"
#include "core/text/conversions.h"

#include <string>
#include <vector>

namespace tabrova {

constexpr int StringsPerTrack = 6;
constexpr int ColumnsPerStaff = 32;
constexpr int ClipboardColumns = 32;
constexpr std::int16_t StandardTuning = 13;
constexpr std::int16_t DefaultTempo = 480;

// How far the player has come. Columns count from 0.
struct PlaybackState {
    std::int32_t PlaybackPosition = 0;  // the column that the next tick plays
    std::int32_t RepeatStartColumn = 0; // the last opened repeat that was passed
    std::int16_t RepeatsLeft = 0;       // jumps back still to be made
    std::int16_t InRepeat = False16;    // a closed repeat is being played through
};

struct Document {
    Document() = default;
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    std::string Title = "Untitled";
    std::string Author = "Anonymous";
    std::int16_t Tempo = DefaultTempo; // columns a minute
    std::int16_t DoubleTime = False16;
    std::string Notes;
    std::int16_t PreventReverberations = 1;
    std::int16_t RealtimeMode = 0; // what note entry plays: 0 all tracks, 1 nothing, 2 the current track
    std::int32_t CurrentColumn = 0;
    std::int16_t CurrentStaff = 1;
    std::int16_t CurrentTrack = 1;
    std::int32_t ColumnInStaff = 0;
    std::int16_t CurrentString = 0;
    std::int32_t ColumnCapacity = 0;
    std::int32_t RowCapacity = 0;
    std::int16_t TrackCount = 1;
    std::int16_t HasFileName = False16;
    std::int32_t ClipboardStart = 0;
    std::int32_t ClipboardLength = 0;
    std::int16_t ColumnWidth = 0; // pixels between two columns
    std::int16_t TopStaff = 0;    // staves scrolled above the page
    std::int16_t StaffCount = 1;
    std::int16_t VisibleStaves = 0;

    PlaybackState playback;

    TextPool pool;
    CellGrid NoteGrid;
    CellGrid TechniqueGrid;
    std::vector<TextId> BarMarkRow;
    CellGrid ClipboardNotes;
    CellGrid ClipboardTechniques;
    std::vector<TextId> ClipboardBarMarks;

    std::vector<std::int16_t> TuningTable;
    std::vector<std::int16_t> GuitarTrackFlags;
    std::vector<std::string> TrackNames;
    std::vector<std::string> TrackVolumes;
    std::vector<std::string> TrackInstruments;

    std::int32_t lastColumn() const { return ColumnCapacity - 1; }

    // Readers of cells give "" outside the arrays; writers change nothing there.
    std::string_view note(int column, int row) const { return pool.text(NoteGrid.at(column, row)); }
    std::string_view technique(int column, int row) const { return pool.text(TechniqueGrid.at(column, row)); }
    std::string_view barMark(int column) const;
    void setNote(int column, int row, std::string_view text) { NoteGrid.set(column, row, pool.intern(text)); }
    void setTechnique(int column, int row, std::string_view text) {
        TechniqueGrid.set(column, row, pool.intern(text));
    }
    void setBarMark(int column, std::string_view text);

    // `track` counts from 1. A track without a flag is a percussion track.
    bool isGuitarTrack(int track) const;
    // The row of the cursor's string on the current track.
    int cursorRow() const { return CurrentString + firstRowOfTrack(CurrentTrack); }
    static int firstRowOfTrack(int track) { return (track - 1) * StringsPerTrack; }
};

} // namespace tabrova
