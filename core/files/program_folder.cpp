#include "core/files/program_folder.h"

namespace tabrova {

namespace fs = std::filesystem;

namespace {

enum class Wanted { AllFiles, FilesThatWereLeftEmpty };

// A file of its own, not one that a link leads to.
bool isEmptyFile(const fs::path& file) {
    std::error_code failed;
    return fs::symlink_status(file, failed).type() == fs::file_type::regular &&
           fs::file_size(file, failed) == 0 && !failed;
}

// A copy that fails leaves nothing behind.
void copyOver(const fs::path& from, const fs::path& to) {
    std::error_code failed, passedOver;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, failed);
    if (failed) fs::remove(to, passedOver);
}

void takeFile(const fs::path& from, const fs::path& to, Wanted wanted) {
    std::error_code failed;
    const bool missing = fs::symlink_status(to, failed).type() == fs::file_type::not_found;
    if (isEmptyFile(to) ? !isEmptyFile(from) : missing && wanted == Wanted::AllFiles) copyOver(from, to);
}

// Entry by entry: one that cannot be copied does not stop the others.
void take(const fs::path& from, const fs::path& to, Wanted wanted) {
    std::error_code failed;
    for (fs::recursive_directory_iterator entry(from, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code passedOver;
        const fs::path target = to / entry->path().lexically_relative(from);
        if (!entry->is_directory(passedOver)) {
            takeFile(entry->path(), target, wanted);
        } else if (wanted == Wanted::AllFiles) {
            fs::create_directory(target, passedOver);
        }
    }
}

// What a later version of the program brought. Whoever wants nothing of it empties the folder and keeps it.
void takeMissingFolders(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    for (fs::directory_iterator entry(from, failed), end; !failed && entry != end; entry.increment(failed)) {
        std::error_code passedOver;
        const fs::path target = to / entry->path().filename();
        if (entry->is_directory(passedOver) &&
            fs::symlink_status(target, passedOver).type() == fs::file_type::not_found)
            fillFromSharedData(entry->path(), target);
    }
}

// No file in it, or in any folder of it, has ever been written to.
bool isUnused(const fs::path& folder) {
    std::error_code failed;
    for (fs::recursive_directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code unknown;
        if (!entry->is_directory(unknown) && !isEmptyFile(entry->path())) return false;
    }
    return true;
}

} // namespace

void fillFromSharedData(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::create_directories(to, failed);
    take(from, to, Wanted::AllFiles);
}

fs::path programFolder(const ProgramFolderSources& sources) {
    std::error_code failed;
    if (sources.home) return *sources.home;
    if (fs::is_regular_file(sources.executableFolder / "portable", failed)) return sources.executableFolder;
    const fs::path& folder = sources.userDataFolder;
    if (isUnused(folder)) {
        fillFromSharedData(sources.sharedData, folder);
    } else {
        takeMissingFolders(sources.sharedData, folder);
        take(sources.sharedData, folder, Wanted::FilesThatWereLeftEmpty);
    }
    return folder;
}

} // namespace tabrova
