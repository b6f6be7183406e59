// The device layer under all sound: list the MIDI outputs, open one, close it, send three bytes, tell an
// error. A result of 0 is success; any other is an error code that errorText explains.
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace tabrova {

// The mapper: the device that serves when none is chosen.
constexpr int MidiMapperId = -1;

using ShortMessage = std::array<std::uint8_t, 3>;

class MidiDevice {
  public:
    virtual ~MidiDevice() = default;
    virtual int deviceCount() const = 0;
    // std::nullopt for a device that does not tell its capabilities; MidiMapperId is asked for like any
    // other.
    virtual std::optional<QString> deviceName(int id) const = 0;
    virtual int open(int id) = 0;
    virtual int close() = 0;
    virtual int send(const ShortMessage& message) = 0;
    virtual QString errorText(int code) const = 0;
};

// Takes every message and sounds nothing.
class SilentMidiDevice : public MidiDevice {
  public:
    int deviceCount() const override { return 0; }
    std::optional<QString> deviceName(int id) const override;
    int open(int) override { return 0; }
    int close() override { return 0; }
    int send(const ShortMessage&) override { return 0; }
    QString errorText(int) const override { return {}; }
};

// Keeps the messages; each kind of operation can be made to fail.
class RecordingMidiDevice : public MidiDevice {
  public:
    enum class Operation { Open, Close, Send };

    int deviceCount() const override { return 1; }
    std::optional<QString> deviceName(int id) const override;
    int open(int) override { return result(Operation::Open); }
    int close() override { return result(Operation::Close); }
    int send(const ShortMessage& message) override;
    QString errorText(int code) const override;

    void setFailing(Operation operation, bool failing) {
        failing_[static_cast<std::size_t>(operation)] = failing;
    }
    // The messages since the last call.
    std::vector<ShortMessage> take() { return std::exchange(messages_, {}); }

  private:
    int result(Operation operation) const { return failing_[static_cast<std::size_t>(operation)] ? 1 : 0; }

    std::array<bool, 3> failing_{};
    std::vector<ShortMessage> messages_;
};

} // namespace tabrova
