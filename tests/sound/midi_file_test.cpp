// The bytes of a standard MIDI file.
#include "sound/midi_file.h"
#include "tests/sound/midi_file_reader.h"

namespace tabrova::testing {
namespace {

std::string bytes(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values)
        text.push_back(static_cast<char>(value));
    return text;
}

std::string trackBytes(const MidiFileTrack& track) {
    std::string text;
    track.appendTo(text);
    return text;
}

TEST(MidiFileTrack, AnEmptyTrackHoldsItsEnd) {
    EXPECT_EQ(trackBytes({}), "MTrk" + bytes({0, 0, 0, 4, 0, 0xFF, 0x2F, 0}));
    EXPECT_EQ(MidiFileTrack().size(), 0U);
}

TEST(MidiFileTrack, MessagesHaveTheirDataBytes) {
    MidiFileTrack track;
    track.addMessage(0, 0x93, 64, 127);
    track.addMessage(5, 0xC3, 24, 99);
    track.addMessage(0, 0xD0, 7, 99);
    track.addMessage(0, 0xE0, 1, 2);
    track.addMessage(0, 0xB9, 0, 3);
    EXPECT_EQ(trackBytes(track), "MTrk" + bytes({0, 0,    0, 22, 0, 0x93, 64, 127, 5, 0xC3, 24,   0, 0xD0, 7,
                                                 0, 0xE0, 1, 2,  0, 0xB9, 0,  3,   0, 0xFF, 0x2F, 0}));
}

TEST(MidiFileTrack, TimesTakeSevenBitsAByte) {
    const std::pair<std::uint32_t, std::string> rows[] = {
        {0, bytes({0})},
        {0x40, bytes({0x40})},
        {0x7F, bytes({0x7F})},
        {0x80, bytes({0x81, 0x00})},
        {0x2000, bytes({0xC0, 0x00})},
        {0x3FFF, bytes({0xFF, 0x7F})},
        {0x4000, bytes({0x81, 0x80, 0x00})},
        {0x1FFFFF, bytes({0xFF, 0xFF, 0x7F})},
        {0x200000, bytes({0x81, 0x80, 0x80, 0x00})},
        {MidiFile::MostTicks, bytes({0xFF, 0xFF, 0xFF, 0x7F})},
        {0xFFFFFFFF, bytes({0xFF, 0xFF, 0xFF, 0x7F})},
    };
    for (const auto& [ticks, written] : rows) {
        MidiFileTrack track;
        track.addMessage(ticks, 0x90, 1, 2);
        EXPECT_EQ(track.size(), written.size() + 3);
        EXPECT_EQ(trackBytes(track).substr(8, written.size()), written) << ticks;
    }
}

TEST(MidiFileTrack, ATempoHasThreeBytes) {
    MidiFileTrack track;
    track.addTempo(0, 500000);
    track.addTempo(1, 0xFFFFFFFF); // the longest quarter there is
    EXPECT_EQ(trackBytes(track).substr(8), bytes({0, 0xFF, 0x51, 3, 0x07, 0xA1, 0x20, 1, 0xFF, 0x51, 3, 0xFF,
                                                  0xFF, 0xFF, 0, 0xFF, 0x2F, 0}));
}

TEST(MidiFile, HasAHeadAndItsTracksInOrder) {
    MidiFile file;
    file.ticksOfQuarter = 500;
    file.tracks.resize(3);
    file.tracks[1].addMessage(0, 0x90, 60, 1);
    file.tracks[2].addMessage(300, 0x81, 61, 0);
    const std::string written = file.bytes();
    EXPECT_EQ(written.substr(0, 14), "MThd" + bytes({0, 0, 0, 6, 0, 1, 0, 3, 0x01, 0xF4}));
    const ReadMidiFile read = readMidiFile(written);
    EXPECT_EQ(read.format, 1);
    EXPECT_EQ(read.division, 500);
    ASSERT_EQ(read.tracks.size(), 3U);
    EXPECT_EQ(read.tracks[0], MidiFileEvents{});
    EXPECT_EQ(read.tracks[1], (MidiFileEvents{{0, 0x90, 60, 1}}));
    EXPECT_EQ(read.tracks[2], (MidiFileEvents{{300, 0x81, 61, 0}}));
}

TEST(MidiFile, AQuarterHasOneTickAtLeastAndFifteenBitsAtMost) {
    MidiFile file;
    file.ticksOfQuarter = 0;
    EXPECT_EQ(readMidiFile(file.bytes()).division, 1);
    file.ticksOfQuarter = 40000;
    EXPECT_EQ(readMidiFile(file.bytes()).division, 32767);
}

} // namespace
} // namespace tabrova::testing
