#include "sound/column_preview.h"

#include "sound/pitch.h"

namespace tabrova {

namespace {

void sendFret(const Document& document, MidiOutput& output, int row, int string, int tuningIndex,
              std::optional<std::int16_t> volume) {
    const auto pitch =
        frettedPitch(document, document.note(document.CurrentColumn, row), string, tuningIndex);
    if (pitch && volume) output.NoteOn(GuitarChannel, *pitch, *volume);
}

void sendCurrentTrack(const Document& document, MidiOutput& output) {
    const int track = document.CurrentTrack - 1;
    const auto volume = listInteger(document.TrackVolumes, track);
    for (int string = 0; string < StringsPerTrack; ++string) {
        const int row = track * StringsPerTrack + string;
        // The tuning index deliberately has no factor of six: only the first track previews with its own
        // tuning.
        sendFret(document, output, row, string, track + string, volume);
    }
}

void sendProgram(const Document& document, MidiOutput& output, int track) {
    if (const auto program = listInteger(document.TrackInstruments, track))
        output.ProgramChange(GuitarChannel, *program);
}

void sendGuitarTrack(const Document& document, MidiOutput& output, int track) {
    sendProgram(document, output, track);
    // The velocity is deliberately the current track's, whichever track sounds.
    const auto volume = listInteger(document.TrackVolumes, document.CurrentTrack - 1);
    for (int string = 0; string < StringsPerTrack; ++string) {
        const int row = track * StringsPerTrack + string;
        sendFret(document, output, row, string, row, volume);
    }
}

void sendPercussionTrack(const Document& document, MidiOutput& output, int track) {
    const auto volume = listInteger(document.TrackVolumes, track);
    for (int string = 0; string < StringsPerTrack; ++string) {
        const auto drum =
            toInteger16(document.note(document.CurrentColumn, track * StringsPerTrack + string));
        if (drum && volume) output.NoteOn(PercussionChannel, *drum, *volume);
    }
}

} // namespace

void sendColumnPreview(const Document& document, MidiOutput& output) {
    switch (static_cast<RealtimeMode>(document.RealtimeMode)) {
    case RealtimeMode::Nothing:
        break;
    case RealtimeMode::CurrentTrack:
        sendCurrentTrack(document, output);
        break;
    case RealtimeMode::AllTracks:
        for (int track = 0; track < document.TrackCount; ++track) {
            if (document.isGuitarTrack(track + 1)) {
                sendGuitarTrack(document, output, track);
            } else {
                sendPercussionTrack(document, output, track);
            }
        }
        sendProgram(document, output, document.CurrentTrack - 1);
    }
}

std::optional<int> previewDuration(const Document& document) {
    constexpr double MillisecondsOfTwoColumns = 120000.0;
    if (document.Tempo == 0) return std::nullopt;
    return static_cast<int>(roundHalfToEven(MillisecondsOfTwoColumns / document.Tempo));
}

} // namespace tabrova
