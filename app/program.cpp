#include "app/program.h"

#include "core/program_folder.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStandardPaths>

namespace tabrova {

namespace {

std::filesystem::path pathOf(const QString& text) { return std::filesystem::path(text.toStdU16String()); }

} // namespace

void prepareToolkit() {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setApplicationName("Tabrova");
}

std::filesystem::path sharedDataFolder() {
    const std::filesystem::path executable = pathOf(QCoreApplication::applicationDirPath());
    for (const auto& candidate : {executable / "data", executable / ".." / "share" / "tabrova"}) {
        std::error_code failed;
        if (std::filesystem::is_directory(candidate, failed)) return candidate;
    }
    return {};
}

std::filesystem::path ownFolder() {
    ProgramFolderSources sources;
    const QString home = qEnvironmentVariable("TABROVA_HOME");
    if (!home.isEmpty()) sources.home = pathOf(home);
    sources.executableFolder = pathOf(QCoreApplication::applicationDirPath());
    sources.userDataFolder =
        pathOf(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) / "tabrova";
    sources.sharedData = sharedDataFolder();
    return programFolder(sources);
}

} // namespace tabrova
