// The bytes of each message operation, and who is told of failures.
#include "sound/midi_output.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class MidiBytes : public ::testing::Test {
  protected:
    MidiBytes() { output.OpenMidiDevice(MidiMapperId); }

    using Messages = std::vector<ShortMessage>;
    RecordingMidiDevice device;
    int failures = 0;
    MidiOutput output{device, [this](int) { ++failures; }};
};

TEST_F(MidiBytes, NoteOnAndNoteOff) {
    output.NoteOn(9, 38, 100);
    output.NoteOff(1, 60);
    EXPECT_EQ(device.take(), (Messages{{0x99, 38, 100}, {0x91, 60, 0}}));
}

TEST_F(MidiBytes, AProgramChangeIsAlwaysTwoMessagesWithTheBankOverTheLegalRange) {
    output.ProgramChange(0, 24);
    output.ProgramChange(0, 24);
    EXPECT_EQ(device.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 24, 0}, {0xB0, 0, 0x80}, {0xC0, 24, 0}}));
}

TEST_F(MidiBytes, AControllerAndAChannelsSilence) {
    output.ControlChange(14, 7, 90);
    output.ChannelNotesOff(3);
    EXPECT_EQ(device.take(), (Messages{{0xBE, 7, 90}, {0xB3, 120, 0}, {0xB3, 123, 0}}));
}

TEST_F(MidiBytes, AllNotesOffStopsAtChannelEight) {
    output.AllNotesOff();
    Messages expected;
    for (std::uint8_t channel = 0; channel <= 8; ++channel) {
        const auto status = static_cast<std::uint8_t>(0xB0 + channel);
        expected.push_back({status, 120, 0});
        expected.push_back({status, 123, 0});
    }
    EXPECT_EQ(device.take(), expected);
}

TEST_F(MidiBytes, NothingIsClipped) {
    EXPECT_EQ(PackShortMessage(0x90, 60, 127), 0x90u + 60 * 256 + 127 * 65536);
    output.NoteOn(0, 200, 130);
    output.NoteOn(0, 300, 1);
    output.NoteOn(0, -1, 1);
    EXPECT_EQ(device.take(), (Messages{{0x90, 200, 130}, {0x90, 44, 2}, {0x90, 255, 0}}));
}

TEST_F(MidiBytes, FailuresAreReported) {
    using Operation = RecordingMidiDevice::Operation;
    device.setFailing(Operation::Send, true);
    output.NoteOn(0, 60, 1);
    EXPECT_EQ(failures, 1);
    device.setFailing(Operation::Close, true);
    output.CloseMidiDevice();
    EXPECT_EQ(failures, 2);
    EXPECT_FALSE(output.isOpen());
    device.setFailing(Operation::Open, true);
    EXPECT_FALSE(output.OpenMidiDevice(0));
    EXPECT_EQ(failures, 3);
}

TEST_F(MidiBytes, SendingWithNoOpenDeviceFails) {
    output.CloseMidiDevice();
    output.AllNotesOff();
    EXPECT_EQ(failures, 18);
    EXPECT_TRUE(device.take().empty());
    output.CloseMidiDevice();
    EXPECT_EQ(failures, 18);
}

} // namespace
} // namespace tabrova
