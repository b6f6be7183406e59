#include "sound/midi_output.h"

namespace tabrova {

namespace {

constexpr int StatusNoteOn = 0x90;
constexpr int StatusController = 0xB0;
constexpr int StatusProgram = 0xC0;
constexpr int ControllerBank = 0;
constexpr int ControllerAllSoundOff = 120;
constexpr int ControllerAllNotesOff = 123;
constexpr int LastChannelSilenced = 8;

} // namespace

std::uint32_t PackShortMessage(int status, int data1, int data2) {
    return static_cast<std::uint32_t>(status) + static_cast<std::uint32_t>(data1) * 256u +
           static_cast<std::uint32_t>(data2) * 65536u;
}

MidiOutput::MidiOutput(MidiDevice& device, std::function<void(int)> failed)
    : device_(device), failed_(std::move(failed)) {}

void MidiOutput::SendShortMessage(int status, int data1, int data2) {
    const std::uint32_t packed = PackShortMessage(status, data1, data2);
    const ShortMessage bytes = {static_cast<std::uint8_t>(packed), static_cast<std::uint8_t>(packed >> 8),
                                static_cast<std::uint8_t>(packed >> 16)};
    if (dropping_) return;
    const int code = device_.midiOutShortMsg(MidiOutputHandle, bytes);
    if (code != 0) failed_(code);
}

void MidiOutput::NoteOn(int channel, int note, int velocity) {
    SendShortMessage(StatusNoteOn + channel, note, velocity);
}

void MidiOutput::NoteOff(int channel, int note) { SendShortMessage(StatusNoteOn + channel, note, 0); }

void MidiOutput::ControlChange(int channel, int controller, int value) {
    SendShortMessage(StatusController + channel, controller, value);
}

void MidiOutput::ProgramChange(int channel, int program) {
    ControlChange(channel, ControllerBank, BankValue);
    SendShortMessage(StatusProgram + channel, program, 0);
}

void MidiOutput::ChannelNotesOff(int channel) {
    ControlChange(channel, ControllerAllSoundOff, 0);
    ControlChange(channel, ControllerAllNotesOff, 0);
}

void MidiOutput::AllNotesOff() {
    for (int channel = 0; channel <= LastChannelSilenced; ++channel)
        ChannelNotesOff(channel);
}

std::vector<MidiDeviceRow> MidiOutput::FillDeviceList() {
    std::vector<MidiDeviceRow> rows;
    const auto add = [&](int id) {
        if (const auto name = device_.midiOutGetDevCapsA(id)) rows.push_back({*name, id});
    };
    add(MidiMapperId);
    const int count = device_.midiOutGetNumDevs();
    for (int id = 0; id < count; ++id)
        add(id);
    return rows;
}

bool MidiOutput::OpenMidiDevice(int id) {
    CloseMidiDevice();
    dropping_ = false;
    const int code = device_.midiOutOpen(MidiOutputHandle, id);
    if (code != 0) failed_(code);
    return MidiOutputHandle != 0;
}

void MidiOutput::CloseMidiDevice() {
    if (MidiOutputHandle == 0) return;
    const int code = device_.midiOutClose(MidiOutputHandle);
    if (code != 0) failed_(code);
    MidiOutputHandle = 0;
}

} // namespace tabrova
