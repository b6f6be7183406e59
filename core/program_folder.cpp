#include "core/program_folder.h"

namespace tabrova {

namespace fs = std::filesystem;

void fillFromSharedData(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::create_directories(to, failed);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::skip_existing, failed);
}

fs::path programFolder(const ProgramFolderSources& sources) {
    std::error_code failed;
    if (sources.home) return *sources.home;
    if (fs::is_regular_file(sources.executableFolder / "portable", failed)) return sources.executableFolder;
    if (!fs::is_directory(sources.userDataFolder, failed))
        fillFromSharedData(sources.sharedData, sources.userDataFolder);
    return sources.userDataFolder;
}

} // namespace tabrova
