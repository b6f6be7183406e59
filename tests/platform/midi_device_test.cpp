// The MIDI device that tests and the driver play into.
#include "platform/midi_device.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using Operation = RecordingMidiDevice::Operation;

TEST(RecordedMidi, ListsOneDeviceAndTheMapper) {
    RecordingMidiDevice midi;
    EXPECT_EQ(midi.midiOutGetNumDevs(), 1);
    EXPECT_EQ(midi.midiOutGetDevCapsA(MidiMapperId), "Recording mapper");
    EXPECT_EQ(midi.midiOutGetDevCapsA(0), "Recording device");
    for (const int nowhere : {-2, 1})
        EXPECT_EQ(midi.midiOutGetDevCapsA(nowhere), std::nullopt);
}

TEST(RecordedMidi, KeepsMessagesUntilTheyAreTaken) {
    RecordingMidiDevice midi;
    std::uint32_t handle = 0;
    ASSERT_EQ(midi.midiOutOpen(handle, 0), 0);
    ASSERT_NE(handle, 0u);
    EXPECT_EQ(midi.midiOutShortMsg(handle, {0x90, 60, 100}), 0);
    EXPECT_EQ(midi.midiOutShortMsg(handle, {0x80, 60, 0}), 0);
    EXPECT_EQ(midi.take(), (std::vector<ShortMessage>{{0x90, 60, 100}, {0x80, 60, 0}}));
    EXPECT_TRUE(midi.take().empty());
    EXPECT_EQ(midi.midiOutClose(handle), 0);
}

TEST(RecordedMidi, TakesNoMessageWithoutAHandle) {
    RecordingMidiDevice midi;
    const int code = midi.midiOutShortMsg(0, {0x90, 60, 100});
    EXPECT_EQ(code, 5); // an invalid handle, as the device layer numbers it
    EXPECT_EQ(midi.midiOutGetErrorTextA(code), "recorded failure 5");
    EXPECT_TRUE(midi.take().empty());
}

TEST(RecordedMidi, FailsWhereItIsToldTo) {
    RecordingMidiDevice midi;
    std::uint32_t handle = 0;
    midi.setFailing(Operation::Open, true);
    EXPECT_NE(midi.midiOutOpen(handle, 0), 0);
    EXPECT_EQ(handle, 0u);
    midi.setFailing(Operation::Open, false);
    midi.setFailing(Operation::Send, true);
    EXPECT_EQ(midi.midiOutOpen(handle, 0), 0);
    EXPECT_NE(midi.midiOutShortMsg(handle, {0x90, 60, 100}), 0);
    EXPECT_TRUE(midi.take().empty());
    EXPECT_EQ(midi.midiOutClose(handle), 0);
    midi.setFailing(Operation::Send, false);
    midi.setFailing(Operation::Close, true);
    EXPECT_EQ(midi.midiOutShortMsg(handle, {0x90, 60, 100}), 0);
    EXPECT_NE(midi.midiOutClose(handle), 0);
}

} // namespace
} // namespace tabrova
