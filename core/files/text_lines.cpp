#include "core/files/text_lines.h"

#include "core/files/regular_file.h"
#include "core/text/stored_text.h"

namespace tabrova {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MostBytes = 4 * 1024 * 1024;

std::string readBytes(const std::filesystem::path& file) {
    RegularFile input(file);
    if (!input) return {};
    std::string bytes(MostBytes, '\0');
    input.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(input.gcount()));
    return bytes;
}

std::vector<std::string> split(std::string_view bytes, std::size_t mostLines) {
    std::vector<std::string> lines;
    while (!bytes.empty() && lines.size() < mostLines) {
        const std::size_t end = bytes.find_first_of("\r\n");
        lines.emplace_back(bytes.substr(0, end));
        if (end == std::string_view::npos) break;
        bytes.remove_prefix(bytes.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
    }
    return lines;
}

} // namespace

void copyTextFile(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    if (!RegularFile(from, MostBytes) ||
        fs::copy_file(from, to, fs::copy_options::overwrite_existing, failed))
        return;
    std::error_code passedOver;
    if (failed) fs::remove(to, passedOver);
}

std::vector<std::string> readTextLines(const std::filesystem::path& file, std::size_t mostLines) {
    const std::string bytes = readBytes(file);
    const bool cut = bytes.size() == MostBytes;
    return split(textOfStored(bytes, cut ? LastCharacter::MayBeCut : LastCharacter::Whole), mostLines);
}

} // namespace tabrova
