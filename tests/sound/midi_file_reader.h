// Reads a standard MIDI file back, plainly and by the letter of the format; anything odd is a failure of the
// test.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tabrova::testing {

struct MidiFileEvent {
    std::uint32_t ticks; // since the event before
    int status;          // 0xFF for the tempo
    int data1;           // of the tempo: microseconds of a quarter
    int data2 = 0;       // 0 for a program

    friend bool operator==(const MidiFileEvent&, const MidiFileEvent&) = default;
    friend std::ostream& operator<<(std::ostream& out, const MidiFileEvent& event) {
        return out << "{" << event.ticks << ", " << std::hex << event.status << std::dec << ", "
                   << event.data1 << ", " << event.data2 << "}";
    }
};

using MidiFileEvents = std::vector<MidiFileEvent>;

struct ReadMidiFile {
    int format = -1;
    int division = 0;
    std::vector<MidiFileEvents> tracks;
};

class MidiFileReader {
  public:
    explicit MidiFileReader(const std::string& bytes) : bytes_(bytes) {}

    ReadMidiFile read() {
        ReadMidiFile file;
        EXPECT_EQ(text(4), "MThd");
        EXPECT_EQ(number(4), 6U);
        file.format = static_cast<int>(number(2));
        const auto tracks = number(2);
        file.division = static_cast<int>(number(2));
        for (std::uint32_t track = 0; track < tracks; ++track)
            file.tracks.push_back(readTrack());
        EXPECT_EQ(at_, bytes_.size());
        return file;
    }

  private:
    int byte() {
        if (at_ >= bytes_.size()) {
            ADD_FAILURE() << "the file ends early";
            return 0;
        }
        return static_cast<unsigned char>(bytes_[at_++]);
    }
    std::string text(int length) {
        std::string letters;
        while (length-- > 0)
            letters.push_back(static_cast<char>(byte()));
        return letters;
    }
    std::uint32_t number(int width) {
        std::uint32_t value = 0;
        while (width-- > 0)
            value = value << 8 | static_cast<std::uint32_t>(byte());
        return value;
    }
    std::uint32_t time() {
        std::uint32_t value = 0;
        for (int digits = 0; digits < 4; ++digits) {
            const int each = byte();
            value = value << 7 | static_cast<std::uint32_t>(each & 0x7F);
            if (each < 0x80) return value;
        }
        ADD_FAILURE() << "a time has more than four bytes";
        return value;
    }
    int data() {
        const int value = byte();
        EXPECT_LT(value, 0x80);
        return value;
    }

    MidiFileEvents readTrack() {
        EXPECT_EQ(text(4), "MTrk");
        const std::size_t length = number(4);
        const std::size_t end = at_ + length;
        MidiFileEvents events;
        while (at_ < end && at_ < bytes_.size()) {
            const std::uint32_t ticks = time();
            const int status = byte();
            if (status != 0xFF) {
                const int first = data();
                events.push_back({ticks, status, first, (status & 0xE0) == 0xC0 ? 0 : data()});
                continue;
            }
            const int kind = byte();
            const int size = byte();
            if (kind == 0x51) {
                EXPECT_EQ(size, 3);
                events.push_back({ticks, status, static_cast<int>(number(3))});
                continue;
            }
            EXPECT_EQ(kind, 0x2F);
            EXPECT_EQ(size, 0);
            EXPECT_EQ(ticks, 0U);
            EXPECT_EQ(at_, end);
            return events;
        }
        ADD_FAILURE() << "a track has no end";
        return events;
    }

    const std::string& bytes_;
    std::size_t at_ = 0;
};

inline ReadMidiFile readMidiFile(const std::string& bytes) { return MidiFileReader(bytes).read(); }

inline std::string fileBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace tabrova::testing
