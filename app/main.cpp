// The program: `tabrova [DOCUMENT]`.
#include "app/program.h"
#include "core/shell/frmMain.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    tabrova::prepareToolkit();
    QApplication application(argc, argv);
    tabrova::DesktopMessageBoxes boxes;
    tabrova::DesktopFileChooser files;
    tabrova::DesktopAddressOpener addresses;
    tabrova::DesktopSettingsStore settings;
    tabrova::DesktopTextPrinter printer;
    tabrova::SilentMidiDevice midi;
    tabrova::TimerList timers;
    tabrova::Services services{boxes,
                               files,
                               addresses,
                               settings,
                               printer,
                               midi,
                               timers,
                               tabrova::ownFolder(),
                               [] { std::_Exit(1); }};
    tabrova::frmMain window(services);
    window.resizeClient(1000, 700);
    window.show();
    // A path with blanks may come in pieces.
    window.Form_Load(QApplication::arguments().mid(1).join(' '), tabrova::frmMain::Splash::AsSettingsSay);
    return QApplication::exec();
}
