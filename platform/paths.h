// Names of files and folders as the toolkit's texts, and back. A name is bytes to the system; bytes that are
// no UTF-8 come through both ways, each as a lone half of a surrogate pair in the text.
#pragma once

#include <QString>

#include <filesystem>

namespace tabrova {

// Never fails, whatever bytes a name holds.
QString textOf(const std::filesystem::path& path);
// The name that `textOf` was given. A text of any other kind becomes UTF-8.
std::filesystem::path pathOf(const QString& text);

// What an environment variable names; empty if it is not set.
std::filesystem::path environmentPath(const char* variable);

// The folder that holds the data folders of this user's programs.
std::filesystem::path userDataFolder();

} // namespace tabrova
