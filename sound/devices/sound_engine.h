// What the built-in synthesizer drives: a sound bank, an audio output and the notes between them.
#pragma once

#include "platform/midi_device.h"
#include "sound/devices/sound_bank.h"

namespace tabrova {

class SoundEngine {
  public:
    virtual ~SoundEngine() = default;

    // These wait for the disk or for a sound server. Each gives in plain words what is missing; "" if
    // nothing. Takes the first bank that loads; the one in use stays if it is the one.
    virtual QString loadBank(const SoundBankPlaces& places) = 0;
    virtual QString openOutput() = 0;
    virtual void closeOutput() = 0;

    // Not while one of the above is under way.
    virtual std::filesystem::path bank() const = 0; // empty for none
    virtual QString output() const = 0;             // "" for none

    // Never waits. Data is at most 127.
    virtual void play(const ShortMessage& message) = 0;
};

} // namespace tabrova
