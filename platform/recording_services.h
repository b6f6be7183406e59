// All services as the driver and the tests have them: they keep what is asked of them and reach for nothing
// outside. Time goes on as it does, and chance is real unless numbers are given.
#pragma once

#include "platform/services.h"

#include <memory>

namespace tabrova {

struct RecordingServices {
    RecordingMessageBoxes boxes;
    RecordingFileChooser files;
    RecordingAddressOpener addresses;
    RecordingSystemInformation systemInformation;
    RecordingTextPrinter printer;
    RecordingMidiDevice midi;
    RecordingSynthesizer synthesizer;
    GivenRandomness randomness;
    SystemTimerService timerService;
    TimerList timers;
    std::unique_ptr<SettingsStore> settings = std::make_unique<MemorySettingsStore>();

    Services services(const std::filesystem::path& folder, std::function<void()> endProgram) {
        return Services{boxes,
                        files,
                        addresses,
                        systemInformation,
                        *settings,
                        printer,
                        midi,
                        timerService,
                        timers,
                        synthesizer,
                        randomness,
                        folder,
                        std::move(endProgram)};
    }
};

} // namespace tabrova
