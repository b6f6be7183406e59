#include "core/text/stored_text.h"

#include "core/text/code_page.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t LongestCharacter = 4;

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

// Of a character that is there in the length that `characterLength` gave.
char32_t codePointAt(std::string_view bytes, std::size_t length) {
    constexpr unsigned LeadBits[] = {0x7F, 0x1F, 0x0F, 0x07};
    char32_t value = static_cast<unsigned char>(bytes[0]) & LeadBits[length - 1];
    for (std::size_t index = 1; index < length; ++index)
        value = value << 6 | (static_cast<unsigned char>(bytes[index]) & 0x3F);
    return value;
}

// False if the code page lacks a character, or the text is no UTF-8.
bool toCodePageBytes(std::string_view utf8, std::string& bytes) {
    while (!utf8.empty()) {
        const std::size_t length = characterLength(utf8);
        const auto byte = length == 0 ? std::nullopt : byteOf(codePointAt(utf8, length));
        if (!byte) return false;
        bytes.push_back(static_cast<char>(*byte));
        utf8.remove_prefix(length);
    }
    return true;
}

bool isAscii(std::string_view bytes) {
    return std::ranges::all_of(bytes, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

} // namespace

bool isUtf8(std::string_view bytes, LastCharacter last) {
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0) return last == LastCharacter::MayBeCut && bytes.size() < LongestCharacter;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string textOfStored(std::string_view bytes, LastCharacter last) {
    if (!isUtf8(bytes, last)) return utf8FromCodePage(bytes);
    if (bytes.starts_with(ByteOrderMark)) bytes.remove_prefix(ByteOrderMark.size());
    return std::string(bytes);
}

// A text that begins with a byte order mark gets another one, which is the one that is left out.
std::string storedText(std::string_view utf8) {
    std::string bytes;
    if (toCodePageBytes(utf8, bytes) && (isAscii(bytes) || !isUtf8(bytes))) return bytes;
    return std::string(utf8.starts_with(ByteOrderMark) ? ByteOrderMark : "") + std::string(utf8);
}

} // namespace tabrova
