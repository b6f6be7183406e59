#include "workbench/workbench.h"

namespace tabrova {

namespace {

void ReportMidiError(Services& services, int code) {
    services.midi.midiOutGetErrorTextA(code);
    services.boxes.ask(
        {"Error: Sound Card Unavailable",
         "Tabrova cannot access your sound card and will now close. Please close all applications "
         "that use MIDI, and restart Tabrova. ",
         BoxIcon::Critical});
    services.endProgram();
}

} // namespace

Workbench::Workbench(Services& itsServices, QObject* timerParent)
    : services(itsServices), sound(itsServices.midi, [this](int code) { ReportMidiError(services, code); }),
      stopper(itsServices.timers, sound, timerParent), editor(parts()),
      tracks(parts(), editor, player, itsServices.boxes), properties(parts()),
      chords(parts(), editor, player) {
    instruments.fill_sound_list(services.programFolder);
}

} // namespace tabrova
