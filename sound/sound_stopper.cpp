#include "sound/sound_stopper.h"

namespace tabrova {

namespace {

constexpr int FirstInterval = 250; // milliseconds

} // namespace

SoundStopper::SoundStopper(TimerList& timers, MidiOutput& sound, QObject* parent)
    : sound_(sound), timer_(
                         timers, "tmrsndStopper", FirstInterval,
                         [this] {
                             sound_.AllNotesOff();
                             timer_.setEnabled(false);
                         },
                         parent) {}

void SoundStopper::restart(std::optional<int> milliseconds) {
    timer_.setEnabled(false);
    if (milliseconds) timer_.setInterval(*milliseconds);
    timer_.setEnabled(true);
}

} // namespace tabrova
