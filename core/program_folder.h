// The program's own folder: where its small files, the language and the instrument list stand. An installed
// program cannot write beside itself, so one rule decides for all.
#pragma once

#include <filesystem>
#include <optional>

namespace tabrova {

struct ProgramFolderSources {
    std::optional<std::filesystem::path> home; // the environment's TABROVA_HOME, if set and not empty
    std::filesystem::path executableFolder;
    std::filesystem::path userDataFolder;
    std::filesystem::path
        sharedData; // read-only files that the user's folder is first filled with; may be missing
};

// `home` if set; else the executable's folder if it holds a file `portable`; else the user's data folder,
// which is made and filled from the shared data at its first use. Failures to make or fill it are passed
// over.
std::filesystem::path programFolder(const ProgramFolderSources& sources);

// Copies what is missing below `to` from `from`; never replaces a file. Errors are passed over.
void fillFromSharedData(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tabrova
