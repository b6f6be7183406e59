// What the windows for the properties of document and tracks ask of the main window.
#pragma once

#include "core/document/document.h"
#include "core/language/language_words.h"
#include "sound/midi_output.h"

#include <QString>

class QWidget;

namespace tabrova {

class PropertiesHost {
  public:
    virtual ~PropertiesHost() = default;
    virtual Document& document() = 0;
    virtual MidiOutput& sound() = 0;
    virtual const LanguageWords& words() const = 0;

    virtual void refreshdrawing() = 0;
    // The track lists have changed: the selector shows them again.
    virtual void showTracks() = 0;
    // As a click on this row of the track selector, from 0.
    virtual void selectTrack(int row) = 0;
    // "" for a program that the instrument list does not have.
    virtual QString instrumentName(int program) const = 0;
    virtual void openInstrumentSelector(QWidget* from) = 0;
    virtual void openTuningManager() = 0;
    virtual bool hasTuningManager() const = 0;
    virtual void fileProperties_Closed() = 0;
};

} // namespace tabrova
