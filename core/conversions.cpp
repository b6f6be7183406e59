#include "core/conversions.h"

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

template <class Integer>
std::optional<Integer> toInteger(double value) {
    const double rounded = roundHalfToEven(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        return std::nullopt;
    return static_cast<Integer>(rounded);
}

bool equalsIgnoringCase(std::string_view text, std::string_view lower) {
    if (text.size() != lower.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] - 'A' + 'a') : text[i];
        if (c != lower[i]) return false;
    }
    return true;
}

} // namespace

double roundHalfToEven(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2.0) != 0.0)) return below + 1.0;
    return below;
}

std::optional<double> toNumber(std::string_view text) {
    text = withoutBlanks(text);
    if (!isPlainNumber(text)) return std::nullopt;
    if (text.front() == '+') text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    // A number too small for a double is reported like one too large; only its exponent's sign tells them
    // apart.
    if (error == std::errc::result_out_of_range) {
        const std::size_t exponent = text.find_first_of("eE");
        const bool tiny = exponent != std::string_view::npos && text[exponent + 1] == '-';
        return tiny ? std::optional<double>(0.0) : std::nullopt;
    }
    return value;
}

std::optional<std::int16_t> toInteger16(double value) { return toInteger<std::int16_t>(value); }

std::optional<std::int16_t> toInteger16(std::string_view text) {
    const auto number = toNumber(text);
    return number ? toInteger<std::int16_t>(*number) : std::nullopt;
}

std::optional<std::int32_t> toInteger32(std::string_view text) {
    const auto number = toNumber(text);
    return number ? toInteger<std::int32_t>(*number) : std::nullopt;
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
