// Where the file of a new entry stands, by the name that the user has typed for it.
#pragma once

#include <QString>

#include <filesystem>
#include <optional>

namespace tabrova {

// Nothing for a name that no file may be given: it is refused as a failing file system would refuse it.
std::optional<std::filesystem::path> newEntryPath(const std::filesystem::path& folder, const QString& name);

} // namespace tabrova
