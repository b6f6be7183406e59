// Every sound of the program goes out here as single short messages to one open device. There is no queue and
// no note bookkeeping: a caller sends a note, and somebody later sends all-notes-off. Channels count from 0,
// 9 is percussion. No argument is clipped: what the caller gives goes into the message.
#pragma once

#include "platform/midi_device.h"

#include <functional>

namespace tabrova {

struct MidiDeviceRow {
    QString name;
    int id;
};

class MidiOutput {
  public:
    // `failed` is told of every open, close or send that does not succeed.
    MidiOutput(MidiDevice& device, std::function<void(int code)> failed);

    void NoteOn(int channel, int note, int velocity);
    // A note-on of velocity 0: status 0x80 is never used.
    void NoteOff(int channel, int note);
    void ControlChange(int channel, int controller, int value);
    // Always two messages: the bank, then the program.
    void ProgramChange(int channel, int program);
    void ChannelNotesOff(int channel);
    // Channels 0 to 8: percussion and the tools' channels keep sounding.
    void AllNotesOff();

    // The mapper if there is one, then each device that tells its capabilities: a row's place in the list
    // need not be its id.
    std::vector<MidiDeviceRow> FillDeviceList();
    // False if the device did not open. An open device is closed first.
    bool OpenMidiDevice(int id);
    void CloseMidiDevice();
    // The chosen device is not there: messages are dropped, and do not fail, until a device is opened.
    void dropUntilOpened() { dropping_ = true; }

    std::uint32_t MidiOutputHandle = 0; // 0 when no device is open

    std::int16_t FixedVelocity = 127; // velocity of the tools' notes
    // Sent with controller 0 before every program change. 128 is deliberate: the byte 0x80 really goes out.
    std::int16_t BankValue = 128;

  private:
    void SendShortMessage(int status, int data1, int data2);

    MidiDevice& device_;
    std::function<void(int)> failed_;
    bool dropping_ = false;
};

// status + data1 * 256 + data2 * 65536: a value over one byte runs on into the next.
std::uint32_t PackShortMessage(int status, int data1, int data2);

} // namespace tabrova
