#include "core/files/replaced_file.h"

#include "core/files/regular_file.h"

#include <fstream>

namespace tabrova {

// An old file is written over in its place and cut to the new length behind it: of all ways to replace its
// content this one asks the disk for the least room, so that it fails the least. A write that fails cuts the
// file where it came to. A file that can only be written, or is not there, is opened afresh.
Replaced replaceFile(const std::filesystem::path& path, const FileText& text) {
    if (isSpecialFile(path)) return Replaced::InPart;
    std::error_code failed;
    std::ofstream file;
    // The stream holds nothing back, so that its position is that of the file also behind a write that
    // failed.
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(path, std::ios::binary | std::ios::in);
    if (!file) file.open(path, std::ios::binary | std::ios::trunc);
    if (!file) return Replaced::NotOpened;
    const bool written = text.writeTo(file);
    file.clear();
    const auto end = file.tellp();
    file.close();
    if (end >= 0) std::filesystem::resize_file(path, static_cast<std::uintmax_t>(end), failed);
    return written && !failed ? Replaced::Whole : Replaced::InPart;
}

} // namespace tabrova
