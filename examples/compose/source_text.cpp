#include "examples/compose/source_text.h"

#include "core/text/code_page.h"

namespace tabrova {

namespace {

// Takes one character off the front. Only characters of up to three bytes matter: the page holds no others.
std::optional<char32_t> takeUtf8(std::string_view& text) {
    const auto byteAt = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    const std::size_t length = lead < 0x80 ? 1 : (lead >> 5) == 6 ? 2 : (lead >> 4) == 14 ? 3 : 0;
    if (length == 0 || text.size() < length) return std::nullopt;
    char32_t value = length == 1 ? lead : length == 2 ? lead & 0x1Fu : lead & 0x0Fu;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) return std::nullopt;
        value = (value << 6) | (byteAt(i) & 0x3Fu);
    }
    // A longer form than the character needs is malformed.
    if ((length == 2 && value < 0x80) || (length == 3 && value < 0x800)) return std::nullopt;
    text.remove_prefix(length);
    return value;
}

} // namespace

std::optional<std::string> codePageFromUtf8(std::string_view utf8) {
    std::string out;
    while (!utf8.empty()) {
        const auto codePoint = takeUtf8(utf8);
        const auto byte = codePoint ? byteOf(*codePoint) : std::nullopt;
        if (!byte) return std::nullopt;
        out.push_back(static_cast<char>(*byte));
    }
    return out;
}

} // namespace tabrova
