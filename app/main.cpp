// The program: `tabrova [DOCUMENT]`.
#include "app/program.h"
#include "core/shell/frmMain.h"
#include "forms/text_edges.h"
#include "platform/end_signals.h"
#include "platform/session_end.h"
#include "sound/devices/system_midi_device.h"

#include <QApplication>

#include <cstdlib>

namespace {

// A server is given this long to take what was sent last; the window is gone by then.
constexpr std::chrono::milliseconds EndTime(2000);

// A name of any bytes where names are bytes.
std::filesystem::path environmentPath(const char* variable) {
#ifdef Q_OS_WIN
    return tabrova::pathOf(qEnvironmentVariable(variable));
#else
    return qgetenv(variable).toStdString();
#endif
}

// Where the sound bank may stand for this user.
tabrova::SoundBankPlaces bankPlaces(const tabrova::SettingsStore& settings,
                                    const std::filesystem::path& ownFolder) {
    return {tabrova::pathOf(settings.GetSetting("Options", "SoundBank", "")),
            environmentPath("TABROVA_SOUNDFONT"), ownFolder, tabrova::systemBankFolders()};
}

// Runs the program; `code` is its exit code. False if a server has not let go of what it was asked.
bool run(int argc, char** argv, int& code) {
    tabrova::prepareToolkit();
    QApplication application(argc, argv);
    const tabrova::EndSignals endSignals([] { QCoreApplication::exit(0); });
    tabrova::DesktopMessageBoxes boxes;
    tabrova::DesktopFileChooser files;
    tabrova::DesktopAddressOpener addresses;
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
    const tabrova::SessionEnd session([&window] { return window.commands().confirmLeaving(); });
    window.resizeClient(1000, 700);
    window.show();
    // A path with blanks may come in pieces.
    window.Form_Load(QApplication::arguments().mid(1).join(' '), tabrova::frmMain::Splash::AsSettingsSay);
    code = QApplication::exec();
    window.endInOrder();
    window.hide();
    return midi.settles(EndTime);
}

} // namespace

int main(int argc, char** argv) {
    int code = 0;
    if (run(argc, argv, code)) return code;
    // A thread still waits inside a library: nothing may wait for it, neither a destructor nor the unloading.
    std::_Exit(code);
}
