// What the built-in synthesizer tells of itself and what can be asked of it, besides the messages that it
// takes as a MIDI device.
#pragma once

#include <QString>

#include <functional>
#include <utility>

namespace tabrova {

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
    // Calls this, on the user-interface thread, whenever the state has changed; null ends it. There is one at
    // a time.
    void onChange(std::function<void()> told) { changed_ = std::move(told); }

  protected:
    void tellChange() const {
        if (changed_) changed_();
    }
    bool isHeard() const { return changed_ != nullptr; }

  private:
    std::function<void()> changed_;
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
