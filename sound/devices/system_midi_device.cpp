#include "sound/devices/system_midi_device.h"

namespace tabrova {

namespace {

constexpr int InvalidHandle = 5;
constexpr std::uint32_t SynthesizerHandle = 1;
constexpr std::uint32_t PortHandle = 2;

} // namespace

int SystemMidiDevice::midiOutGetNumDevs() {
    ports_.list();
    return ports_.count();
}

std::optional<QString> SystemMidiDevice::midiOutGetDevCapsA(int id) const {
    return id == MidiMapperId ? std::optional<QString>("Built-in Synthesizer") : ports_.name(id);
}

int SystemMidiDevice::midiOutOpen(std::uint32_t& handle, int id) {
    if (id == MidiMapperId) {
        synthesizer_.open();
        handle = SynthesizerHandle;
        return 0;
    }
    const int code = ports_.open(id);
    if (code == 0) handle = PortHandle;
    return code;
}

int SystemMidiDevice::midiOutClose(std::uint32_t handle) {
    if (handle == SynthesizerHandle) {
        synthesizer_.close();
    } else {
        ports_.close();
    }
    return 0;
}

int SystemMidiDevice::midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) {
    switch (handle) {
    case SynthesizerHandle:
        synthesizer_.send(message);
        return 0;
    case PortHandle:
        return ports_.send(message);
    default:
        return InvalidHandle;
    }
}

QString SystemMidiDevice::midiOutGetErrorTextA(int code) const {
    return code == InvalidHandle ? QString("No MIDI output is open.") : ports_.text();
}

} // namespace tabrova
