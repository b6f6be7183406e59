// One connection to the service behind a kind of MIDI port. Each of these calls may wait for that service.
#pragma once

#include "platform/midi_device.h"

#include <RtMidi.h>

#include <functional>
#include <memory>
#include <string>

namespace tabrova {

class PortConnection {
  public:
    virtual ~PortConnection() = default;
    virtual unsigned count() = 0;
    virtual std::string name(unsigned number) = 0;
    virtual bool open(unsigned number) = 0;
    // False if it failed; trouble() tells why.
    virtual bool send(const ShortMessage& message) = 0;
    virtual std::string trouble() const = 0;
};

// Null where the service of this kind does not run.
using ConnectToPorts = std::function<std::unique_ptr<PortConnection>(RtMidi::Api kind)>;

std::unique_ptr<PortConnection> connectToSystemPorts(RtMidi::Api kind);
std::vector<RtMidi::Api> systemPortKinds();

// What a port of this kind is given of a short message. The sequencers that take whole events read a byte
// behind a message of two bytes as another message; the others get all three.
std::size_t bytesForPort(RtMidi::Api kind, const ShortMessage& message);

} // namespace tabrova
