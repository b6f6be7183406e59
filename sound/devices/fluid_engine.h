// The engine in the program: FluidSynth with the first audio output that opens.
#pragma once

#include "sound/devices/sound_engine.h"

#include <fluidsynth.h>

#include <chrono>
#include <memory>
#include <span>

namespace tabrova {

struct AudioOutput {
    const char* driver;
    const char* name;
    int periodSize; // frames
    int periods;
};
// In the order in which they are tried.
std::span<const AudioOutput> audioOutputs();

class FluidEngine : public SoundEngine {
  public:
    explicit FluidEngine(std::span<const AudioOutput> outputs = audioOutputs());

    QString loadBank(const SoundBankPlaces& places) override;
    QString openOutput() override;
    void closeOutput() override;
    std::filesystem::path bank() const override { return bankFile_; }
    QString output() const override { return outputName_; }
    void play(const ShortMessage& message) override;

    // Null until a bank was asked for.
    fluid_synth_t* synthesizer() const { return synth_.get(); }

  private:
    template <typename Type, void (*destroy)(Type*)>
    struct Destroy {
        void operator()(Type* object) const { destroy(object); }
    };
    template <typename Type, void (*destroy)(Type*)>
    using Owned = std::unique_ptr<Type, Destroy<Type, destroy>>;

    void makeSynthesizer();
    void cutChannel(int channel);
    bool hasRoomForNote();

    std::span<const AudioOutput> outputs_;
    Owned<fluid_settings_t, delete_fluid_settings> settings_;
    Owned<fluid_synth_t, delete_fluid_synth> synth_;
    Owned<fluid_audio_driver_t, delete_fluid_audio_driver> driver_;
    std::filesystem::path bankFile_;
    int bankId_ = FLUID_FAILED;
    QString outputName_;
    std::chrono::steady_clock::time_point burstStart_;
    int notesInBurst_ = 0;
};

} // namespace tabrova
