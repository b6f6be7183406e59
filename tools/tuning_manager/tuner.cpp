#include "tools/tuning_manager/tuner.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int TunerChannel = 14;
constexpr int TunerInterval = 1000; // ms
constexpr int TuneAllInterval = 290;
constexpr int StepsOfARound = 10; // six strings, and a rest

} // namespace

Tuner::Tuner(MidiOutput& sound, TimerList& timers, QObject* parent)
    : sound_(sound), tmrTuner_(
                         timers, "tmrTuner", TunerInterval, [this] { tuneTick(); }, parent),
      tmrTuneAll_(
          timers, "tmrTuneAll", TuneAllInterval, [this] { tuneAllTick(); }, parent) {}

// Two presses: a string that is silent is silent again, and one that sounds goes on at its new pitch.
void Tuner::changeList(std::size_t string, int item) {
    state_.items[string] = item;
    state_.custom = true;
    pressString(string);
    pressString(string);
}

void Tuner::choosePreset(const TuningPreset& preset) {
    for (std::size_t string = 0; string < TuningStrings; ++string)
        changeList(string, preset.items[string]);
    state_.custom = false;
    tell();
}

void Tuner::pressString(std::size_t string) {
    tmrTuner_.timerEnabled() ? stopString(string) : startString(string);
    tell();
}

void Tuner::startString(std::size_t string) {
    tmrTuneAll_.setEnabled(false);
    state_.allPressed = false;
    releaseStrings();
    state_.pressed[string] = true;
    completeList(string);
    TuneNote = TuningStringTable[string].standardNote + state_.items[string] - StandardItem;
    tmrTuner_.setEnabled(true);
}

void Tuner::stopString(std::size_t string) {
    tmrTuner_.setEnabled(false);
    state_.pressed[string] = false;
    sound_.AllNotesOff();
}

void Tuner::pressAll() {
    completeLists();
    state_.allPressed = !state_.allPressed;
    if (state_.allPressed) {
        TuneAllStep = 0;
        tmrTuneAll_.setEnabled(true);
        releaseStrings();
    } else {
        tmrTuneAll_.setEnabled(false);
        sound_.AllNotesOff();
    }
    state_.stringsEnabled = !state_.allPressed;
    tell();
}

void Tuner::completeList(std::size_t string) {
    if (state_.items[string] < 0) changeList(string, StandardItem);
}

void Tuner::completeLists() {
    for (std::size_t string = 0; string < TuningStrings; ++string)
        completeList(string);
}

std::string Tuner::line() const {
    std::string letters;
    for (const int item : state_.items)
        letters += tuningLetter(item);
    return letters;
}

void Tuner::takeLine(std::string_view line) {
    for (std::size_t string = 0; string < std::min(TuningStrings, line.size()); ++string)
        if (const auto item = itemOfLetter(line[string])) changeList(string, *item);
}

void Tuner::tuneTick() {
    sound_.NoteOn(TunerChannel, TuneNote, sound_.FixedVelocity);
    tmrTuneAll_.setEnabled(false);
}

void Tuner::tuneAllTick() {
    tmrTuner_.setEnabled(false);
    if (TuneAllStep == StepsOfARound) TuneAllStep = 0;
    const auto string = static_cast<std::size_t>(TuneAllStep) - 1;
    if (string < TuningStrings && state_.items[string] >= 0)
        sound_.NoteOn(TunerChannel,
                      state_.items[string] + TuningStringTable[string].standardNote - StandardItem,
                      sound_.FixedVelocity);
    ++TuneAllStep;
}

void Tuner::stop() {
    tmrTuner_.setEnabled(false);
    tmrTuneAll_.setEnabled(false);
    sound_.AllNotesOff();
}

} // namespace tabrova
