// The MIDI output ports of the system, of every kind of port that was built in. Each kind has a thread on
// which its service is talked to, so that one that hangs holds up neither the window nor the other kinds.
#pragma once

#include "sound/devices/call_queue.h"
#include "sound/devices/port_connection.h"

#include <deque>
#include <mutex>

namespace tabrova {

class MidiPorts {
  public:
    explicit MidiPorts(const std::vector<RtMidi::Api>& kinds = systemPortKinds(),
                       ConnectToPorts connect = connectToSystemPorts);
    ~MidiPorts();

    // Asks the system afresh. A kind of port whose service does not run, or does not answer, has none.
    void list();
    int count() const { return static_cast<int>(ports_.size()); }
    // std::nullopt for a number outside the list and for a port that does not tell its name.
    std::optional<QString> name(int number) const;

    // 0 or an error code, which text() explains. A port that does not answer in time opens later: what is
    // sent meanwhile follows then, and if the opening fails, the next send fails.
    int open(int number);
    void close();
    // Messages go out in the order of the calls. An error is told by the next call; a port whose service
    // hangs drops what it is sent.
    int send(const ShortMessage& message);
    QString text() const { return QString::fromStdString(trouble_); }

    // False if a service still keeps a call after that time.
    bool settles(std::chrono::milliseconds limit);

  private:
    struct Kind {
        explicit Kind(RtMidi::Api kind) : api(kind) {}
        RtMidi::Api api;
        CallQueue calls;
    };
    struct Port {
        Kind* kind;
        unsigned number;
        std::string name;
    };
    // What the calls on a port share. `connection` belongs to the calls' thread.
    struct OpenPort {
        std::unique_ptr<PortConnection> connection;
        void fail(std::string why);
        std::optional<std::string> failure() const;

      private:
        mutable std::mutex mutex_;
        std::optional<std::string> failure_;
    };
    using Names = std::vector<std::string>;
    std::shared_ptr<Names> askForNames(Kind& kind);
    int failed(std::string why);

    ConnectToPorts connect_;
    std::deque<Kind> kinds_; // in the order of the list
    std::vector<Port> ports_;
    std::shared_ptr<OpenPort> open_;
    CallQueue* openCalls_ = nullptr; // of the open port's kind
    std::string trouble_;
};

} // namespace tabrova
