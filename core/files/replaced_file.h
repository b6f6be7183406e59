// A file that the user chose to save under.
#pragma once

#include "core/files/file_text.h"

#include <filesystem>

namespace tabrova {

enum class Replaced { NotOpened, InPart, Whole };

// Replaces the file's content, or makes the file. A pipe or a device takes nothing, as if its first write had
// failed.
Replaced replaceFile(const std::filesystem::path& path, const FileText& text);
Replaced replaceFile(const std::filesystem::path& path, std::string_view bytes);

// Makes room for a file of the program's own: a link there goes, so that nothing is written where it leads.
// False if it cannot go, or if something that is no regular file stands there.
bool makeRoomForFile(const std::filesystem::path& path);

} // namespace tabrova
