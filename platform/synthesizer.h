// What the built-in synthesizer tells of itself and what can be asked of it, besides the messages that it
// takes as a MIDI device.
#pragma once

#include <QString>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace tabrova {

// What `trouble` consists of, each sentence the key of its translations.
namespace sound_trouble {

inline constexpr char NoBank[] =
    "No sound bank was found, so nothing can be heard. Install one (on Debian the package "
    "timgm6mb-soundfont or fluid-soundfont-gm) or choose an SF2 or SF3 file.";
// Behind the name of a file.
inline constexpr char BankUnreadable[] = "is no sound bank that can be read; another one is in use.";
inline constexpr char NoOutput[] =
    "No audio output could be opened, so nothing can be heard. Connect a sound card, or start a sound "
    "server (on Debian the package pipewire-pulse or pulseaudio), then choose the output device again.";
inline constexpr char NoAnswer[] =
    "The sound server does not answer, so nothing can be heard. It sounds as soon as the server answers "
    "again; if it does not, restart the sound server (on Debian pipewire-pulse, pulseaudio or jackd).";

} // namespace sound_trouble

struct SynthesizerState {
    bool running = false; // the device in use is the synthesizer
    bool loading = false; // bank and output are being looked for
    QString bank;         // file of the sound bank in use; "" for none
    QString output;       // audio output in use; "" for none
    QString trouble;      // in plain words what is missing and what to do; "" when all is well
};

class Synthesizer {
  public:
    virtual ~Synthesizer() = default;
    virtual SynthesizerState state() const = 0;
    // Takes this sound bank (SF2 or SF3) from now on; "" goes back to the one found by itself. The bank loads
    // in the background.
    virtual void useBank(const QString& file) = 0;
    // Calls this, on the user-interface thread, whenever the state has changed; null ends it. There is one
    // for each listener.
    void onChange(const void* listener, std::function<void()> told) {
        std::erase_if(listeners_, [listener](const auto& each) { return each.first == listener; });
        if (told) listeners_.emplace_back(listener, std::move(told));
    }

  protected:
    // No listener comes or goes while it is told.
    void tellChange() const {
        for (const auto& each : listeners_)
            each.second();
    }
    bool isHeard() const { return !listeners_.empty(); }

  private:
    std::vector<std::pair<const void*, std::function<void()>>> listeners_;
};

// Sounds nothing: keeps what it was asked and tells what it was given.
class RecordingSynthesizer : public Synthesizer {
  public:
    SynthesizerState state() const override { return told; }
    void useBank(const QString& file) override {
        told.bank = file;
        tellChange();
    }
    using Synthesizer::isHeard;
    using Synthesizer::tellChange;
    SynthesizerState told;
};

} // namespace tabrova
