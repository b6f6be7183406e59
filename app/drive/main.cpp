// tabrova-drive: the real program, worked from a script on standard input.
#include "app/command_line.h"
#include "app/drive/driver.h"
#include "app/drive/line_queue.h"
#include "app/program.h"
#include "core/files/program_folder.h"
#include "platform/paths.h"
#include "shell/frmMain.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace {

using namespace tabrova;

constexpr int FatalStatus = 3;

void writeLine(const QJsonObject& answer) {
    std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).constData() << std::endl;
}

struct Arguments {
    QString home;
    QString settings;
    QSize size = {1000, 700};
    bool splash = false;
    QString document;
};

Arguments readArguments(const QStringList& words) {
    QCommandLineParser parser;
    parser.addOptions({{"home", "The program's own folder.", "DIR"},
                       {"settings", "Settings in this file.", "FILE.ini"},
                       {"size", "Client area of the main window.", "WxH", "1000x700"},
                       {"splash", "Show the welcome window if the settings say so."}});
    parser.addPositionalArgument("DOCUMENT", "A document to open.");
    parser.addHelpOption();
    parser.process(QStringList("tabrova-drive") + words);
    Arguments arguments;
    arguments.home = parser.value("home");
    arguments.settings = parser.value("settings");
    arguments.splash = parser.isSet("splash");
    arguments.document = readCommandLine(parser.positionalArguments(), isThere).document;
    const QStringList sides = parser.value("size").split('x');
    if (sides.size() == 2) arguments.size = {sides[0].toInt(), sides[1].toInt()};
    return arguments;
}

std::unique_ptr<SettingsStore> openSettings(const QString& file) {
    if (file.isEmpty()) return std::make_unique<MemorySettingsStore>();
    return std::make_unique<DesktopSettingsStore>(file);
}

void runCommands(Driver& driver) {
    LineQueue& lines = *new LineQueue; // its thread outlives main
    while (!driver.ended()) {
        if (const auto line = lines.take()) {
            writeLine(driver.run(*line));
        } else if (lines.ended()) {
            return;
        } else {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    prepareToolkit();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const Arguments arguments = readArguments(commandLineWords(argc, argv));
    QTemporaryDir ownHome;
    if (arguments.home.isEmpty()) fillFromSharedData(sharedDataFolder(), pathOf(ownHome.path()));

    RecordingServices recording;
    recording.settings = openSettings(arguments.settings);
    const QString home = arguments.home.isEmpty() ? ownHome.path() : arguments.home;
    Services services = recording.services(pathOf(home), [&recording, &ownHome] {
        writeLine({{"ended", true}, {"boxes", takeBoxes(recording.boxes)}});
        ownHome.remove();
        std::_Exit(FatalStatus);
    });
    int status = EXIT_SUCCESS;
    {
        frmMain window(services);
        window.resizeClient(arguments.size.width(), arguments.size.height());
        window.show();
        window.Form_Load(arguments.document,
                         arguments.splash ? frmMain::Splash::AsSettingsSay : frmMain::Splash::Never);
        QApplication::processEvents();
        Driver driver(window, recording);
        runCommands(driver);
    }
    ownHome.remove();
    std::cout.flush();
    // The reading thread may still wait for input.
    std::_Exit(status);
}
