#include "platform/midi_device.h"

namespace tabrova {

std::optional<QString> SilentMidiDevice::deviceName(int id) const {
    return id == MidiMapperId ? std::optional<QString>("Silent output") : std::nullopt;
}

std::optional<QString> RecordingMidiDevice::deviceName(int id) const {
    if (id == MidiMapperId) return "Recording mapper";
    return id == 0 ? std::optional<QString>("Recording device") : std::nullopt;
}

int RecordingMidiDevice::send(const ShortMessage& message) {
    const int code = result(Operation::Send);
    if (code == 0) messages_.push_back(message);
    return code;
}

QString RecordingMidiDevice::errorText(int code) const { return QString("recorded failure %1").arg(code); }

} // namespace tabrova
