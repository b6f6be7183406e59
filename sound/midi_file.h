// A standard MIDI file of format 1, put together in memory: track 0 holds the tempo, the tracks from 1 on the
// events. Times are ticks between an event and the one before it in its track.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tabrova {

class MidiFileTrack {
  public:
    // A channel message. Programs and channel pressure have one data byte, the others two; data bytes are 0
    // to 127.
    void addMessage(std::uint32_t ticks, std::uint8_t status, std::uint8_t data1, std::uint8_t data2);
    void addTempo(std::uint32_t ticks, std::uint32_t microsecondsOfQuarter);

    // Bytes of the events.
    std::size_t size() const { return events_.size(); }
    // The track with its head and its end.
    void appendTo(std::string& file) const;

  private:
    static constexpr std::size_t MostBytesOfTime = 4;
    // Returns the end of what was written.
    static char* writeTime(char* at, std::uint32_t ticks);

    std::string events_;
};

struct MidiFile {
    // The largest number of ticks that a quarter note and a time between two events can have.
    static constexpr std::uint32_t MostTicksOfQuarter = 32767;
    static constexpr std::uint32_t MostTicks = 0x0FFFFFFF;
    // The longest quarter note that a tempo can tell, in microseconds.
    static constexpr std::uint32_t LongestQuarter = 0xFFFFFF;

    std::uint32_t ticksOfQuarter = 1;
    std::vector<MidiFileTrack> tracks; // track 0 first

    std::string bytes() const;
};

} // namespace tabrova
