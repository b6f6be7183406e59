// What a folder holds, as lists of files and folders show it.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace tabrova {

enum class EntryKind { Files, Folders };

// The names of the folder's regular files, or of its folders, that end so, without regard to the case of
// ASCII letters; in order of their bytes. A link counts as what it leads to, and pipes, devices and links
// that lead nowhere are left out. A folder that is not there or cannot be read holds nothing.
std::vector<std::filesystem::path> listEntries(const std::filesystem::path& folder, EntryKind kind,
                                               std::string_view ending = {});

} // namespace tabrova
