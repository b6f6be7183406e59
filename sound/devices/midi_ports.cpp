#include "sound/devices/midi_ports.h"

#include "sound/devices/quiet_libraries.h"

namespace tabrova {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int PortFailed = 2;
// A kind that is not listed is not there for the whole run, so a busy machine gets more than a moment; the
// list is made once, at the start.
constexpr std::chrono::milliseconds ListTime(700);

std::chrono::milliseconds timeLeft(Clock::time_point end) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
    return std::max(left, std::chrono::milliseconds(0));
}

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

// All kinds are asked at once, so that they share the time.
void MidiPorts::list() {
    ports_.clear();
    std::vector<std::shared_ptr<Names>> found;
    for (Kind& kind : kinds_)
        found.push_back(askForNames(kind));
    const auto end = Clock::now() + ListTime;
    for (std::size_t at = 0; at < found.size(); ++at) {
        if (!kinds_[at].calls.finishes(timeLeft(end))) continue;
        for (unsigned number = 0; number < found[at]->size(); ++number)
            ports_.push_back({&kinds_[at], number, (*found[at])[number]});
    }
}

std::shared_ptr<MidiPorts::Names> MidiPorts::askForNames(Kind& kind) {
    auto names = std::make_shared<Names>();
    kind.calls.post([api = kind.api, names, connect = connect_] {
        const auto connection = connect(api);
        const unsigned count = connection ? connection->count() : 0;
        for (unsigned number = 0; number < count; ++number)
            names->push_back(connection->name(number));
    });
    return names;
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
    const auto end = Clock::now() + limit;
    bool settled = true;
    for (Kind& kind : kinds_)
        settled = kind.calls.finishes(timeLeft(end)) && settled;
    return settled;
}

} // namespace tabrova
