// The MIDI output ports of the system, of every kind of port that was built in.
#pragma once

#include "platform/midi_device.h"

#include <RtMidi.h>

#include <memory>
#include <string>

namespace tabrova {

class MidiPorts {
  public:
    MidiPorts();
    ~MidiPorts();

    // Asks the system afresh. A kind of port whose service does not run has none.
    void list();
    int count() const { return static_cast<int>(ports_.size()); }
    // std::nullopt for a number outside the list and for a port that does not tell its name.
    std::optional<QString> name(int number) const;

    // 0 or an error code, which text() explains.
    int open(int number);
    void close();
    int send(const ShortMessage& message);
    QString text() const { return QString::fromStdString(trouble_); }

  private:
    struct Port {
        RtMidi::Api kind;
        unsigned number;
        std::string name;
    };
    void listKind(RtMidi::Api kind);
    std::unique_ptr<RtMidiOut> connection(RtMidi::Api kind);

    std::vector<Port> ports_;
    std::unique_ptr<RtMidiOut> open_;
    std::string trouble_;
};

// What a port of this kind is given of a short message. The sequencers that take whole events read a byte
// behind a message of two bytes as another message; the others get all three.
std::size_t bytesForPort(RtMidi::Api kind, const ShortMessage& message);

} // namespace tabrova
