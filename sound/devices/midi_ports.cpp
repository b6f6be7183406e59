#include "sound/devices/midi_ports.h"

#include "sound/devices/quiet_libraries.h"

namespace tabrova {

namespace {

constexpr int PortFailed = 2;

} // namespace

void MidiPorts::OpenPort::fail(std::string why) {
    const std::lock_guard lock(mutex_);
    failure_ = std::move(why);
}

std::optional<std::string> MidiPorts::OpenPort::failure() const {
    const std::lock_guard lock(mutex_);
    return failure_;
}

MidiPorts::MidiPorts(const std::vector<RtMidi::Api>& kinds, ConnectToPorts connect)
    : connect_(std::move(connect)) {
    silenceSoundLibraries();
    for (const RtMidi::Api kind : kinds)
        kinds_.emplace_back(kind);
}

MidiPorts::~MidiPorts() { close(); }

void MidiPorts::list() {
    ports_.clear();
    for (Kind& kind : kinds_)
        listKind(kind);
}

void MidiPorts::listKind(Kind& kind) {
    const auto names = std::make_shared<std::vector<std::string>>();
    kind.calls.post([api = kind.api, names, connect = connect_] {
        const auto connection = connect(api);
        const unsigned count = connection ? connection->count() : 0;
        for (unsigned number = 0; number < count; ++number)
            names->push_back(connection->name(number));
    });
    if (!kind.calls.finishes(AnswerTime)) return;
    for (unsigned number = 0; number < names->size(); ++number)
        ports_.push_back({&kind, number, (*names)[number]});
}

std::optional<QString> MidiPorts::name(int number) const {
    if (number < 0 || number >= count()) return std::nullopt;
    const std::string& text = ports_[static_cast<std::size_t>(number)].name;
    return text.empty() ? std::nullopt : std::optional<QString>(QString::fromStdString(text));
}

int MidiPorts::failed(std::string why) {
    trouble_ = std::move(why);
    return PortFailed;
}

int MidiPorts::open(int number) {
    close();
    if (number < 0 || number >= count()) return failed({});
    const Port& port = ports_[static_cast<std::size_t>(number)];
    CallQueue& calls = port.kind->calls;
    const auto opened = std::make_shared<OpenPort>();
    calls.post([opened, api = port.kind->api, place = port.number, connect = connect_] {
        auto connection = connect(api);
        if (!connection) return opened->fail({});
        if (!connection->open(place)) return opened->fail(connection->trouble());
        opened->connection = std::move(connection);
    });
    calls.finishes(AnswerTime);
    if (const auto why = opened->failure()) return failed(*why);
    open_ = opened;
    openCalls_ = &calls;
    return 0;
}

void MidiPorts::close() {
    if (!open_) return;
    openCalls_->post([port = std::exchange(open_, nullptr)] { port->connection.reset(); });
    openCalls_->finishes(AnswerTime);
}

int MidiPorts::send(const ShortMessage& message) {
    if (!open_) return failed({});
    if (const auto why = open_->failure()) return failed(*why);
    if (openCalls_->hangs()) return 0;
    openCalls_->post([port = open_, message] {
        if (port->connection && !port->connection->send(message)) port->fail(port->connection->trouble());
    });
    return 0;
}

bool MidiPorts::settles(std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    bool settled = true;
    for (Kind& kind : kinds_) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        settled = kind.calls.finishes(std::max(left, std::chrono::milliseconds(0))) && settled;
    }
    return settled;
}

} // namespace tabrova
