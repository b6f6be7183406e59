#include "sound/devices/fluid_engine.h"

#include "platform/paths.h"
#include "platform/synthesizer.h"
#include "sound/devices/quiet_libraries.h"

#include <algorithm>
#include <array>

namespace tabrova {

namespace {

constexpr int ControllerAllSoundOff = 120;
constexpr int MostVoices = 256;
constexpr double SampleRate = 48000.0;
constexpr double Gain = 0.8;
constexpr double ReverbLevel = 0.3; // a small room: what is stopped is soon silent

constexpr std::array Outputs = {AudioOutput{"pulseaudio", "PulseAudio", 512, 2},
                                AudioOutput{"pipewire", "PipeWire", 512, 2},
                                AudioOutput{"jack", "JACK", 256, 2},
                                AudioOutput{"alsa", "ALSA", 256, 3},
                                AudioOutput{"coreaudio", "CoreAudio", 256, 2},
                                AudioOutput{"wasapi", "WASAPI", 256, 3},
                                AudioOutput{"dsound", "DirectSound", 256, 4},
                                AudioOutput{"portaudio", "PortAudio", 256, 3},
                                AudioOutput{"oboe", "Oboe", 256, 2},
                                AudioOutput{"oss", "OSS", 256, 3}};

// The name's own bytes, as the library takes them.
std::string bytesOf(const std::filesystem::path& path) {
    const std::u8string bytes = path.u8string();
    return {bytes.begin(), bytes.end()};
}

std::vector<std::string> builtInDrivers(fluid_settings_t* settings) {
    std::vector<std::string> names;
    fluid_settings_foreach_option(settings, "audio.driver", &names,
                                  [](void* list, const char*, const char* name) {
                                      static_cast<std::vector<std::string>*>(list)->push_back(name);
                                  });
    return names;
}

// The synthesizer's library writes nothing to the terminal: what matters is in the state.
void silenceLibraryLog() {
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG})
        fluid_set_log_function(
            level, [](int, const char*, void*) {}, nullptr);
}

} // namespace

std::span<const AudioOutput> audioOutputs() { return Outputs; }

FluidEngine::FluidEngine(std::span<const AudioOutput> outputs) : outputs_(outputs) {
    silenceLibraryLog();
    silenceSoundLibraries();
}

void FluidEngine::makeSynthesizer() {
    if (synth_) return;
    settings_.reset(new_fluid_settings());
    fluid_settings_setnum(settings_.get(), "synth.sample-rate", SampleRate);
    fluid_settings_setnum(settings_.get(), "synth.gain", Gain);
    fluid_settings_setnum(settings_.get(), "synth.reverb.level", ReverbLevel);
    fluid_settings_setint(settings_.get(), "synth.chorus.active", 0);
    fluid_settings_setint(settings_.get(), "synth.polyphony", MostVoices);
    fluid_settings_setint(settings_.get(), "audio.jack.autoconnect", 1);
    fluid_settings_setstr(settings_.get(), "audio.jack.id", "Tabrova");
    fluid_settings_setint(settings_.get(), "audio.pulseaudio.adjust-latency", 1);
    synth_.reset(new_fluid_synth(settings_.get()));
}

QString FluidEngine::loadBank(const SoundBankPlaces& places) {
    makeSynthesizer();
    const auto banks = soundBanks(places);
    for (const auto& bank : banks) {
        if (bankId_ != FLUID_FAILED && bank == bankFile_) break;
        const int id = fluid_synth_sfload(synth_.get(), bytesOf(bank).c_str(), 1);
        if (id == FLUID_FAILED) continue;
        if (bankId_ != FLUID_FAILED) fluid_synth_sfunload(synth_.get(), static_cast<unsigned>(bankId_), 1);
        bankId_ = id;
        bankFile_ = bank;
        break;
    }
    if (bankId_ == FLUID_FAILED) return QString(sound_trouble::NoBank) + ' ';
    if (!places.setting.empty() && bankFile_ != places.setting)
        return textOf(places.setting.filename()) + ' ' + sound_trouble::BankUnreadable + ' ';
    return {};
}

QString FluidEngine::openOutput() {
    const auto available = builtInDrivers(settings_.get());
    for (const AudioOutput& output : outputs_) {
        if (std::find(available.begin(), available.end(), output.driver) == available.end()) continue;
        fluid_settings_setstr(settings_.get(), "audio.driver", output.driver);
        fluid_settings_setint(settings_.get(), "audio.period-size", output.periodSize);
        fluid_settings_setint(settings_.get(), "audio.periods", output.periods);
        driver_.reset(new_fluid_audio_driver(settings_.get(), synth_.get()));
        if (!driver_) continue;
        outputName_ = output.name;
        return {};
    }
    return QString(sound_trouble::NoOutput) + ' ';
}

void FluidEngine::closeOutput() {
    driver_.reset();
    outputName_.clear();
    if (synth_) fluid_synth_all_sounds_off(synth_.get(), -1);
}

void FluidEngine::play(const ShortMessage& message) {
    fluid_synth_t* synth = synth_.get();
    const int channel = message[0] & 0x0F;
    switch (message[0] & 0xF0) {
    case 0x80:
        fluid_synth_noteoff(synth, channel, message[1]);
        break;
    case 0x90:
        if (message[2] == 0 || hasRoomForNote()) fluid_synth_noteon(synth, channel, message[1], message[2]);
        break;
    case 0xB0:
        if (message[1] == ControllerAllSoundOff) return cutChannel(channel);
        fluid_synth_cc(synth, channel, message[1], message[2]);
        break;
    case 0xC0:
        fluid_synth_program_change(synth, channel, message[1]);
        break;
    case 0xE0:
        fluid_synth_pitch_bend(synth, channel, message[1] + message[2] * 128);
        break;
    default:
        break;
    }
}

// Fades what sounds within a hundredth of a second: a cut to nothing clicks. The library's own cut is also
// undone by the all-notes-off that follows it.
void FluidEngine::cutChannel(int channel) {
    constexpr float TenMilliseconds = -7973.0f; // in timecents
    std::array<fluid_voice_t*, MostVoices> voices{};
    fluid_synth_get_voicelist(synth_.get(), voices.data(), MostVoices, -1);
    for (fluid_voice_t* voice : voices) {
        if (!voice) break;
        if (fluid_voice_get_channel(voice) != channel) continue;
        fluid_voice_gen_set(voice, GEN_VOLENVRELEASE, TenMilliseconds);
        fluid_voice_update_param(voice, GEN_VOLENVRELEASE);
    }
    fluid_synth_all_notes_off(synth_.get(), channel);
}

// More notes at one moment than there are voices only take each other's place, at great cost: they are passed
// over.
bool FluidEngine::hasRoomForNote() {
    constexpr std::chrono::milliseconds Moment(5);
    const auto now = std::chrono::steady_clock::now();
    if (now - burstStart_ > Moment) {
        burstStart_ = now;
        notesInBurst_ = 0;
    }
    return ++notesInBurst_ <= MostVoices;
}

} // namespace tabrova
