// The built-in synthesizer where something is missing: it tells so in its state and never fails.
#include "sound/devices/system_midi_device.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class Synthesizers : public ::testing::Test {
  protected:
    Synthesizers() {
        // No sound server of this machine is asked.
        qputenv("PULSE_SERVER", "unix:/nowhere");
    }

    static SoundBankPlaces systemPlaces() { return {{}, {}, {}, systemBankFolders()}; }
    fs::path file(const char* name, const QByteArray& bytes) {
        QFile written(folder.filePath(name));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(bytes);
        return written.fileName().toStdString();
    }

    QTemporaryDir folder;
};

TEST_F(Synthesizers, TellThatNoBankIsThere) {
    FluidSynthesizer synthesizer({});
    EXPECT_FALSE(synthesizer.state().running);
    synthesizer.open();
    EXPECT_TRUE(synthesizer.state().running);
    synthesizer.waitUntilLoaded();
    const SynthesizerState state = synthesizer.state();
    EXPECT_FALSE(state.loading);
    EXPECT_EQ(state.bank, "");
    EXPECT_EQ(state.output, "");
    EXPECT_TRUE(state.trouble.startsWith("No sound bank was found")) << state.trouble.toStdString();
    synthesizer.send({0x90, 60, 100});
    synthesizer.close();
    EXPECT_FALSE(synthesizer.state().running);
}

TEST_F(Synthesizers, TellThatAFileIsNoBank) {
    SoundBankPlaces places;
    places.setting = file("broken.sf2", "RIFF\xff\xff\xff\xffsfbk" + QByteArray(2000, '\x7f'));
    FluidSynthesizer synthesizer(places);
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    EXPECT_FALSE(synthesizer.state().trouble.isEmpty());
    EXPECT_EQ(synthesizer.state().bank, "");
}

// The bank of the packages is there wherever the tests run.
TEST_F(Synthesizers, GoOnWithAnotherBankIfTheChosenOneCannotBeRead) {
    SoundBankPlaces places = systemPlaces();
    ASSERT_FALSE(soundBanks(places).empty()) << "no General MIDI bank is installed";
    places.setting = file("broken.sf2", "RIFF\xff\xff\xff\xffsfbk" + QByteArray(2000, '\x7f'));
    FluidSynthesizer synthesizer(places);
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    const SynthesizerState state = synthesizer.state();
    EXPECT_FALSE(state.bank.isEmpty());
    EXPECT_TRUE(state.trouble.startsWith("broken.sf2 is no sound bank that can be read"))
        << state.trouble.toStdString();
}

TEST_F(Synthesizers, TakeAnotherBankWhileTheyRun) {
    const auto banks = soundBanks(systemPlaces());
    ASSERT_FALSE(banks.empty()) << "no General MIDI bank is installed";
    const fs::path copy = fs::path(folder.path().toStdString()) / "mine.sf2";
    fs::copy_file(banks.front(), copy);
    FluidSynthesizer synthesizer(systemPlaces());
    int changes = 0;
    synthesizer.onChange(&changes, [&changes] { ++changes; });
    synthesizer.open();
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(synthesizer.state().bank.toStdString(), banks.front().string());
    synthesizer.useBank(QString::fromStdString(copy.string()));
    synthesizer.waitUntilLoaded();
    EXPECT_EQ(synthesizer.state().bank.toStdString(), copy.string());
    EXPECT_EQ(changes, 0); // told later, on the user-interface thread
    QCoreApplication::processEvents();
    EXPECT_GE(changes, 2);
}

TEST_F(Synthesizers, TakeEveryMessageAtAnyTime) {
    FluidSynthesizer synthesizer(systemPlaces());
    const auto sendAll = [&synthesizer] {
        for (int status = 0; status < 256; ++status)
            for (const int data : {0, 1, 120, 123, 127, 128, 255})
                synthesizer.send({static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(data), 0});
    };
    sendAll();
    synthesizer.open();
    sendAll();
    synthesizer.waitUntilLoaded();
    sendAll();
    synthesizer.close();
    sendAll();
    EXPECT_FALSE(synthesizer.state().running);
}

TEST_F(Synthesizers, EndWhileTheyLoad) {
    int changes = 0;
    for (int round = 0; round < 3; ++round) {
        FluidSynthesizer synthesizer(systemPlaces());
        synthesizer.onChange(&changes, [&changes] { ++changes; });
        synthesizer.open();
        synthesizer.open();
        const SynthesizerState state = synthesizer.state();
        EXPECT_TRUE(state.running);
        EXPECT_EQ(state.output, "");
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 0) << "there is nobody to be told any more";
}

TEST_F(Synthesizers, AreTheMapperAndNeverFail) {
    FluidSynthesizer synthesizer({});
    SystemMidiDevice device(synthesizer);
    EXPECT_EQ(device.midiOutGetDevCapsA(MidiMapperId).value_or(""), "Built-in Synthesizer");
    std::uint32_t handle = 0;
    EXPECT_EQ(device.midiOutOpen(handle, MidiMapperId), 0);
    EXPECT_NE(handle, 0u);
    EXPECT_EQ(device.midiOutShortMsg(handle, {0x90, 60, 100}), 0);
    EXPECT_EQ(device.midiOutClose(handle), 0);
}

TEST_F(Synthesizers, LeavePortsThatAreNotThereToFail) {
    FluidSynthesizer synthesizer({});
    SystemMidiDevice device(synthesizer);
    const int count = device.midiOutGetNumDevs();
    EXPECT_FALSE(device.midiOutGetDevCapsA(count).has_value());
    std::uint32_t handle = 0;
    EXPECT_NE(device.midiOutOpen(handle, count), 0);
    EXPECT_EQ(handle, 0u);
    const int code = device.midiOutShortMsg(handle, {0x90, 60, 100});
    EXPECT_NE(code, 0);
    EXPECT_FALSE(device.midiOutGetErrorTextA(code).isEmpty());
}

} // namespace
} // namespace tabrova
