// The program: `tabrova [DOCUMENT]`.
#include "app/command_line.h"
#include "app/program.h"
#include "core/shell/frmMain.h"
#include "platform/paths.h"
#include "sound/devices/system_midi_device.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

// Where the sound bank may stand for this user.
tabrova::SoundBankPlaces bankPlaces(const tabrova::SettingsStore& settings,
                                    const std::filesystem::path& ownFolder) {
    return {tabrova::pathOf(settings.GetSetting("Options", "SoundBank", "")),
            tabrova::environmentPath("TABROVA_SOUNDFONT"), ownFolder, tabrova::systemBankFolders()};
}

// An answer goes to the standard output, a complaint to the error output.
int tellTerminal(const tabrova::CommandLine& commandLine) {
    const int code = commandLine.exitCode.value_or(EXIT_FAILURE);
    std::fputs(commandLine.told.toLocal8Bit().constData(), code == EXIT_SUCCESS ? stdout : stderr);
    return code;
}

} // namespace

int main(int argc, char** argv) {
    // Answered before the application object, which needs a display.
    const tabrova::CommandLine asked =
        tabrova::readCommandLine(tabrova::commandLineWords(argc, argv), tabrova::isThere);
    if (asked.exitCode) return tellTerminal(asked);
    tabrova::prepareToolkit();
    QApplication application(argc, argv);
    tabrova::DesktopMessageBoxes boxes;
    tabrova::DesktopFileChooser files;
    tabrova::DesktopAddressOpener addresses;
    tabrova::keepToolkitInsideHome();
    tabrova::DesktopSettingsStore settings;
    tabrova::DesktopTextPrinter printer;
    const std::filesystem::path folder = tabrova::ownFolder();
    tabrova::FluidSynthesizer synthesizer(bankPlaces(settings, folder));
    tabrova::SystemMidiDevice midi(synthesizer);
    tabrova::SystemTimerService timerService;
    tabrova::TimerList timers;
    tabrova::Services services{
        boxes, files, addresses, settings, printer, midi, timerService, timers, synthesizer, folder, [] {
            std::_Exit(1);
        }};
    tabrova::frmMain window(services);
    window.resizeClient(1000, 700);
    window.show();
    // Without the words that were the toolkit's.
    const tabrova::CommandLine commandLine =
        tabrova::readCommandLine(tabrova::commandLineWords(argc, argv), tabrova::isThere);
    tellTerminal(commandLine);
    window.Form_Load(commandLine.document, tabrova::frmMain::Splash::AsSettingsSay);
    return QApplication::exec();
}
