// The engine itself: banks, and what a message does to the notes that sound. Without an output a test draws
// the sound by itself.
#include "sound/devices/fluid_engine.h"

#include "platform/paths.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <thread>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

constexpr int Rate = 48000;

class Engine : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_FALSE(soundBanks(places).empty()) << "no General MIDI bank is installed"; }

    fs::path installedBank() const { return soundBanks(places).front(); }
    void load() {
        ASSERT_EQ(engine.loadBank(places), "");
        synth = engine.synthesizer();
        ASSERT_NE(synth, nullptr);
    }
    // The loudest sample of this time.
    float loudest(double seconds) {
        float most = 0;
        for (int frames = static_cast<int>(seconds * Rate); frames > 0; frames -= 64) {
            std::array<float, 64> left{};
            std::array<float, 64> right{};
            EXPECT_EQ(fluid_synth_write_float(synth, 64, left.data(), 0, 1, right.data(), 0, 1), FLUID_OK);
            for (std::size_t at = 0; at < left.size(); ++at)
                most = std::max({most, std::abs(left[at]), std::abs(right[at])});
        }
        return most;
    }
    int program(int channel) const {
        int font = 0;
        int bank = 0;
        int number = -1;
        fluid_synth_get_program(synth, channel, &font, &bank, &number);
        return number;
    }
    double number(const char* name) const {
        double value = -1;
        fluid_settings_getnum(fluid_synth_get_settings(synth), name, &value);
        return value;
    }
    int integer(const char* name) const {
        int value = -1;
        fluid_settings_getint(fluid_synth_get_settings(synth), name, &value);
        return value;
    }

    SoundBankPlaces places{{}, {}, {}, systemBankFolders()};
    QTemporaryDir folder;
    FluidEngine engine{std::span<const AudioOutput>()};
    fluid_synth_t* synth = nullptr;
};

TEST_F(Engine, HasTheSoundThatTheProgramIsHeardWith) {
    load();
    EXPECT_EQ(number("synth.sample-rate"), Rate);
    EXPECT_EQ(number("synth.gain"), 0.8);
    EXPECT_EQ(number("synth.reverb.level"), 0.3);
    EXPECT_EQ(integer("synth.chorus.active"), 0);
    EXPECT_EQ(integer("synth.polyphony"), 256);
    EXPECT_EQ(integer("audio.jack.autoconnect"), 1);
    EXPECT_EQ(integer("audio.pulseaudio.adjust-latency"), 1);
    char* id = nullptr;
    fluid_settings_dupstr(fluid_synth_get_settings(synth), "audio.jack.id", &id);
    EXPECT_STREQ(id, "Tabrova");
    fluid_free(id);
}

// Small pieces, so that a key is heard at once; a server needs two of them, the hardware itself three.
TEST_F(Engine, AsksTheOutputsForSmallPiecesInTheirOrder) {
    const std::vector<AudioOutput> wanted = {{"pulseaudio", "PulseAudio", 512, 2},
                                             {"pipewire", "PipeWire", 512, 2},
                                             {"jack", "JACK", 256, 2},
                                             {"alsa", "ALSA", 256, 3},
                                             {"coreaudio", "CoreAudio", 256, 2},
                                             {"wasapi", "WASAPI", 256, 3},
                                             {"dsound", "DirectSound", 256, 4},
                                             {"portaudio", "PortAudio", 256, 3},
                                             {"oboe", "Oboe", 256, 2},
                                             {"oss", "OSS", 256, 3}};
    ASSERT_EQ(audioOutputs().size(), wanted.size());
    for (std::size_t at = 0; at < wanted.size(); ++at) {
        const AudioOutput& output = audioOutputs()[at];
        EXPECT_STREQ(output.driver, wanted[at].driver);
        EXPECT_STREQ(output.name, wanted[at].name);
        EXPECT_EQ(output.periodSize, wanted[at].periodSize) << output.name;
        EXPECT_EQ(output.periods, wanted[at].periods) << output.name;
    }
}

// The library's own output into a file stands for a sound server.
TEST_F(Engine, OpensTheFirstOutputThatIsThere) {
    constexpr std::array Outputs = {AudioOutput{"nowhere", "Nowhere", 64, 2},
                                    AudioOutput{"file", "File", 128, 3},
                                    AudioOutput{"file", "Another", 256, 2}};
    const fs::path before = fs::current_path();
    fs::current_path(folder.path().toStdString()); // the file has a name of its own
    FluidEngine filing{Outputs};
    EXPECT_EQ(filing.loadBank(places), "");
    EXPECT_EQ(filing.output(), "");
    EXPECT_EQ(filing.openOutput(), "");
    EXPECT_EQ(filing.output(), "File");
    synth = filing.synthesizer();
    EXPECT_EQ(integer("audio.period-size"), 128);
    EXPECT_EQ(integer("audio.periods"), 3);
    filing.play({0x93, 60, 100});
    filing.closeOutput();
    EXPECT_EQ(filing.output(), "");
    EXPECT_FALSE(fs::is_empty(fs::current_path()));
    loudest(0.2);
    EXPECT_EQ(fluid_synth_get_active_voice_count(synth), 0) << "nothing rings on";
    EXPECT_EQ(filing.openOutput(), "");
    EXPECT_EQ(filing.output(), "File");
    filing.closeOutput();
    fs::current_path(before);
}

TEST_F(Engine, TellsThatNoOutputOpens) {
    load();
    EXPECT_TRUE(engine.openOutput().startsWith("No audio output could be opened"));
    EXPECT_EQ(engine.output(), "");
}

TEST_F(Engine, KeepsTheBankThatIsLoaded) {
    load();
    EXPECT_EQ(engine.bank(), installedBank());
    const auto* font = fluid_synth_get_sfont(synth, 0);
    EXPECT_EQ(engine.loadBank(places), "");
    EXPECT_EQ(fluid_synth_get_sfont(synth, 0), font) << "it was not loaded again";
    EXPECT_EQ(fluid_synth_sfcount(synth), 1);
}

TEST_F(Engine, PutsAnotherBankInItsPlace) {
    load();
    places.setting = fs::path(folder.path().toStdString()) / "mine.sf2";
    fs::copy_file(installedBank(), places.setting);
    EXPECT_EQ(engine.loadBank(places), "");
    EXPECT_EQ(engine.bank(), places.setting);
    EXPECT_EQ(fluid_synth_sfcount(synth), 1) << "the first one is gone";
    EXPECT_EQ(std::string(fluid_sfont_get_name(fluid_synth_get_sfont(synth, 0))), places.setting);
}

TEST_F(Engine, TakesABankWhoseNameIsNoText) {
    const fs::path name = fs::path(folder.path().toStdString()) / "\xff\xfe.sf2";
    fs::copy_file(installedBank(), name);
    for (fs::path SoundBankPlaces::*place :
         {&SoundBankPlaces::setting, &SoundBankPlaces::environment, &SoundBankPlaces::ownFolder}) {
        SoundBankPlaces named;
        named.*place = place == &SoundBankPlaces::ownFolder ? name.parent_path() : name;
        FluidEngine own{std::span<const AudioOutput>()};
        EXPECT_EQ(own.loadBank(named), "");
        EXPECT_EQ(own.bank(), name);
        synth = own.synthesizer();
        own.play({0x90, 60, 100});
        EXPECT_GT(loudest(0.2), 0.01F) << "it sounds";
    }
    fs::remove(name); // the toolkit does not find it
}

TEST_F(Engine, NamesTheBankThatCannotBeReadEvenIfTheNameIsNoText) {
    places.setting = fs::path(folder.path().toStdString()) / "\xff\xfe.sf2";
    const QString trouble = engine.loadBank(places);
    EXPECT_TRUE(trouble.startsWith(textOf(places.setting.filename()) + " is no sound bank"))
        << trouble.toStdString();
    EXPECT_EQ(engine.bank(), installedBank());
}

TEST_F(Engine, StartsAndEndsNotes) {
    load();
    EXPECT_LT(loudest(0.1), 1e-4F);
    engine.play({0x90, 60, 100});
    EXPECT_GT(loudest(0.1), 0.01F);
    engine.play({0x80, 60, 0});
    loudest(2);
    EXPECT_EQ(fluid_synth_get_active_voice_count(synth), 0);
    engine.play({0x91, 60, 100});
    EXPECT_GT(loudest(0.1), 0.01F);
    engine.play({0x91, 60, 0});
    loudest(2);
    EXPECT_EQ(fluid_synth_get_active_voice_count(synth), 0) << "a note of velocity 0 is an end";
}

TEST_F(Engine, TakesProgramsBendsAndControllersOfTheirChannel) {
    load();
    engine.play({0xC3, 73, 0});
    EXPECT_EQ(program(3), 73);
    EXPECT_EQ(program(2), 0);
    engine.play({0xE4, 5, 65});
    int bend = 0;
    fluid_synth_get_pitch_bend(synth, 4, &bend);
    EXPECT_EQ(bend, 5 + 65 * 128);
    engine.play({0xB5, 7, 33});
    int volume = 0;
    fluid_synth_get_cc(synth, 5, 7, &volume);
    EXPECT_EQ(volume, 33);
    engine.play({0xF0, 1, 1});
    engine.play({0xA0, 60, 1});
    EXPECT_EQ(fluid_synth_get_active_voice_count(synth), 0);
}

// Bells ring for seconds after their note.
TEST_F(Engine, CutsAllSoundOfAChannelSoftlyAndNoOtherChannels) {
    load();
    for (const int channel : {0, 1}) {
        const auto program = static_cast<std::uint8_t>(0xC0 + channel);
        const auto note = static_cast<std::uint8_t>(0x90 + channel);
        engine.play({program, 14, 0});
        engine.play({note, 60, 100});
    }
    ASSERT_GT(loudest(0.2), 0.01F);
    engine.play({0xB0, 120, 0});
    std::array<fluid_voice_t*, 256> voices{};
    fluid_synth_get_voicelist(synth, voices.data(), 256, -1);
    int ringing = 0;
    for (fluid_voice_t* voice : voices) {
        if (!voice) break;
        const float release = fluid_voice_gen_get(voice, GEN_VOLENVRELEASE);
        if (fluid_voice_get_channel(voice) == 0) {
            EXPECT_FLOAT_EQ(release, -7973.0F);
        } else {
            EXPECT_GT(release, -7973.0F);
            ++ringing;
        }
    }
    EXPECT_GT(ringing, 0);
    EXPECT_GT(loudest(0.2), 0.01F) << "the other channel rings on";
    engine.play({0xB1, 120, 0});
    loudest(0.6); // the room's own echo
    EXPECT_LT(loudest(0.1), 0.001F);
    EXPECT_EQ(fluid_synth_get_active_voice_count(synth), 0);
}

// More of them would only take each other's place.
TEST_F(Engine, TakesAsManyNotesAtOneMomentAsThereAreVoices) {
    load();
    const auto sounding = [this](std::uint8_t note) {
        std::array<fluid_voice_t*, 256> voices{};
        fluid_synth_get_voicelist(synth, voices.data(), 256, -1);
        for (fluid_voice_t* voice : voices)
            if (voice && fluid_voice_get_key(voice) == note) return true;
        return false;
    };
    // Whole moments only: a busy machine may be held up in between.
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(6));
        const auto start = std::chrono::steady_clock::now();
        for (int note = 0; note < 255; ++note)
            engine.play({0x9A, 40, 1});
        engine.play({0x9A, 50, 1});
        engine.play({0x9A, 60, 1});
        if (std::chrono::steady_clock::now() - start > std::chrono::milliseconds(5)) continue;
        EXPECT_TRUE(sounding(50)) << "the last that has room";
        EXPECT_FALSE(sounding(60)) << "the first that has none";
        engine.play({0xBA, 120, 0});
        loudest(0.5);
        engine.play({0x9A, 70, 1});
        EXPECT_TRUE(sounding(70)) << "the next moment has room again";
        return;
    }
    GTEST_SKIP() << "the machine is too busy to play 257 notes within five milliseconds";
}

} // namespace
} // namespace tabrova
