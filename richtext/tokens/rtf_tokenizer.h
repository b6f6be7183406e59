// The tokens of a rich text file: groups, control words with their numbers, signs, bytes of text and of
// pictures. Any bytes are read, and each of them once.
#pragma once

#include <optional>
#include <string_view>

namespace tabrova {

enum class RtfTokenKind {
    GroupBegin,
    GroupEnd,
    Word,   // a backslash and letters
    Sign,   // a backslash and one other character; one before a line end has LF as its character
    Byte,   // a byte of text that is written as two hexadecimal digits
    Text,   // bytes of text as they stand, without line ends
    Binary, // the bytes behind \bin
    End,
};

struct RtfToken {
    RtfTokenKind kind = RtfTokenKind::End;
    std::string_view text = {};               // the word's letters, the text, the binary bytes
    std::optional<int> number = std::nullopt; // the word's; one too large is the largest of its sign
    unsigned char byte = 0;                   // of a sign or a byte
};

class RtfTokenizer {
  public:
    // The bytes must outlast the tokens.
    explicit RtfTokenizer(std::string_view bytes) : bytes_(bytes) {}

    // From the end on End.
    RtfToken next();

  private:
    RtfToken control();
    RtfToken word();
    RtfToken hexByte();
    RtfToken text();
    std::optional<int> number();
    bool atEnd() const { return at_ >= bytes_.size(); }

    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t binary_ = 0; // bytes that follow as they are
};

// The value of a hexadecimal digit; -1 for any other character.
int hexDigit(char character);

} // namespace tabrova
