#include "core/program_folder.h"

namespace tabrova {

namespace fs = std::filesystem;

void fillFromSharedData(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::create_directories(to, failed);
    // Entry by entry: one that cannot be copied does not stop the others.
    for (fs::recursive_directory_iterator entry(from, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code passedOver;
        const fs::path target = to / entry->path().lexically_relative(from);
        if (entry->is_directory(passedOver)) {
            fs::create_directory(target, passedOver);
        } else {
            fs::copy_file(entry->path(), target, fs::copy_options::skip_existing, passedOver);
        }
    }
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
