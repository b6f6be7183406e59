#include "core/files/regular_file.h"

#include <algorithm>

namespace tabrova {

namespace fs = std::filesystem;

RegularFile::RegularFile(const fs::path& path, std::uintmax_t mostBytes) : std::istream(nullptr) {
    rdbuf(&buffer_);
    std::error_code failed;
    const bool regular = fs::is_regular_file(path, failed);
    const std::uintmax_t size = regular ? fs::file_size(path, failed) : 0;
    const bool readable = regular && !failed && size <= mostBytes;
    if (readable && buffer_.open(path, std::ios::in | std::ios::binary)) {
        buffer_.left = size;
    } else {
        setstate(failbit);
    }
}

std::streamsize RegularFile::Buffer::xsgetn(char* to, std::streamsize count) {
    const auto wanted = std::min(static_cast<std::uintmax_t>(std::max<std::streamsize>(count, 0)), left);
    const std::streamsize got = std::filebuf::xsgetn(to, static_cast<std::streamsize>(wanted));
    left -= static_cast<std::uintmax_t>(got);
    return got;
}

bool isSpecialFile(const fs::path& path) {
    std::error_code failed;
    return fs::is_other(path, failed);
}

} // namespace tabrova
