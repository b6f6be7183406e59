// The control `MIDIFile`, which the export drives: numbered properties are set one by one, and a command
// makes it act on what they hold. A property keeps its value until it is set again; a value that it cannot
// take leaves it as it was. Its failures are not reported.
#pragma once

#include "sound/midi_file.h"

#include <filesystem>
#include <string_view>

namespace tabrova {

class MIDIFile {
  public:
    enum class Property {
        Command = 1,    // writing it makes the control act
        Track = 8,      // number in the file, from 1
        FileName = 9,   // path of the output file
        Status = 10,    // status byte of an event
        Data1 = 11,     // first data byte: a text, a whole number or a fraction, taken as a number
        Data2 = 12,     // second data byte
        DeltaTime = 13, // between the event before and this one, in milliseconds of music
        Tempo = 16,     // milliseconds of a step, which is a column
    };
    enum class Command : std::int16_t {
        WriteAndClose = 2,
        Start = 3,
        WholeFile = 4, // what follows, such as the tempo, belongs to the file as a whole
        AddEvent = 6,
        BeginTrack = 9, // the events from here on belong to the numbered tracks
    };

    // Events beyond this many bytes are not taken: only a piece that repeats for days has so many.
    static constexpr std::size_t MostBytes = 256 * 1024 * 1024;
    explicit MIDIFile(std::size_t mostBytes = MostBytes) : mostBytes_(mostBytes) {}

    // Numbers round half to even, and those outside a byte's range take its nearest value.
    void setInteger(Property property, std::int16_t value);
    void setNumber(Property property, double value);
    void setText(Property property, std::string_view value);
    void setPath(Property property, std::filesystem::path value);
    void command(Command value) { setInteger(Property::Command, static_cast<std::int16_t>(value)); }

    const std::filesystem::path& fileName() const { return fileName_; }

    bool isFull() const { return size_ >= mostBytes_; }

    // What WriteAndClose writes.
    std::string bytes() const { return file_.bytes(); }

  private:
    void act(std::int16_t command);
    void start();
    void addTempo();
    void addEvent();

    std::size_t mostBytes_;
    MidiFile file_;
    std::size_t size_ = 0;
    std::filesystem::path fileName_;
    std::int16_t track_ = 0;
    std::uint8_t status_ = 0;
    std::uint8_t data1_ = 0;
    std::uint8_t data2_ = 0;
    std::int16_t deltaTime_ = 0;
    double step_ = 0.0;
};

} // namespace tabrova
