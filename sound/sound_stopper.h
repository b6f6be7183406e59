// `tmrsndStopper`: silences what note entry and the tools have sounded, some time later.
#pragma once

#include "platform/window_timer.h"
#include "sound/midi_output.h"

#include <optional>

namespace tabrova {

class SoundStopper {
  public:
    // The timer is a child of `parent`, if there is one.
    SoundStopper(TimerList& timers, MidiOutput& sound, QObject* parent);

    // The time starts afresh; without one it is what it was last, 250 ms at first.
    void restart(std::optional<int> milliseconds);

  private:
    MidiOutput& sound_;
    WindowTimer timer_;
};

} // namespace tabrova
