// What lies on the desk: the one document with its surfaces, its sound, its editor and its player's state.
// Needs no window. Whoever shows it, or wants to know what was done to it, observes its acts.
#pragma once

#include "editing/chord_entry.h"
#include "editing/property_commands.h"
#include "editing/track_commands.h"
#include "platform/services.h"
#include "workbench/instrument_names.h"

namespace tabrova {

class Workbench {
  public:
    // The timers are children of `timerParent`, if there is one. A MIDI output that fails ends the program.
    Workbench(Services& services, QObject* timerParent);

    Services& services;
    Document document;
    TabView view;
    LanguageWords words;
    MidiOutput sound;
    SoundStopper stopper;
    Acts acts;
    ShownTexts texts;
    Surroundings surroundings;
    PlayerState player;
    InstrumentNames instruments;

    EditingParts parts() { return {document, view, sound, stopper, words, acts, texts, surroundings}; }

    Editor editor;
    TrackCommands tracks;
    PropertyCommands properties;
    ChordEntry chords;
};

} // namespace tabrova
