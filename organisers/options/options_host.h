// What the options change in the main window. Every change takes effect at once.
#pragma once

#include "core/document/document.h"
#include "sound/midi_output.h"

#include <QRgb>

namespace tabrova {

class OptionsHost {
  public:
    virtual ~OptionsHost() = default;
    virtual Document& document() = 0;
    virtual MidiOutput& sound() = 0;

    // Of nCursor, vLine1 and NoteLine.
    virtual void setCursorColor(QRgb color) = 0;
    virtual int cursorBorderWidth() const = 0; // pixels
    virtual void setCursorBorderWidth(int pixels) = 0;
    // White paper under the tab instead of the tinted one.
    virtual bool tabOneColor() const = 0;
    virtual void setTabOneColor(bool oneColor) = 0;
    virtual void showStatistics(bool shown) = 0;
    virtual void setDebugMode(bool on) = 0;
    // Another language file is the active one: the main window reads it.
    virtual void languageApplied() = 0;
    // What sounds now is silenced after this time.
    virtual void silenceAfter(int milliseconds) = 0;
};

} // namespace tabrova
