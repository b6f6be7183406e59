// What the tests of the player share: a document of a few tracks, its ticks, and the messages of each.
#pragma once

#include "core/document/document_operations.h"
#include "sound/playback.h"

#include <gtest/gtest.h>

namespace tabrova::testing {

enum class Kind { Guitar, Percussion };

using Messages = std::vector<ShortMessage>;

inline bool isProgram(const ShortMessage& message) {
    const bool bank = (message[0] == 0xB0 || message[0] == 0xB1) && message[1] == 0;
    return bank || message[0] == 0xC0 || message[0] == 0xC1;
}

class PlayerTest : public ::testing::Test {
  protected:
    PlayerTest() { output.OpenMidiDevice(MidiMapperId); }

    // Volumes 100, 90, 80 and so on, instruments 24, 25, 26, and standard tuning.
    void makeDocument(int columns, const std::vector<Kind>& tracks) {
        resetToNewDocument(document);
        document.TrackCount = static_cast<std::int16_t>(tracks.size());
        ResizeGrids(document, columns, document.TrackCount * StringsPerTrack);
        document.TuningTable.assign(tracks.size() * StringsPerTrack, StandardTuning);
        document.GuitarTrackFlags.clear();
        document.TrackVolumes.clear();
        document.TrackInstruments.clear();
        for (const Kind kind : tracks) {
            const int track = static_cast<int>(document.GuitarTrackFlags.size());
            document.GuitarTrackFlags.push_back(boolean16(kind == Kind::Guitar));
            document.TrackVolumes.push_back(std::to_string(100 - 10 * track));
            document.TrackInstruments.push_back(std::to_string(24 + track));
        }
        state = playbackStart(document, PlayFrom::Start);
    }

    void put(int column, int row, std::string_view note, std::string_view technique = "") {
        document.setNote(column, row, note);
        document.setTechnique(column, row, technique);
    }

    void playFrom(int column) {
        document.CurrentColumn = column;
        state = playbackStart(document, PlayFrom::Cursor);
    }

    // Everything that one tick sends.
    Messages tick() {
        result = playTick(document, state, output);
        return device.take();
    }

    // One tick less its program changes.
    Messages sounds() {
        Messages all = tick();
        std::erase_if(all, isProgram);
        return all;
    }

    Document document;
    PlaybackState state;
    TickResult result = TickResult::Playing;
    RecordingMidiDevice device;
    MidiOutput output{device, [](int) { ADD_FAILURE(); }};
};

} // namespace tabrova::testing
