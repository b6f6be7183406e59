// The services of this user's desktop, but the sound's: those are the program's to choose.
#pragma once

#include "platform/services.h"

namespace tabrova {

struct DesktopServices {
    DesktopMessageBoxes boxes;
    DesktopFileChooser files;
    DesktopAddressOpener addresses;
    DesktopSystemInformation systemInformation;
    DesktopTextPrinter printer;
    SystemTimerService timerService;
    TimerList timers;
    SystemRandomness randomness;

    // What is handed in must outlive the result.
    Services services(SettingsStore& settings, MidiDevice& midi, Synthesizer& synthesizer,
                      const std::filesystem::path& folder, std::function<void()> endProgram) {
        files.rememberIn(settings);
        return Services{boxes,
                        files,
                        addresses,
                        systemInformation,
                        settings,
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
