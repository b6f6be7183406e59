#include "sound/devices/port_connection.h"

#include "sound/devices/quiet_libraries.h"

#include <chrono>
#include <thread>

namespace tabrova {

namespace {

constexpr char ClientName[] = "Tabrova";

// A JACK port that goes takes along what the server has not yet passed on: the last messages stay away unless
// the port waits for a period or two.
constexpr std::chrono::milliseconds PassingOn(100);

void keepTrouble(RtMidiError::Type type, const std::string& text, void* trouble) {
    if (type != RtMidiError::WARNING && type != RtMidiError::DEBUG_WARNING)
        *static_cast<std::string*>(trouble) = text;
}

class SystemPortConnection : public PortConnection {
  public:
    // Throws what the library throws if there is no service of this kind.
    explicit SystemPortConnection(RtMidi::Api kind) : kind_(kind), out_(kind, ClientName) {
        out_.setErrorCallback(keepTrouble, &trouble_);
    }

    ~SystemPortConnection() override {
        if (kind_ == RtMidi::UNIX_JACK) std::this_thread::sleep_until(lastSent_ + PassingOn);
    }

    unsigned count() override { return out_.getPortCount(); }
    std::string name(unsigned number) override { return out_.getPortName(number); }
    bool open(unsigned number) override {
        out_.openPort(number, ClientName);
        return trouble_.empty() && out_.isPortOpen();
    }
    bool send(const ShortMessage& message) override {
        lastSent_ = std::chrono::steady_clock::now();
        out_.sendMessage(message.data(), bytesForPort(kind_, message));
        return trouble_.empty();
    }
    std::string trouble() const override { return trouble_; }

  private:
    RtMidi::Api kind_;
    std::string trouble_;
    std::chrono::steady_clock::time_point lastSent_;
    RtMidiOut out_;
};

} // namespace

std::unique_ptr<PortConnection> connectToSystemPorts(RtMidi::Api kind) {
    const QuietErrorStream quiet;
    try {
        return std::make_unique<SystemPortConnection>(kind);
    } catch (const RtMidiError&) {
        return nullptr;
    }
}

std::vector<RtMidi::Api> systemPortKinds() {
    std::vector<RtMidi::Api> kinds;
    RtMidi::getCompiledApi(kinds);
    std::erase(kinds, RtMidi::RTMIDI_DUMMY);
    return kinds;
}

std::size_t bytesForPort(RtMidi::Api kind, const ShortMessage& message) {
    const int status = message[0] & 0xF0;
    const bool twoBytes = status == 0xC0 || status == 0xD0;
    const bool wholeEvents = kind == RtMidi::LINUX_ALSA || kind == RtMidi::MACOSX_CORE;
    return twoBytes && wholeEvents ? 2 : message.size();
}

} // namespace tabrova
