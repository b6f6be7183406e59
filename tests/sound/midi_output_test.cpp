// The bytes of each message operation, and who is told of failures.
#include "sound/midi_output.h"

#include <gtest/gtest.h>

#include <set>

namespace tabrova {
namespace {

using Operation = RecordingMidiDevice::Operation;

class MidiBytes : public ::testing::Test {
  protected:
    MidiBytes() { output.OpenMidiDevice(MidiMapperId); }

    static std::uint8_t byte(int value) { return static_cast<std::uint8_t>(value); }

    using Messages = std::vector<ShortMessage>;
    RecordingMidiDevice device;
    std::vector<int> failures;
    MidiOutput output{device, [this](int code) { failures.push_back(code); }};
};

// Its opening and closing are written down in their order.
class LoggingMidiDevice : public MidiDevice {
  public:
    int midiOutGetNumDevs() override { return 4; }
    std::optional<QString> midiOutGetDevCapsA(int id) const override {
        return silentIds.contains(id) ? std::nullopt : std::optional<QString>("port " + QString::number(id));
    }
    int midiOutOpen(std::uint32_t& handle, int id) override {
        log.push_back("open " + std::to_string(id));
        if (openResult == 0) handle = 7;
        return openResult;
    }
    int midiOutClose(std::uint32_t handle) override {
        log.push_back(handle == 7 ? "close" : "close of a wrong handle");
        return closeResult;
    }
    int midiOutShortMsg(std::uint32_t, const ShortMessage&) override {
        log.push_back("send");
        return sendResult;
    }
    QString midiOutGetErrorTextA(int) const override { return {}; }

    std::set<int> silentIds; // these tell no capabilities
    std::vector<std::string> log;
    int openResult = 0, closeResult = 0, sendResult = 0;
};

TEST_F(MidiBytes, ANoteOnIsChannelNoteAndVelocity) {
    for (int channel = 0; channel < 16; ++channel) {
        output.NoteOn(channel, 38, 100);
        EXPECT_EQ(device.take(), (Messages{{byte(0x90 + channel), 38, 100}}));
    }
}

TEST_F(MidiBytes, ANoteOffIsANoteOnWithoutVelocity) {
    for (int channel = 0; channel < 16; ++channel) {
        output.NoteOff(channel, 60);
        EXPECT_EQ(device.take(), (Messages{{byte(0x90 + channel), 60, 0}}));
    }
}

TEST_F(MidiBytes, AControllerIsChannelControllerAndValue) {
    for (int channel = 0; channel < 16; ++channel) {
        output.ControlChange(channel, 7, 90);
        EXPECT_EQ(device.take(), (Messages{{byte(0xB0 + channel), 7, 90}}));
    }
}

TEST_F(MidiBytes, AProgramChangeIsAlwaysTheBankAndThenTheProgram) {
    for (int channel = 0; channel < 16; ++channel) {
        output.ProgramChange(channel, 24);
        EXPECT_EQ(device.take(), (Messages{{byte(0xB0 + channel), 0, 0x80}, {byte(0xC0 + channel), 24, 0}}));
    }
    output.ProgramChange(0, 24);
    output.ProgramChange(0, 24);
    EXPECT_EQ(device.take().size(), 4u);
}

TEST_F(MidiBytes, TheBanksByteStandsOneOverTheLegalRange) {
    EXPECT_EQ(output.BankValue, 128);
    output.BankValue = 3;
    output.ProgramChange(2, 127);
    EXPECT_EQ(device.take(), (Messages{{0xB2, 0, 3}, {0xC2, 127, 0}}));
}

TEST_F(MidiBytes, TheToolsVelocityIsFull) { EXPECT_EQ(output.FixedVelocity, 127); }

TEST_F(MidiBytes, SilencingAChannelIsTwoControllers) {
    for (int channel = 0; channel < 16; ++channel) {
        output.ChannelNotesOff(channel);
        EXPECT_EQ(device.take(), (Messages{{byte(0xB0 + channel), 120, 0}, {byte(0xB0 + channel), 123, 0}}));
    }
}

TEST_F(MidiBytes, AllNotesOffStopsAtChannelEight) {
    output.AllNotesOff();
    Messages expected;
    for (int channel = 0; channel <= 8; ++channel) {
        expected.push_back({byte(0xB0 + channel), 120, 0});
        expected.push_back({byte(0xB0 + channel), 123, 0});
    }
    EXPECT_EQ(expected.size(), 18u);
    EXPECT_EQ(device.take(), expected);
}

TEST_F(MidiBytes, AMessageIsPackedWithItsFirstByteLowest) {
    EXPECT_EQ(PackShortMessage(0x90, 60, 127), 0x90u + 60 * 256 + 127 * 65536);
    EXPECT_EQ(PackShortMessage(0xB0, 0, 128), 0x008000B0u);
    EXPECT_EQ(PackShortMessage(0, 0, 0), 0u);
}

TEST_F(MidiBytes, NothingIsClipped) {
    output.NoteOn(0, 200, 130);
    EXPECT_EQ(device.take(), (Messages{{0x90, 200, 130}}));
}

TEST_F(MidiBytes, AValueOverOneByteRunsOnIntoTheNext) {
    output.NoteOn(0, 300, 1);
    output.NoteOn(0, -1, 1);
    EXPECT_EQ(device.take(), (Messages{{0x90, 44, 2}, {0x90, 255, 0}}));
}

TEST_F(MidiBytes, SuccessIsNotReported) {
    output.NoteOn(0, 60, 1);
    output.AllNotesOff();
    output.OpenMidiDevice(0);
    output.CloseMidiDevice();
    EXPECT_TRUE(failures.empty());
}

TEST_F(MidiBytes, AFailingSendIsReportedOnceAMessage) {
    device.setFailing(Operation::Send, true);
    output.NoteOn(0, 60, 1);
    EXPECT_EQ(failures, std::vector<int>(1, 1));
    output.ProgramChange(0, 5);
    EXPECT_EQ(failures.size(), 3u);
    output.AllNotesOff();
    EXPECT_EQ(failures.size(), 21u);
}

TEST_F(MidiBytes, AFailingCloseIsReportedAndLeavesNothingOpen) {
    device.setFailing(Operation::Close, true);
    output.CloseMidiDevice();
    EXPECT_EQ(failures, std::vector<int>(1, 1));
    EXPECT_EQ(output.MidiOutputHandle, 0u);
}

TEST_F(MidiBytes, AFailingOpenIsReportedAndGivesFalse) {
    device.setFailing(Operation::Open, true);
    EXPECT_FALSE(output.OpenMidiDevice(0));
    EXPECT_EQ(failures, std::vector<int>(1, 1));
    EXPECT_EQ(output.MidiOutputHandle, 0u);
}

TEST_F(MidiBytes, SendingWithNoOpenDeviceFailsForEveryMessage) {
    output.CloseMidiDevice();
    output.AllNotesOff();
    EXPECT_EQ(failures.size(), 18u);
    EXPECT_TRUE(device.take().empty());
}

TEST_F(MidiBytes, ClosingWhatIsNotOpenDoesNothing) {
    output.CloseMidiDevice();
    device.setFailing(Operation::Close, true);
    output.CloseMidiDevice();
    EXPECT_TRUE(failures.empty());
}

std::vector<std::pair<std::string, int>> listed(MidiOutput& output) {
    std::vector<std::pair<std::string, int>> rows;
    for (const MidiDeviceRow& row : output.FillDeviceList())
        rows.emplace_back(row.name.toStdString(), row.id);
    return rows;
}

using Rows = std::vector<std::pair<std::string, int>>;

TEST(MidiDevices, AreListedWithTheMapperFirstAndTheirIds) {
    LoggingMidiDevice device;
    MidiOutput output(device, [](int) { ADD_FAILURE(); });
    EXPECT_EQ(listed(output),
              (Rows{{"port -1", -1}, {"port 0", 0}, {"port 1", 1}, {"port 2", 2}, {"port 3", 3}}));
}

TEST(MidiDevices, ThatTellNoCapabilitiesAreSkippedSoThatPlacesAreNotIds) {
    LoggingMidiDevice device;
    device.silentIds = {0, 2};
    MidiOutput output(device, [](int) { ADD_FAILURE(); });
    EXPECT_EQ(listed(output), (Rows{{"port -1", -1}, {"port 1", 1}, {"port 3", 3}}));
    device.silentIds = {-1, 0, 1, 2, 3};
    EXPECT_TRUE(listed(output).empty());
}

TEST(MidiDevices, ThatAreGoneDropMessagesUntilOneIsOpened) {
    LoggingMidiDevice device;
    std::vector<int> failures;
    MidiOutput output(device, [&failures](int code) { failures.push_back(code); });
    output.dropUntilOpened();
    output.ProgramChange(0, 24);
    output.AllNotesOff();
    EXPECT_TRUE(device.log.empty());
    EXPECT_TRUE(failures.empty());
    output.OpenMidiDevice(1);
    output.NoteOn(0, 60, 1);
    EXPECT_EQ(device.log, (std::vector<std::string>{"open 1", "send"}));
    device.sendResult = 3;
    output.NoteOn(0, 60, 1);
    EXPECT_EQ(failures, std::vector<int>(1, 3));
}

TEST(MidiDevices, AreClosedBeforeAnotherOpens) {
    LoggingMidiDevice device;
    MidiOutput output(device, [](int) { ADD_FAILURE(); });
    EXPECT_EQ(output.MidiOutputHandle, 0u);
    EXPECT_TRUE(output.OpenMidiDevice(MidiMapperId));
    EXPECT_EQ(output.MidiOutputHandle, 7u);
    EXPECT_TRUE(output.OpenMidiDevice(2));
    output.CloseMidiDevice();
    output.CloseMidiDevice();
    EXPECT_EQ(device.log, (std::vector<std::string>{"open -1", "close", "open 2", "close"}));
}

TEST(MidiDevices, OpenEvenIfTheOldOneDidNotClose) {
    LoggingMidiDevice device;
    std::vector<int> failures;
    MidiOutput output(device, [&failures](int code) { failures.push_back(code); });
    output.OpenMidiDevice(0);
    device.closeResult = 5;
    EXPECT_TRUE(output.OpenMidiDevice(1));
    EXPECT_EQ(failures, std::vector<int>(1, 5));
    EXPECT_EQ(device.log, (std::vector<std::string>{"open 0", "close", "open 1"}));
}

TEST(MidiDevices, TellTheirOwnErrorCodes) {
    LoggingMidiDevice device;
    std::vector<int> failures;
    MidiOutput output(device, [&failures](int code) { failures.push_back(code); });
    device.openResult = 2;
    EXPECT_FALSE(output.OpenMidiDevice(0));
    device.openResult = 0;
    EXPECT_TRUE(output.OpenMidiDevice(0));
    device.sendResult = 67;
    output.NoteOn(0, 1, 1);
    device.closeResult = 65;
    output.CloseMidiDevice();
    EXPECT_EQ(failures, (std::vector<int>{2, 67, 65}));
}

} // namespace
} // namespace tabrova
