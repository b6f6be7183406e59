// The outside services of the program, handed down by reference: nothing below reaches for a global.
#pragma once

#include "platform/address_opener.h"
#include "platform/file_chooser.h"
#include "platform/message_boxes.h"
#include "platform/midi_device.h"
#include "platform/randomness.h"
#include "platform/settings_store.h"
#include "platform/synthesizer.h"
#include "platform/system_information.h"
#include "platform/text_printer.h"
#include "platform/timer_service.h"
#include "platform/window_timer.h"

#include <filesystem>
#include <functional>

namespace tabrova {

struct Services {
    MessageBoxes& boxes;
    FileChooser& files;
    AddressOpener& addresses;
    SystemInformation& systemInformation;
    SettingsStore& settings;
    TextPrinter& printer;
    MidiDevice& midi;
    TimerService& timerService;
    TimerList& timers;
    Synthesizer& synthesizer;
    Randomness& randomness;
    std::filesystem::path programFolder;
    // Ends the program at once, with no save and no clean-up. Does not return in the real program.
    std::function<void()> endProgram;
};

} // namespace tabrova
