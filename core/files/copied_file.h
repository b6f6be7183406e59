// A file that the user takes into one of the program's own folders.
#pragma once

#include <filesystem>

namespace tabrova {

// Puts a copy of the regular file in the place of `to`, which stays as it is until the copy is whole. A link
// there is replaced and not followed; a folder, a pipe or a device stays. A file that is copied onto itself
// is left alone. False if there is no copy.
bool copyRegularFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tabrova
