// The program: `tabrova [DOCUMENT]`.
#include "app/program.h"
#include "core/shell/frmMain.h"
#include "sound/devices/system_midi_device.h"

#include <QApplication>

#include <cstdlib>

namespace {

// Where the sound bank may stand for this user.
tabrova::SoundBankPlaces bankPlaces(const tabrova::SettingsStore& settings,
                                    const std::filesystem::path& ownFolder) {
    const auto path = [](const QString& text) { return std::filesystem::path(text.toStdU16String()); };
    return {path(settings.GetSetting("Options", "SoundBank", "")),
            path(qEnvironmentVariable("TABROVA_SOUNDFONT")), ownFolder, tabrova::systemBankFolders()};
}

} // namespace

int main(int argc, char** argv) {
    tabrova::prepareToolkit();
    QApplication application(argc, argv);
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
    window.resizeClient(1000, 700);
    window.show();
    // A path with blanks may come in pieces.
    window.Form_Load(QApplication::arguments().mid(1).join(' '), tabrova::frmMain::Splash::AsSettingsSay);
    return QApplication::exec();
}
