// The system's MIDI ports as far as no service is needed: the real port has a test of its own.
#include "sound/devices/midi_ports.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(MidiPorts, GetTheBytesAsTheyAre) {
    for (const RtMidi::Api kind : {RtMidi::UNIX_JACK, RtMidi::WINDOWS_MM})
        for (const int status : {0x90, 0xB0, 0xC0, 0xCF, 0xD0})
            EXPECT_EQ(bytesForPort(kind, {static_cast<std::uint8_t>(status), 0, 0x80}), 3u);
}

// There a third byte would be another program change, to program 0.
TEST(MidiPorts, ThatTakeWholeEventsGetNoByteBehindAProgramChange) {
    for (const RtMidi::Api kind : {RtMidi::LINUX_ALSA, RtMidi::MACOSX_CORE}) {
        EXPECT_EQ(bytesForPort(kind, {0xC0, 24, 0}), 2u);
        EXPECT_EQ(bytesForPort(kind, {0xCF, 24, 0}), 2u);
        EXPECT_EQ(bytesForPort(kind, {0xB0, 0, 0x80}), 3u);
        EXPECT_EQ(bytesForPort(kind, {0x90, 60, 0}), 3u);
    }
}

TEST(MidiPorts, ThatAreNotThereDoNotOpen) {
    MidiPorts ports;
    ports.list();
    EXPECT_FALSE(ports.name(-1).has_value());
    EXPECT_FALSE(ports.name(ports.count()).has_value());
    EXPECT_NE(ports.open(ports.count()), 0);
    EXPECT_NE(ports.send({0x90, 60, 100}), 0);
    ports.close();
}

} // namespace
} // namespace tabrova
