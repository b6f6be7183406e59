// The tuner: the six lists' places, the buttons that sound a string or all of them, and the two timers that
// stop each other. It needs no window; whoever shows it is told of every change.
#pragma once

#include "platform/window_timer.h"
#include "sound/midi_output.h"
#include "tools/tuning_manager/tuning_tables.h"

namespace tabrova {

struct TunerState {
    TuningPlaces items = {StandardItem, StandardItem, StandardItem,
                          StandardItem, StandardItem, StandardItem}; // -1 for none
    std::array<bool, TuningStrings> pressed{};
    bool allPressed = false;
    bool stringsEnabled = true;
    bool custom = false; // a list was changed after a preset was chosen
};

class Tuner {
  public:
    // The timers are children of `parent`, if there is one.
    Tuner(MidiOutput& sound, TimerList& timers, QObject* parent);

    const TunerState& state() const { return state_; }
    // After every press and change.
    std::function<void()> changed;

    // By hand or by program, be it to the item that it shows already: the string sounds afresh if it sounds.
    void changeList(std::size_t string, int item);
    void choosePreset(const TuningPreset& preset);
    // The sound button of a string, and that of all strings. Each press is the other of on and off.
    void pressString(std::size_t string);
    void pressAll();

    // Lists without a chosen item take the standard one.
    void completeLists();
    // The letters of the lists.
    std::string line() const;
    // Letters from "A" to "Y" set their lists; others, and what is missing, leave them.
    void takeLine(std::string_view line);

    // The window closes.
    void stop();

  private:
    void startString(std::size_t string);
    void stopString(std::size_t string);
    void releaseStrings() { state_.pressed.fill(false); }
    void completeList(std::size_t string);
    void tuneTick();
    void tuneAllTick();
    void tell() const {
        if (changed) changed();
    }

    MidiOutput& sound_;
    TunerState state_;
    WindowTimer tmrTuner_;
    WindowTimer tmrTuneAll_;
    int TuneNote = 0; // MIDI
    int TuneAllStep = 0;
};

} // namespace tabrova
