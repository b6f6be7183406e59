#include "sound/midi_file.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr std::uint32_t FormatOfManyTracks = 1;
constexpr std::uint32_t HeadLength = 6;
constexpr std::string_view EndOfTrack("\x00\xFF\x2F\x00", 4);

void appendNumber(std::string& bytes, std::uint32_t number, int width) {
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift));
}

bool hasOneDataByte(std::uint8_t status) { return (status & 0xE0) == 0xC0; }

} // namespace

// Seven bits a byte, the highest first; all but the last have the eighth bit set.
char* MidiFileTrack::writeTime(char* at, std::uint32_t ticks) {
    ticks = std::min(ticks, MidiFile::MostTicks);
    for (int shift = 21; shift > 0; shift -= 7)
        if (ticks >> shift != 0) *at++ = static_cast<char>((ticks >> shift & 0x7F) | 0x80);
    *at++ = static_cast<char>(ticks & 0x7F);
    return at;
}

void MidiFileTrack::addMessage(std::uint32_t ticks, std::uint8_t status, std::uint8_t data1,
                               std::uint8_t data2) {
    char event[MostBytesOfTime + 3];
    char* end = writeTime(event, ticks);
    *end++ = static_cast<char>(status);
    *end++ = static_cast<char>(data1);
    if (!hasOneDataByte(status)) *end++ = static_cast<char>(data2);
    events_.append(event, static_cast<std::size_t>(end - event));
}

void MidiFileTrack::addTempo(std::uint32_t ticks, std::uint32_t microsecondsOfQuarter) {
    char time[MostBytesOfTime];
    events_.append(time, writeTime(time, ticks)).append("\xFF\x51\x03", 3);
    appendNumber(events_, std::min(microsecondsOfQuarter, MidiFile::LongestQuarter), 3);
}

void MidiFileTrack::appendTo(std::string& file) const {
    file.append("MTrk");
    appendNumber(file, static_cast<std::uint32_t>(events_.size() + EndOfTrack.size()), 4);
    file.append(events_).append(EndOfTrack);
}

std::string MidiFile::bytes() const {
    std::size_t size = 0;
    for (const MidiFileTrack& track : tracks)
        size += track.size();
    std::string file;
    file.reserve(size + 16 * (tracks.size() + 1)); // with the heads and ends
    file = "MThd";
    appendNumber(file, HeadLength, 4);
    appendNumber(file, FormatOfManyTracks, 2);
    appendNumber(file, static_cast<std::uint32_t>(tracks.size()), 2);
    appendNumber(file, std::clamp<std::uint32_t>(ticksOfQuarter, 1, MostTicksOfQuarter), 2);
    for (const MidiFileTrack& track : tracks)
        track.appendTo(file);
    return file;
}

} // namespace tabrova
