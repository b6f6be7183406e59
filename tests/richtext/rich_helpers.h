// Rich texts of the tests: a header that many of them share, and what was read as one line of text.
#pragma once

#include "richtext/state/rich_text.h"

#include <string>
#include <string_view>

namespace tabrova::tests {

// Fonts 0 to 3 are Serif, Fixed, Symbol and Wingdings, colors 1 and 2 are red and blue.
constexpr std::string_view Header =
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\froman Serif;}{\\f1\\fmodern Fixed;}{\\f2\\fnil\\fcharset2 Symbol;}"
    "{\\f3\\fnil\\fcharset2 Wingdings;}}{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}";

// Behind the header, and closed.
RichText readBody(std::string_view body);

// Paragraphs are set apart by '/', pictures are "<0>", tables "[a|b;c|d]": cells by '|', rows by ';'. The end
// of a line inside of a paragraph is '^', a tab '>'.
std::string shown(const RichText& text);
std::string shown(const std::vector<RichBlock>& blocks);
std::string shown(const RichParagraph& paragraph);
std::string shownBody(std::string_view body);

// What differs from a look without any words, such as "bold font=1".
std::string described(const CharacterLook& look);
std::string described(const ParagraphLook& look);
std::string described(const CellLook& look);
std::string described(const CellBorder& border);

const RichParagraph& paragraphAt(const RichText& text, std::size_t at);
const RichTable& tableAt(const RichText& text, std::size_t at);
const RichRun& runAt(const RichText& text, std::size_t at); // of the first paragraph

// The look of the only character of "word x".
std::string characterLook(std::string_view words);
std::string paragraphLook(std::string_view words);

std::string repeated(std::string_view text, int times);

} // namespace tabrova::tests
