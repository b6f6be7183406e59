#include "richtext/tokens/rtf_tokenizer.h"

#include <algorithm>
#include <limits>

namespace tabrova {

namespace {

constexpr std::size_t LongestWord = 32; // letters

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isLineEnd(char character) { return character == '\r' || character == '\n'; }

} // namespace

int hexDigit(char character) {
    if (isDigit(character)) return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
}

RtfToken RtfTokenizer::next() {
    if (binary_ > 0) {
        const std::string_view bytes = bytes_.substr(at_, binary_);
        at_ += bytes.size();
        binary_ = 0;
        return {RtfTokenKind::Binary, bytes};
    }
    while (!atEnd() && (isLineEnd(bytes_[at_]) || bytes_[at_] == '\0'))
        ++at_;
    if (atEnd()) return {};
    switch (bytes_[at_]) {
    case '{':
        ++at_;
        return {RtfTokenKind::GroupBegin};
    case '}':
        ++at_;
        return {RtfTokenKind::GroupEnd};
    case '\\':
        ++at_;
        return control();
    default:
        return text();
    }
}

RtfToken RtfTokenizer::control() {
    if (atEnd()) return {};
    const char first = bytes_[at_];
    if (isLetter(first)) return word();
    ++at_;
    if (first == '\'') return hexByte();
    if (first == '\r' && !atEnd() && bytes_[at_] == '\n') ++at_;
    const char sign = isLineEnd(first) ? '\n' : first;
    return {RtfTokenKind::Sign, {}, std::nullopt, static_cast<unsigned char>(sign)};
}

// One blank behind a word belongs to it.
RtfToken RtfTokenizer::word() {
    const std::size_t begin = at_;
    while (!atEnd() && isLetter(bytes_[at_]) && at_ - begin < LongestWord)
        ++at_;
    RtfToken token{RtfTokenKind::Word, bytes_.substr(begin, at_ - begin)};
    token.number = number();
    if (!atEnd() && bytes_[at_] == ' ') ++at_;
    if (token.text == "bin" && token.number.value_or(0) > 0)
        binary_ = std::min(static_cast<std::size_t>(*token.number), bytes_.size() - at_);
    return token;
}

std::optional<int> RtfTokenizer::number() {
    const bool minus = !atEnd() && bytes_[at_] == '-';
    std::size_t at = at_ + (minus ? 1 : 0);
    if (at >= bytes_.size() || !isDigit(bytes_[at])) return std::nullopt;
    constexpr long long Largest = std::numeric_limits<int>::max();
    long long value = 0;
    for (; at < bytes_.size() && isDigit(bytes_[at]); ++at)
        value = std::min(Largest, value * 10 + (bytes_[at] - '0'));
    at_ = at;
    return static_cast<int>(minus ? -value : value);
}

// Without two digits it is nothing, and what stands there is read as it is.
RtfToken RtfTokenizer::hexByte() {
    if (bytes_.size() - at_ < 2) return {RtfTokenKind::Text, {}};
    const int high = hexDigit(bytes_[at_]), low = hexDigit(bytes_[at_ + 1]);
    if (high < 0 || low < 0) return {RtfTokenKind::Text, {}};
    at_ += 2;
    return {RtfTokenKind::Byte, {}, std::nullopt, static_cast<unsigned char>(high * 16 + low)};
}

RtfToken RtfTokenizer::text() {
    const std::size_t begin = at_;
    at_ = std::min(bytes_.find_first_of(std::string_view("{}\\\r\n\0", 6), begin), bytes_.size());
    return {RtfTokenKind::Text, bytes_.substr(begin, at_ - begin)};
}

} // namespace tabrova
