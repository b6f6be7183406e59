// The program: `tabrova [DOCUMENT]`.
#include "app/command_line.h"
#include "app/program.h"
#include "platform/desktop_services.h"
#include "platform/end_signals.h"
#include "platform/paths.h"
#include "platform/session_end.h"
#include "shell/window_place.h"
#include "sound/devices/system_midi_device.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

namespace {

// A server is given this long to take what was sent last; the window is gone by then.
constexpr std::chrono::milliseconds EndTime(2000);

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

tabrova::CommandLine read(int argc, char** argv) {
    return tabrova::readCommandLine(tabrova::commandLineWords(argc, argv), tabrova::isThere);
}

// In the windows' frames and in the task bar; a desktop takes its own from the name of the program's entry.
void showProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icon/tabrova-%1.png").arg(size), {size, size});
    QApplication::setWindowIcon(icon);
    QGuiApplication::setDesktopFileName("tabrova");
}

// Runs the program; `code` is its exit code. False if a server has not let go of what it was asked.
bool run(int argc, char** argv, int& code) {
    tabrova::prepareToolkit();
    QApplication application(argc, argv);
    showProgramIcon();
    const tabrova::EndSignals endSignals([] { QCoreApplication::exit(0); });
    tabrova::keepToolkitInsideHome();
    tabrova::DesktopSettingsStore settings;
    const std::filesystem::path folder = tabrova::ownFolder();
    tabrova::FluidSynthesizer synthesizer(bankPlaces(settings, folder));
    tabrova::SystemMidiDevice midi(synthesizer);
    tabrova::DesktopServices desktop;
    tabrova::Services services = desktop.services(settings, midi, synthesizer, folder, [] { std::_Exit(1); });
    tabrova::frmMain window(services);
    const tabrova::SessionEnd session([&window] { return window.commands().documents.confirmLeaving(); });
    tabrova::WindowPlace place(window, settings);
    place.restore();
    window.show();
    // Without the words that were the toolkit's.
    const tabrova::CommandLine commandLine = read(argc, argv);
    tellTerminal(commandLine);
    window.Form_Load(commandLine.document, tabrova::frmMain::Splash::AsSettingsSay);
    place.restoreViews();
    window.ending = [&place] { place.remember(); };
    code = QApplication::exec();
    window.endInOrder();
    window.hide();
    return midi.settles(EndTime);
}

} // namespace

int main(int argc, char** argv) {
    // Answered before there is an application object, which needs a display.
    const tabrova::CommandLine commandLine = read(argc, argv);
    if (commandLine.exitCode) return tellTerminal(commandLine);
    int code = 0;
    if (run(argc, argv, code)) return code;
    // A thread still waits inside a library: nothing may wait for it, neither a destructor nor the unloading.
    std::_Exit(code);
}
