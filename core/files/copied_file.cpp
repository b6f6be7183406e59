#include "core/files/copied_file.h"

#include "core/files/regular_file.h"

namespace tabrova {

namespace fs = std::filesystem;

namespace {

fs::path besides(const fs::path& file) {
    fs::path name = file;
    name += ".part";
    return name;
}

bool canBeReplaced(const fs::path& file) {
    std::error_code failed;
    const fs::file_status there = fs::symlink_status(file, failed);
    return fs::is_symlink(there) || fs::is_regular_file(there) || there.type() == fs::file_type::not_found;
}

} // namespace

bool copyRegularFile(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    if (!RegularFile(from)) return false;
    if (!fs::is_symlink(to, failed) && fs::equivalent(from, to, failed)) return true;
    const fs::path part = besides(to);
    if (!canBeReplaced(to) || !canBeReplaced(part)) return false;
    fs::remove(part, failed);
    if (fs::copy_file(from, part, failed)) {
        fs::rename(part, to, failed);
        if (!failed) return true;
    }
    std::error_code passedOver;
    fs::remove(part, passedOver);
    return false;
}

} // namespace tabrova
