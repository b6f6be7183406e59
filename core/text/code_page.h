// The system's single-byte code page: Windows-1252, its five unassigned bytes (0x81, 0x8D, 0x8F, 0x90, 0x9D)
// mapped to the code points of the same number, so that every byte of a file survives open and save.
// The document keeps its texts as bytes of this page; windows convert at their edge.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tabrova {

char32_t codePointOf(unsigned char byte);

// std::nullopt for a character that the code page does not hold.
std::optional<unsigned char> byteOf(char32_t codePoint);

// UTF-8 of the bytes.
std::string utf8FromCodePage(std::string_view bytes);

// A title or a name as it is shown, in UTF-8: a file may bring one of any length, of which the beginning is
// shown, with three dots behind it.
constexpr std::size_t LongestShownName = 1000; // characters
std::string shownNameUtf8(std::string_view bytes);

} // namespace tabrova
