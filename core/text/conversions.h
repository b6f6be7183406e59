// Numbers and booleans as text, by the rules that the document file, the cells and the lists share.
// A failed conversion is a value (std::nullopt): it is what makes "x", ">" and "" silent.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tabrova {

// Rounds to the nearest whole number; a fraction of exactly one half goes to the even neighbour.
double roundHalfToEven(double value);

// Surrounding blanks, one sign, digits with an optional point, an optional exponent. Nothing else converts;
// a value too large for a double fails.
std::optional<double> toNumber(std::string_view text);

// toNumber, rounded half to even; fails outside the 16-bit range.
std::optional<std::int16_t> toInteger16(std::string_view text);
std::optional<std::int16_t> toInteger16(double value);

// The same in the 32-bit range.
std::optional<std::int32_t> toInteger32(std::string_view text);

// "True" and "False" in any case, or a number (0 is false), with surrounding blanks.
std::optional<bool> toBoolean(std::string_view text);

// The form in which a print statement writes a number: a blank or a minus sign, the digits, a blank.
std::string printedInteger(int value);

// "True" or "False".
std::string_view printedBoolean(bool value);

// Booleans in fields and files are 16 bits wide: -1 is true, 0 is false.
constexpr std::int16_t True16 = -1;
constexpr std::int16_t False16 = 0;
constexpr std::int16_t boolean16(bool value) { return value ? True16 : False16; }

} // namespace tabrova
