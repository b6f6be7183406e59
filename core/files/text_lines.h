// Reads the small text files beside the program by lines: the language and the instruments. Such files come
// from anywhere, so the reading has bounds and no failure.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tabrova {

// The lines of a file without their ends, in UTF-8: as they stand if the file is valid UTF-8, else from the
// code page. Lines end in CR LF, LF or CR. At most `mostLines` lines and four megabytes are read. None for a
// file that is not there, cannot be read or is no regular file.
std::vector<std::string> readTextLines(const std::filesystem::path& file, std::size_t mostLines);

// Puts a copy in the place of `to`. What could not be read so, and a file of more than four megabytes, is not
// copied; a copy that fails leaves no file behind.
void copyTextFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tabrova
