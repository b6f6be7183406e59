// The built-in synthesizer: it runs inside the program, plays a sound bank and needs nothing to be set up.
// Bank and audio output are opened and closed on a thread of their own, so that the window waits neither for
// the disk nor for a sound server; what is sent before they are open is not heard, but the instruments chosen
// meanwhile are. Nothing here ever fails to the caller: what is missing is told by the state, and the editor
// works on in silence.
#pragma once

#include "platform/midi_device.h"
#include "platform/synthesizer.h"
#include "sound/devices/call_queue.h"
#include "sound/devices/sound_engine.h"

#include <QTimer>

namespace tabrova {

class FluidSynthesizer : public Synthesizer {
  public:
    explicit FluidSynthesizer(SoundBankPlaces places);
    FluidSynthesizer(SoundBankPlaces places, std::shared_ptr<SoundEngine> engine);
    ~FluidSynthesizer() override;

    void open();
    void close();
    // Data over 127 has no meaning for the synthesizer: such a message is passed over.
    void send(const ShortMessage& message);

    SynthesizerState state() const override;
    void useBank(const QString& file) override;

    // Waits until bank and output are open or known to be missing, however long that takes.
    void waitUntilLoaded();
    // False if a sound server still keeps a call after that time.
    bool settles(std::chrono::milliseconds limit) { return calls_.finishes(limit); }

  private:
    struct Shared;
    void watch();

    SoundBankPlaces places_;
    std::shared_ptr<Shared> shared_; // with the calls, which may outlive this
    CallQueue calls_;
    QTimer watch_; // belongs to the user-interface thread
};

} // namespace tabrova
