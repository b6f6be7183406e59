#include "core/files/copied_file.h"

#include "core/files/regular_file.h"

#include <string>

namespace tabrova {

namespace fs = std::filesystem;

namespace {

constexpr int MostAttempts = 100;

// A place beside the file where nothing stands, whatever the user keeps there; empty if there is none. Its
// name is short, as that of the file may be as long as names can be.
fs::path freePlaceBeside(const fs::path& file) {
    std::error_code failed;
    for (int attempt = 0; attempt < MostAttempts; ++attempt) {
        const fs::path place = file.parent_path() / (".copy" + std::to_string(attempt));
        if (fs::symlink_status(place, failed).type() == fs::file_type::not_found) return place;
    }
    return {};
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
    const fs::path part = freePlaceBeside(to);
    if (!canBeReplaced(to) || part.empty()) return false;
    if (fs::copy_file(from, part, failed)) {
        fs::rename(part, to, failed);
        if (!failed) return true;
    }
    std::error_code passedOver;
    fs::remove(part, passedOver);
    return false;
}

} // namespace tabrova
