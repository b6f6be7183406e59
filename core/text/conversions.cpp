#include "core/text/conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tabrova {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::size_t skipDigits(std::string_view text, std::size_t from) {
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

std::size_t skipSign(std::string_view text, std::size_t from) {
    return from < text.size() && (text[from] == '+' || text[from] == '-') ? from + 1 : from;
}

// The grammar is checked here since std::from_chars also takes "inf", "nan" and rests behind a number.
bool isPlainNumber(std::string_view text) {
    const std::size_t start = skipSign(text, 0);
    std::size_t at = skipDigits(text, start);
    std::size_t digits = at - start;
    if (at < text.size() && text[at] == '.') {
        const std::size_t fraction = skipDigits(text, at + 1);
        digits += fraction - (at + 1);
        at = fraction;
    }
    if (digits == 0) return false;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const std::size_t exponent = skipSign(text, at + 1);
        at = skipDigits(text, exponent);
        if (at == exponent) return false;
    }
    return at == text.size();
}

// The exponent behind "e", held within a range that no number of digits outweighs.
long exponentOf(std::string_view text) {
    const std::size_t mark = text.find_first_of("eE");
    if (mark == std::string_view::npos) return 0;
    std::string_view digits = text.substr(mark + 1);
    const bool negative = digits.front() == '-';
    if (digits.front() == '+' || negative) digits.remove_prefix(1);
    constexpr long Limit = 1000000000;
    long value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || value > Limit) value = Limit;
    return negative ? -value : value;
}

// A number out of a double's range is too small or too large: its first digit that counts tells, with the
// exponent.
bool isTiny(std::string_view text) {
    const std::string_view mantissa = text.substr(0, text.find_first_of("eE"));
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t digit = mantissa.find_first_of("123456789");
    if (digit == std::string_view::npos) return true;
    return static_cast<long>(point) - static_cast<long>(digit) + exponentOf(text) < 0;
}

bool equalsIgnoringCase(std::string_view text, std::string_view lower) {
    if (text.size() != lower.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] - 'A' + 'a') : text[i];
        if (c != lower[i]) return false;
    }
    return true;
}

template <class Integer>
std::optional<Integer> roundedTo(double value) {
    const double rounded = roundHalfToEven(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        return std::nullopt;
    return static_cast<Integer>(rounded);
}

} // namespace

double roundHalfToEven(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2.0) != 0.0)) return below + 1.0;
    return below;
}

std::optional<double> toNumber(std::string_view text) {
    // Frets and drums, which are most of all numbers.
    if (text.size() == 1 && isDigit(text[0])) return text[0] - '0';
    if (text.size() == 2 && isDigit(text[0]) && isDigit(text[1])) return 10 * (text[0] - '0') + text[1] - '0';
    text = withoutBlanks(text);
    if (!isPlainNumber(text)) return std::nullopt;
    if (text.front() == '+') text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        return isTiny(text) ? std::optional<double>(0.0) : std::nullopt;
    return value;
}

std::optional<std::int16_t> toInteger16(double value) { return roundedTo<std::int16_t>(value); }

std::optional<std::int16_t> toInteger16(std::string_view text) {
    const auto number = toNumber(text);
    return number ? toInteger16(*number) : std::nullopt;
}

std::optional<std::int32_t> toInteger32(std::string_view text) {
    const auto number = toNumber(text);
    return number ? roundedTo<std::int32_t>(*number) : std::nullopt;
}

std::optional<bool> toBoolean(std::string_view text) {
    text = withoutBlanks(text);
    if (equalsIgnoringCase(text, "true")) return true;
    if (equalsIgnoringCase(text, "false")) return false;
    const auto number = toNumber(text);
    return number ? std::optional<bool>(*number != 0.0) : std::nullopt;
}

std::string printedInteger(int value) {
    std::string digits = std::to_string(value);
    if (value >= 0) digits.insert(digits.begin(), ' ');
    digits.push_back(' ');
    return digits;
}

std::string_view printedBoolean(bool value) { return value ? "True" : "False"; }

} // namespace tabrova
