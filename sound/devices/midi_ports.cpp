#include "sound/devices/midi_ports.h"

#include "sound/devices/quiet_libraries.h"

namespace tabrova {

namespace {

constexpr int PortFailed = 2;
constexpr char ClientName[] = "Tabrova";

void keepTrouble(RtMidiError::Type type, const std::string& text, void* trouble) {
    if (type != RtMidiError::WARNING && type != RtMidiError::DEBUG_WARNING)
        *static_cast<std::string*>(trouble) = text;
}

} // namespace

MidiPorts::MidiPorts() { silenceSoundLibraries(); }

MidiPorts::~MidiPorts() = default;

// Null where the service of this kind does not run.
std::unique_ptr<RtMidiOut> MidiPorts::connection(RtMidi::Api kind) {
    const QuietErrorStream quiet;
    try {
        auto out = std::make_unique<RtMidiOut>(kind, ClientName);
        out->setErrorCallback(keepTrouble, &trouble_);
        return out;
    } catch (const RtMidiError& failure) {
        trouble_ = failure.getMessage();
        return nullptr;
    }
}

void MidiPorts::list() {
    ports_.clear();
    std::vector<RtMidi::Api> kinds;
    RtMidi::getCompiledApi(kinds);
    for (const RtMidi::Api kind : kinds)
        if (kind != RtMidi::RTMIDI_DUMMY) listKind(kind);
}

void MidiPorts::listKind(RtMidi::Api kind) {
    const auto out = connection(kind);
    if (!out) return;
    const unsigned count = out->getPortCount();
    for (unsigned number = 0; number < count; ++number)
        ports_.push_back({kind, number, out->getPortName(number)});
}

std::optional<QString> MidiPorts::name(int number) const {
    if (number < 0 || number >= count()) return std::nullopt;
    const std::string& text = ports_[static_cast<std::size_t>(number)].name;
    return text.empty() ? std::nullopt : std::optional<QString>(QString::fromStdString(text));
}

int MidiPorts::open(int number) {
    close();
    trouble_.clear();
    if (number < 0 || number >= count()) return PortFailed;
    const Port& port = ports_[static_cast<std::size_t>(number)];
    auto out = connection(port.kind);
    if (!out) return PortFailed;
    out->openPort(port.number, ClientName);
    if (!trouble_.empty() || !out->isPortOpen()) return PortFailed;
    open_ = std::move(out);
    return 0;
}

void MidiPorts::close() { open_.reset(); }

int MidiPorts::send(const ShortMessage& message) {
    if (!open_) return PortFailed;
    trouble_.clear();
    open_->sendMessage(message.data(), bytesForPort(open_->getCurrentApi(), message));
    return trouble_.empty() ? 0 : PortFailed;
}

std::size_t bytesForPort(RtMidi::Api kind, const ShortMessage& message) {
    const int status = message[0] & 0xF0;
    const bool twoBytes = status == 0xC0 || status == 0xD0;
    const bool wholeEvents = kind == RtMidi::LINUX_ALSA || kind == RtMidi::MACOSX_CORE;
    return twoBytes && wholeEvents ? 2 : message.size();
}

} // namespace tabrova
