#include "app/program.h"

#include "core/files/program_folder.h"
#include "platform/paths.h"

#include <QCoreApplication>
#include <QGuiApplication>

namespace tabrova {

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
    const std::filesystem::path home = environmentPath("TABROVA_HOME");
    if (!home.empty()) sources.home = home;
    sources.executableFolder = pathOf(QCoreApplication::applicationDirPath());
    sources.userDataFolder = userDataFolder() / "tabrova";
    sources.sharedData = sharedDataFolder();
    return programFolder(sources);
}

} // namespace tabrova
