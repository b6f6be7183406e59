#include "forms/entry_path.h"

#include "core/files/entry_name.h"
#include "platform/paths.h"

namespace tabrova {

std::optional<std::filesystem::path> newEntryPath(const std::filesystem::path& folder, const QString& name) {
    if (!isNewEntryName(name.toStdU16String())) return std::nullopt;
    return folder / pathOf(name);
}

} // namespace tabrova
