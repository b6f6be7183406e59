// A file that the user chose to save under.
#pragma once

#include "core/files/file_text.h"

#include <filesystem>

namespace tabrova {

enum class Replaced { NotOpened, InPart, Whole };

// Replaces the file's content, or makes the file. A pipe or a device takes nothing, as if its first write had
// failed.
Replaced replaceFile(const std::filesystem::path& path, const FileText& text);

} // namespace tabrova
