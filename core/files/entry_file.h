// The small files that stand for the entries of a folder, such as a chord or a tuning: the file's name is the
// entry's name, its one line the entry.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tabrova {

// The first text item, as one input statement reads it: blanks before it are passed over, and it goes up to
// the first line end or the first comma outside double quotes. Of an item in double quotes it is what stands
// between them.
std::string_view firstItem(std::string_view text);
// The same of a text that begins with the item: blanks before it belong to it.
std::string_view itemAt(std::string_view text);

// That of the file, of which at most a megabyte is looked at. Nothing if the file is not there, cannot be
// read, is no regular file or has no bytes.
std::optional<std::string> readFirstItem(const std::filesystem::path& file);
// The same in UTF-8, of a file whose text is stored as `core/text/stored_text.h` tells.
std::optional<std::string> readFirstItemText(const std::filesystem::path& file);

// Makes or replaces the file, which then holds the line and CR LF behind it. A link is replaced and not
// followed. False if that fails, as it does for a folder, a pipe or a device; a file that could be written
// only in part is removed. A file that holds the very line already is not touched.
bool writeEntryFile(const std::filesystem::path& file, std::string_view line);

// Removes the file or the link, never a folder or what it holds. Failures are passed over.
void removeEntryFile(const std::filesystem::path& file);

} // namespace tabrova
