#include "core/text/code_page.h"

#include <array>

namespace tabrova {

namespace {

// Bytes 0x80 to 0x9F; all others are the code point of the same number.
constexpr std::array<char32_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& out, char32_t c) {
    const auto put = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | (c >> 6));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

} // namespace

char32_t codePointOf(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80u] : byte;
}

std::optional<unsigned char> byteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100))
        return static_cast<unsigned char>(codePoint);
    for (std::size_t i = 0; i < HighControls.size(); ++i)
        if (HighControls[i] == codePoint) return static_cast<unsigned char>(0x80 + i);
    return std::nullopt;
}

std::string utf8FromCodePage(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char c : bytes)
        appendUtf8(out, codePointOf(static_cast<unsigned char>(c)));
    return out;
}

std::string shownNameUtf8(std::string_view bytes) {
    const std::string text = utf8FromCodePage(bytes.substr(0, LongestShownName));
    return bytes.size() > LongestShownName ? text + "\xE2\x80\xA6" : text;
}

} // namespace tabrova
