#include "editing/track_texts.h"

#include "core/document/track_table.h"
#include "sound/pitch.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr std::array NoteNames = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
constexpr int Octave = 12;

std::string noteName(int note) {
    const int pitchClass = (note % Octave + Octave) % Octave;
    return NoteNames[static_cast<std::size_t>(pitchClass)];
}

} // namespace

std::string tuningNames(const Document& document, int track) {
    std::string names;
    for (int string = StringsPerTrack - 1; string >= 0; --string) {
        const auto row = static_cast<std::size_t>(Document::firstRowOfTrack(track) + string);
        const int tuning = row < document.TuningTable.size() ? document.TuningTable[row] : StandardTuning;
        names += noteName(OpenStringNotes[static_cast<std::size_t>(string)] + tuning - StandardTuning);
        if (string > 0) names += " ";
    }
    return names;
}

std::optional<int> trackProgram(const Document& document, int track) {
    return listInteger(document.TrackInstruments, track - 1);
}

std::optional<int> trackVolume(const Document& document, int track) {
    const auto volume = listInteger(document.TrackVolumes, track - 1);
    if (!volume) return std::nullopt;
    return std::clamp<int>(*volume, LeastVolume, MostVolume);
}

} // namespace tabrova
