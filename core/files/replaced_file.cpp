#include "core/files/replaced_file.h"

#include "core/files/regular_file.h"

#include <fstream>

namespace tabrova {

namespace fs = std::filesystem;

namespace {

// An old file is written over in its place and cut to the new length behind it: of all ways to replace its
// content this one asks the disk for the least room, so that it fails the least. A write that fails cuts the
// file where it came to. A file that can only be written, or is not there, is opened afresh.
template <class Write>
Replaced replaceBy(const fs::path& path, const Write& write) {
    if (isSpecialFile(path)) return Replaced::InPart;
    std::error_code failed;
    std::ofstream file;
    // The stream holds nothing back, so that its position is that of the file also behind a write that
    // failed.
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(path, std::ios::binary | std::ios::in);
    if (!file) file.open(path, std::ios::binary | std::ios::trunc);
    if (!file) return Replaced::NotOpened;
    const bool written = write(file);
    file.clear();
    const auto end = file.tellp();
    file.close();
    if (end >= 0) fs::resize_file(path, static_cast<std::uintmax_t>(end), failed);
    return written && !failed ? Replaced::Whole : Replaced::InPart;
}

} // namespace

Replaced replaceFile(const fs::path& path, const FileText& text) {
    return replaceBy(path, [&](std::ostream& file) { return text.writeTo(file); });
}

Replaced replaceFile(const fs::path& path, std::string_view bytes) {
    return replaceBy(path, [&](std::ostream& file) {
        return file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush().good();
    });
}

bool makeRoomForFile(const fs::path& path) {
    std::error_code failed;
    const fs::file_status there = fs::symlink_status(path, failed);
    if (fs::is_symlink(there)) return fs::remove(path, failed);
    return there.type() == fs::file_type::not_found || fs::is_regular_file(there);
}

} // namespace tabrova
