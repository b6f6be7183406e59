// What the tests of the MIDI export share: a document of guitar tracks, its file read back, and the columns
// of each file track.
#pragma once

#include "core/document/document_operations.h"
#include "sound/midi_export.h"
#include "tests/sound/midi_file_reader.h"

namespace tabrova::testing {

inline constexpr std::uint32_t Column = 125; // ticks, at the speed of a new document

class MidiExportTest : public ::testing::Test {
  protected:
    MidiExportTest() { makeDocument(1); }
    ~MidiExportTest() override { std::filesystem::remove(path); }

    // Guitar tracks in standard tuning, with the volumes 100, 99, 98 and the programs 24, 25, 26.
    void makeDocument(int tracks, int staves = 1) {
        resetToNewDocument(document);
        document.TrackCount = static_cast<std::int16_t>(tracks);
        document.StaffCount = static_cast<std::int16_t>(staves);
        ResizeGrids(document, staves * ColumnsPerStaff, tracks * StringsPerTrack);
        document.TuningTable.assign(static_cast<std::size_t>(tracks * StringsPerTrack), StandardTuning);
        document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
        document.TrackVolumes.clear();
        document.TrackInstruments.clear();
        for (int track = 0; track < tracks; ++track) {
            document.TrackVolumes.push_back(std::to_string(100 - track));
            document.TrackInstruments.push_back(std::to_string(24 + track));
        }
    }

    bool exportTracks(std::vector<int> queue, bool noteOffs = false) {
        MIDIFile control;
        control.setPath(MIDIFile::Property::FileName, path);
        const bool exported = exportMidiFile(document, {std::move(queue), noteOffs, {}}, control);
        file = exported ? readMidiFile(fileBytes(path)) : ReadMidiFile();
        return exported;
    }

    bool exportMidiFileTo(const std::filesystem::path& place) {
        MIDIFile control;
        control.setPath(MIDIFile::Property::FileName, place);
        return exportMidiFile(document, {{0}, false, {}}, control);
    }

    // The events of a file track, from 1, without its program change.
    MidiFileEvents notes(std::size_t track = 1) const {
        MidiFileEvents events;
        for (const MidiFileEvent& event : file.tracks.at(track))
            if ((event.status & 0xF0) != 0xC0) events.push_back(event);
        return events;
    }
    // The seven events of a column, in the order in which columns were written; without note-offs.
    MidiFileEvents column(std::size_t place, std::size_t track = 1) const {
        const MidiFileEvents all = notes(track);
        const auto first = all.begin() + static_cast<std::ptrdiff_t>(place * 7);
        return {first, first + 7};
    }
    std::size_t columns(std::size_t track = 1) const { return notes(track).size() / 7; }
    // The pitches that sound, in the order in which they were written.
    std::vector<int> melody(std::size_t track = 1) const {
        std::vector<int> pitches;
        for (const MidiFileEvent& event : notes(track))
            if (event.data2 > 0) pitches.push_back(event.data1);
        return pitches;
    }

    Document document;
    ReadMidiFile file;
    const std::filesystem::path path = std::filesystem::path(::testing::TempDir()) / "tabrova_export.mid";
};

} // namespace tabrova::testing
