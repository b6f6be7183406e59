// The device layer under all sound: list the MIDI outputs, open one, close it, send three bytes, tell an
// error. A result of 0 is success; any other is an error code that midiOutGetErrorTextA explains.
#pragma once

#include <QString>

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
    // Devices besides the mapper; their ids are 0 up to this number less one. Asks the system afresh.
    virtual int midiOutGetNumDevs() = 0;
    // The product name; std::nullopt for a device that does not tell its capabilities. MidiMapperId is asked
    // for like any other.
    virtual std::optional<QString> midiOutGetDevCapsA(int id) const = 0;
    // On success `handle` is not 0.
    virtual int midiOutOpen(std::uint32_t& handle, int id) = 0;
    virtual int midiOutClose(std::uint32_t handle) = 0;
    // A handle of 0 is an error.
    virtual int midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) = 0;
    virtual QString midiOutGetErrorTextA(int code) const = 0;
};

// Keeps the messages; each kind of operation can be made to fail.
class RecordingMidiDevice : public MidiDevice {
  public:
    enum class Operation { Open, Close, Send };

    int midiOutGetNumDevs() override { return 1; }
    std::optional<QString> midiOutGetDevCapsA(int id) const override;
    int midiOutOpen(std::uint32_t& handle, int id) override;
    int midiOutClose(std::uint32_t) override { return result(Operation::Close); }
    int midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) override;
    QString midiOutGetErrorTextA(int code) const override;

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
