#include "core/files/entry_file.h"

#include "core/files/regular_file.h"
#include "core/files/replaced_file.h"
#include "core/text/stored_text.h"

#include <algorithm>
#include <fstream>

namespace tabrova {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MostBytes = 1024 * 1024;
constexpr std::string_view LineEnd = "\r\n";

// The file's beginning.
std::string readBytes(const fs::path& file, std::size_t most) {
    RegularFile input(file);
    if (!input) return {};
    std::string bytes(most, '\0');
    input.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(input.gcount()));
    return bytes;
}

} // namespace

// Commas in double quotes belong to the item, wherever in it the quotes stand.
std::string_view itemAt(std::string_view text) {
    bool quoted = false;
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const char character = text[end];
        if (character == '\r' || character == '\n' || (character == ',' && !quoted)) break;
        if (character == '"') quoted = !quoted;
    }
    text = text.substr(0, end);
    if (!text.starts_with('"')) return text;
    text.remove_prefix(1);
    return text.substr(0, text.find('"'));
}

std::string_view firstItem(std::string_view text) {
    return itemAt(text.substr(std::min(text.find_first_not_of(" \t"), text.size())));
}

std::optional<std::string> readFirstItem(const fs::path& file) {
    const std::string bytes = readBytes(file, MostBytes);
    return bytes.empty() ? std::nullopt : std::optional(std::string(firstItem(bytes)));
}

// The whole text tells how it is stored, not the item alone.
std::optional<std::string> readFirstItemText(const fs::path& file) {
    const std::string bytes = readBytes(file, MostBytes);
    if (bytes.empty()) return std::nullopt;
    const bool cut = bytes.size() == MostBytes;
    const std::string text = textOfStored(bytes, cut ? LastCharacter::MayBeCut : LastCharacter::Whole);
    return std::string(firstItem(text));
}

bool writeEntryFile(const fs::path& file, std::string_view line) {
    std::string text(line);
    text += LineEnd;
    if (!makeRoomForFile(file)) return false;
    if (readBytes(file, text.size() + 1) == text) return true;
    std::ofstream output(file, std::ios::binary | std::ios::trunc);
    if (!output) return false;
    output << text;
    output.close();
    if (!output) removeEntryFile(file);
    return !output.fail();
}

void removeEntryFile(const fs::path& file) {
    std::error_code failed;
    if (!fs::is_directory(fs::symlink_status(file, failed))) fs::remove(file, failed);
}

} // namespace tabrova
