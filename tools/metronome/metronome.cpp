#include "tools/metronome/metronome.h"

#include "sound/beat_time.h"

#include <limits>

namespace tabrova {

namespace {

constexpr int ClickChannel = 14;
constexpr int WoodblockProgram = 115;

} // namespace

Metronome::Metronome(MidiOutput& sound, TimerList& timers, QObject* parent)
    : sound_(sound), tmr_Metronome_(
                         timers, "tmr_Metronome", beatTime(clickRate), [this] { tick(); }, parent) {}

void Metronome::chooseSound() { sound_.ProgramChange(ClickChannel, WoodblockProgram); }

void Metronome::setBeatTime() { tmr_Metronome_.setInterval(beatTime(clickRate)); }

void Metronome::start() {
    setBeatTime();
    tmr_Metronome_.setEnabled(true);
    currentBeat_ = 1;
    currentBar_ = 1;
    running_ = true;
    tell();
}

void Metronome::stop() {
    tmr_Metronome_.setEnabled(false);
    running_ = false;
    soundingBeat_ = -1;
    sound_.AllNotesOff();
    tell();
}

// A click lasts one beat. If its pitch was changed meanwhile, the old note sounds on.
void Metronome::tick() {
    setBeatTime();
    sound_.NoteOff(ClickChannel, clickPitch);
    if (currentBeat_ > beatsPerBar) {
        if (currentBar_ == numberOfBars) return stop();
        currentBeat_ = 1;
        if (currentBar_ < std::numeric_limits<std::int16_t>::max()) ++currentBar_;
    }
    sound_.NoteOn(ClickChannel, clickPitch, sound_.FixedVelocity);
    soundingBeat_ = currentBeat_ - 1;
    ++currentBeat_;
    tell();
}

} // namespace tabrova
