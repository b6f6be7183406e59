// A plain, slow model of the percussion editor's window and of the sound that its keys make in the document.
#pragma once

#include "tests/editing/plain_editor.h"
#include "tests/tools/chord_manager/plain_desk.h"

#include <optional>

namespace tabrova::testing {

inline const std::vector<std::string> PlainDrums = {
    "1. Acoustic Bass Drum", "2. Bass Drum 1",     "3. Side Stick",      "4. Acoustic Snare",
    "5. Hand Clap",          "6. Electric Snare",  "7. Low Floor Tom",   "8. Closed High-Hat",
    "9. High Floor Tom",     "10. Pedal High-Hat", "11. Low Tom",        "12. Open High-Hat",
    "13. Low-Mid Tom",       "14. High-Mid Tom",   "15. Crash Cymbal 2", "16. High Tom",
    "17. Ride Cymbal 2",     "18. Chinese Cymbal", "19. Ride Bell",      "20. Tambourine",
    "21. Crash Cymbal 1",    "22. Cowbell",        "23. Splash Cymbal",  "24. Vibraslap",
    "25. Ride Cymbal 1",     "26. High Bongo",     "27. Low Bongo",      "28. Mute High Conga",
    "29. Open High Conga",   "30. Low Conga",      "31. High Timbale",   "32. Low Timbale",
    "33. High Agogo",        "34. Cabasa",         "35. Maracas",        "36. Short Whistle",
    "37. Long Whistle",      "38. Short Guiro",    "39. Long Guiro",     "40. Claves",
    "41. High Wood Block",   "42. Low Wood Block", "43. Mute Cuica",     "44. Open Cuica",
    "45. Mute Triangle",     "46. Open Triangle"};

struct PlainPicture {
    const char* name;
    const char* toolTip;
    int keyCode;
    int fromBottom; // of the window, to its top
};

inline const std::vector<PlainPicture> PlainPictures = {{"Image1", "Move Right", 39, 55},
                                                        {"Image2", "Move Down", 40, 30},
                                                        {"Image3", "Move Left", 37, 55},
                                                        {"Image4", "Move Up", 38, 81},
                                                        {"Image6", "Delete Note", 46, 54}};

// The document's tracks, as far as they sound.
struct PlainTracks {
    std::vector<int> volumes, instruments, tuning;
    int realtimeMode = 1, tempo = 480;
};

// Outlives the window: the document and its sound go on when that is closed.
struct PlainPercussion {
    explicit PlainPercussion(PlainDesk& onDesk) : desk(onDesk) {}

    void open() { chosen = -1, automatic = false; }

    void clickDrum(int row) {
        if (playing) return;
        chosen = row;
        const int drum = row + 35;
        editor.storeDrum(drum);
        desk.NoteOn(9, drum);
        if (automatic) key(39);
    }
    void pressPicture(std::size_t picture) {
        if (!playing) key(PlainPictures[picture].keyCode);
    }
    // With the window's shift state, of which the page's keys take no note.
    void key(int code) {
        editor.key(code, 4);
        const bool fret = (code >= '0' && code <= '9') || code == 'X' || code == 'J';
        if (code == 46 || (fret && editor.guitar.at(editor.track))) soundColumn();
    }
    void soundColumn() {
        desk.AllNotesOff();
        if (tracks.realtimeMode == 1) return;
        tracks.realtimeMode == 2 ? soundCurrentTrack() : soundAllTracks();
        stopper = true;
        stopperInterval = static_cast<int>(std::nearbyint(120000.0 / tracks.tempo));
    }
    void tickStopper() {
        if (!stopper) return;
        stopper = false;
        desk.AllNotesOff();
    }

    PlainDesk& desk;
    PlainEditor editor;
    PlainTracks tracks;
    int chosen = -1, stopperInterval = 0;
    bool automatic = false, playing = false, stopper = false;

  private:
    void NoteOn(int channel, int note, int volume) { desk.midi.push_back({0x90 + channel, note, volume}); }
    // None where no number stands.
    std::optional<int> number(int track, int string) const {
        const auto found = editor.notes.find({editor.here(), (track - 1) * 6 + string});
        if (found == editor.notes.end() || found->second == "x" || found->second == ">") return std::nullopt;
        return std::stoi(found->second);
    }
    static int base(int string) {
        static const int notes[] = {64, 59, 55, 50, 45, 40};
        return notes[string];
    }
    int tuning(int row) const { return tracks.tuning[static_cast<std::size_t>(row)]; }
    int volume(int track) const { return tracks.volumes[static_cast<std::size_t>(track - 1)]; }
    void program(int track) {
        desk.ProgramChange(0, tracks.instruments[static_cast<std::size_t>(track - 1)]);
    }

    // The tunings of a later track are read beside their place: that is deliberate.
    void soundCurrentTrack() {
        const int track = editor.track;
        for (int string = 0; string < 6; ++string)
            if (const auto fret = number(track, string))
                NoteOn(0, *fret + base(string) + tuning(track - 1 + string) - 13, volume(track));
    }
    // The current track's volume for every guitar: that is deliberate.
    void soundAllTracks() {
        for (const auto& [track, isGuitar] : editor.guitar) {
            if (isGuitar) program(track);
            for (int string = 0; string < 6; ++string) {
                const auto cell = number(track, string);
                if (!cell) continue;
                if (isGuitar)
                    NoteOn(0, *cell + base(string) + tuning((track - 1) * 6 + string) - 13,
                           volume(editor.track));
                else
                    NoteOn(9, *cell, volume(track));
            }
        }
        program(editor.track);
    }
};

} // namespace tabrova::testing
