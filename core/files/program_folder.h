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
// which is made and filled from the shared data as long as nothing was ever written there. Later on only
// folders that are missing as a whole are brought, and files of no bytes, which a full disk left behind, are
// replaced. Failures to make or fill it are passed over.
std::filesystem::path programFolder(const ProgramFolderSources& sources);

// Copies what is missing below `to`, or has no bytes there, from `from`; replaces no other file. Errors are
// passed over.
void fillFromSharedData(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tabrova
