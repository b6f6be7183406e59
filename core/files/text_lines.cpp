#include "core/files/text_lines.h"

#include "core/files/regular_file.h"
#include "core/text/code_page.h"

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

// How many bytes the character at the front takes; 0 if none stands there that UTF-8 allows.
std::size_t characterLength(std::string_view bytes) {
    const auto at = [&](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
    const unsigned char first = at(0);
    if (first < 0x80) return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return 0;
    for (std::size_t index = 1; index < length; ++index)
        if (at(index) < 0x80 || at(index) > 0xBF) return 0;
    // Too long a form, a half of a surrogate pair, past the last character.
    const bool forbidden = (first == 0xE0 && at(1) < 0xA0) || (first == 0xED && at(1) > 0x9F) ||
                           (first == 0xF0 && at(1) < 0x90) || (first == 0xF4 && at(1) > 0x8F);
    return forbidden ? 0 : length;
}

// A character that the bound on the length has cut does not make the file another one.
bool isUtf8(std::string_view bytes) {
    constexpr std::size_t LongestCharacter = 4;
    const bool cut = bytes.size() == MostBytes;
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0) return cut && bytes.size() < LongestCharacter;
        bytes.remove_prefix(length);
    }
    return true;
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
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    const std::string bytes = readBytes(file);
    std::string_view text = bytes;
    const bool utf8 = isUtf8(text);
    if (text.starts_with(ByteOrderMark) && utf8) text.remove_prefix(ByteOrderMark.size());
    std::vector<std::string> lines = split(text, mostLines);
    if (!utf8)
        for (std::string& line : lines)
            line = utf8FromCodePage(line);
    return lines;
}

} // namespace tabrova
