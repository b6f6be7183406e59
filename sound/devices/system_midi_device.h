// The MIDI outputs of the machine: the mapper is the built-in synthesizer, the devices are the system's
// ports.
#pragma once

#include "sound/devices/fluid_synthesizer.h"
#include "sound/devices/midi_ports.h"

namespace tabrova {

class SystemMidiDevice : public MidiDevice {
  public:
    explicit SystemMidiDevice(FluidSynthesizer& synthesizer,
                              const std::vector<RtMidi::Api>& kinds = systemPortKinds(),
                              ConnectToPorts connect = connectToSystemPorts)
        : synthesizer_(synthesizer), ports_(kinds, std::move(connect)) {}

    int midiOutGetNumDevs() override;
    std::optional<QString> midiOutGetDevCapsA(int id) const override;
    // The synthesizer always opens: what it lacks is told by its state.
    int midiOutOpen(std::uint32_t& handle, int id) override;
    int midiOutClose(std::uint32_t handle) override;
    int midiOutShortMsg(std::uint32_t handle, const ShortMessage& message) override;
    QString midiOutGetErrorTextA(int code) const override;

    // Whether, at the end of the program, every server has let go within that time. If not, nothing may wait
    // for the threads that are left.
    bool settles(std::chrono::milliseconds limit) {
        return synthesizer_.settles(limit) && ports_.settles(limit);
    }

  private:
    FluidSynthesizer& synthesizer_;
    MidiPorts ports_;
};

} // namespace tabrova
