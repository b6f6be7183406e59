// The metronome: clicks on a channel of its own, counted in beats and bars, all of them alike. It needs no
// window; whoever shows it is told of every beat and of its end.
#pragma once

#include "platform/steady_timer.h"
#include "sound/midi_output.h"

namespace tabrova {

class Metronome {
  public:
    // The timer is a child of `parent`, if there is one.
    Metronome(MidiOutput& sound, TimerList& timers, QObject* parent);

    // After the start, each click and the end.
    std::function<void()> changed;

    // The sound of its clicks.
    void chooseSound();

    // These take effect at the next tick, also while it runs.
    std::int16_t clickRate = 120; // beats a minute, above 0
    std::int16_t beatsPerBar = 4;
    std::int16_t numberOfBars = 8; // 0 or less: until it is stopped
    int clickPitch = 60;           // MIDI

    // The first click comes after one beat.
    void start();
    void stop();
    // The window closes: no message.
    void leave() { tmr_Metronome_.setEnabled(false); }

    bool running() const { return running_; }
    // The beat that sounds, from 0; -1 before the first click and while it is stopped.
    int soundingBeat() const { return soundingBeat_; }

  private:
    void tick();
    void setBeatTime();
    void tell() const {
        if (changed) changed();
    }

    MidiOutput& sound_;
    SteadyTimer tmr_Metronome_;
    bool running_ = false;
    int soundingBeat_ = -1;
    std::int16_t currentBeat_ = 1; // the next one
    std::int16_t currentBar_ = 1;
};

} // namespace tabrova
