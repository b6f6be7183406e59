#include "platform/midi_device.h"

namespace tabrova {

namespace {

constexpr int InvalidHandle = 5;

} // namespace

std::optional<QString> RecordingMidiDevice::midiOutGetDevCapsA(int id) const {
    if (id == MidiMapperId) return "Recording mapper";
    return id == 0 ? std::optional<QString>("Recording device") : std::nullopt;
}

int RecordingMidiDevice::midiOutOpen(std::uint32_t& handle, int) {
    const int code = result(Operation::Open);
    if (code == 0) handle = 1;
    return code;
}

int RecordingMidiDevice::midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) {
    if (handle == 0) return InvalidHandle;
    const int code = result(Operation::Send);
    if (code == 0) messages_.push_back(message);
    return code;
}

QString RecordingMidiDevice::midiOutGetErrorTextA(int code) const {
    return QString("recorded failure %1").arg(code);
}

} // namespace tabrova
