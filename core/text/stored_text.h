// Texts of the small files: bytes of the code page, as such files always were, or UTF-8 where the code page
// does not hold a character. Bytes that are valid UTF-8 are read as that, all others as the code page's.
#pragma once

#include <string>
#include <string_view>

namespace tabrova {

// Of bytes that may be cut at their end, half a last character does not count.
enum class LastCharacter { Whole, MayBeCut };

bool isUtf8(std::string_view bytes, LastCharacter last = LastCharacter::Whole);

// The UTF-8 text of a file's bytes. A byte order mark at the front is left out.
std::string textOfStored(std::string_view bytes, LastCharacter last = LastCharacter::Whole);

// The bytes that `textOfStored` reads as this UTF-8 text again: those of the code page, unless it lacks a
// character or its bytes happen to be valid UTF-8 of another text.
std::string storedText(std::string_view utf8);

} // namespace tabrova
