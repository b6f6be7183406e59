// The built-in synthesizer: it runs inside the program, plays a sound bank and needs nothing to be set up.
// Bank and audio output are opened on a thread of their own, so that the window does not wait; what is sent
// meanwhile is not heard, but the instruments chosen meanwhile are. Nothing here ever fails to the caller:
// what is missing is told by the state, and the editor works on in silence.
#pragma once

#include "platform/midi_device.h"
#include "platform/synthesizer.h"
#include "sound/devices/sound_bank.h"

#include <QObject>

#include <fluidsynth.h>

#include <chrono>
#include <memory>
#include <mutex>
#include <thread>

namespace tabrova {

class FluidSynthesizer : public Synthesizer {
  public:
    explicit FluidSynthesizer(SoundBankPlaces places);
    ~FluidSynthesizer() override;

    void open();
    void close();
    // Data over 127 has no meaning for the synthesizer: such a message is passed over.
    void send(const ShortMessage& message);

    SynthesizerState state() const override;
    void useBank(const QString& file) override;

    // Waits until bank and output are open or known to be missing.
    void waitUntilLoaded();

  private:
    template <typename Type, void (*destroy)(Type*)>
    struct Destroy {
        void operator()(Type* object) const { destroy(object); }
    };
    template <typename Type, void (*destroy)(Type*)>
    using Owned = std::unique_ptr<Type, Destroy<Type, destroy>>;

    void load(const SoundBankPlaces& places);
    void makeSynthesizer();
    QString loadBank(const SoundBankPlaces& places);
    QString openOutput();
    void play(const ShortMessage& message);
    void cutChannel(int channel);
    bool hasRoomForNote();
    void finishLoading(const QString& trouble);
    void tellChanged();

    SoundBankPlaces places_;
    QObject thread_; // belongs to the user-interface thread
    std::thread loader_;

    // Only the loader touches these while it runs.
    Owned<fluid_settings_t, delete_fluid_settings> settings_;
    Owned<fluid_synth_t, delete_fluid_synth> synth_;
    Owned<fluid_audio_driver_t, delete_fluid_audio_driver> driver_;
    std::filesystem::path bankFile_;
    int bankId_ = FLUID_FAILED;

    mutable std::mutex mutex_; // guards what follows
    bool ready_ = false;
    SynthesizerState state_;
    std::array<std::optional<std::uint8_t>, 16> programs_; // chosen while the bank loads
    std::chrono::steady_clock::time_point burstStart_;
    int notesInBurst_ = 0;
};

} // namespace tabrova
