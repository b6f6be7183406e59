#include "sound/midi_file_control.h"

#include "core/files/replaced_file.h"
#include "core/text/conversions.h"

#include <algorithm>
#include <cmath>

namespace tabrova {

namespace {

constexpr double MicrosecondsOfMillisecond = 1000.0;
constexpr std::uint32_t ColumnsOfQuarter = 4;
// A quarter of more ticks would be too long for a tempo of the file.
constexpr std::uint32_t MostTicksOfSlowQuarter = 16000;

constexpr int LargestDataByte = 127;

std::uint8_t dataByte(std::int16_t value) {
    return static_cast<std::uint8_t>(std::clamp<int>(value, 0, LargestDataByte));
}

std::uint8_t dataByte(double value) {
    return static_cast<std::uint8_t>(std::clamp<double>(roundHalfToEven(value), 0, LargestDataByte));
}

} // namespace

void MIDIFile::setInteger(Property property, std::int16_t value) {
    switch (property) {
    case Property::Command:
        act(value);
        break;
    case Property::Track:
        track_ = value;
        break;
    case Property::Status:
        status_ = static_cast<std::uint8_t>(value);
        break;
    case Property::Data1:
        data1_ = dataByte(value);
        break;
    case Property::Data2:
        data2_ = dataByte(value);
        break;
    case Property::DeltaTime:
        deltaTime_ = value;
        break;
    case Property::Tempo:
        setNumber(property, value);
        break;
    case Property::FileName:
        break;
    }
}

void MIDIFile::setNumber(Property property, double value) {
    if (std::isnan(value)) return;
    if (property == Property::Data1) data1_ = dataByte(value);
    if (property == Property::Tempo) {
        step_ = value;
        addTempo();
    }
}

void MIDIFile::setText(Property property, std::string_view value) {
    if (const auto number = toNumber(value)) setNumber(property, *number);
}

void MIDIFile::setPath(Property property, std::filesystem::path value) {
    if (property == Property::FileName) fileName_ = std::move(value);
}

void MIDIFile::act(std::int16_t command) {
    switch (static_cast<Command>(command)) {
    case Command::Start:
        return start();
    case Command::AddEvent:
        return addEvent();
    case Command::WriteAndClose:
        replaceFile(fileName_, bytes());
        return;
    case Command::WholeFile:
    case Command::BeginTrack:
        return;
    }
}

void MIDIFile::start() {
    file_ = {};
    file_.tracks.resize(1);
    size_ = 0;
    track_ = 0;
}

// A tick is one unit of the times that come in. They are whole numbers, a step is none: 60000 / 490 is
// 122.449, and its columns come in as 122. So the tempo makes the rounded time last exactly one step, and no
// rounding adds up. A quarter is four columns, as the notation shows them, unless it were too long.
void MIDIFile::addTempo() {
    if (file_.tracks.empty() || !(step_ > 0.0)) return;
    const double ticks = std::clamp(roundHalfToEven(step_), 1.0, 32767.0);
    file_.ticksOfQuarter =
        std::min(static_cast<std::uint32_t>(ticks) * ColumnsOfQuarter, MostTicksOfSlowQuarter);
    const double quarter =
        std::min<double>(std::round(step_ * MicrosecondsOfMillisecond / ticks * file_.ticksOfQuarter),
                         MidiFile::LongestQuarter);
    file_.tracks.front().addTempo(0, static_cast<std::uint32_t>(quarter));
}

void MIDIFile::addEvent() {
    if (file_.tracks.empty() || track_ < 1 || isFull()) return;
    const auto track = static_cast<std::size_t>(track_);
    if (file_.tracks.size() <= track) file_.tracks.resize(track + 1);
    const std::size_t before = file_.tracks[track].size();
    file_.tracks[track].addMessage(static_cast<std::uint32_t>(std::max<int>(deltaTime_, 0)), status_, data1_,
                                   data2_);
    size_ += file_.tracks[track].size() - before;
}

} // namespace tabrova
