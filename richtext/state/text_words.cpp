// The words that stand for characters and for the ends of lines and paragraphs.
#include "richtext/state/rtf_words.h"

namespace tabrova {

namespace {

using State = RtfState;
using Number = RtfNumber;

template <char16_t Character>
void character(State& state, Number) {
    state.addCharacters(QChar(Character));
}

// A hidden end joins the paragraphs.
void paragraph(State& state, Number) {
    if (!state.now().hidden) state.endParagraph();
}

// A page shows as one long page: its end is no more than the paragraph's.
void page(State& state, Number) {
    if (!state.flow.isParagraphEmpty()) state.endParagraph();
}

void line(State& state, Number) {
    if (state.flow.isParagraphLarge()) return state.endParagraph();
    state.addCharacters(QChar(0x2028));
}

constexpr RtfWordRow Words[] = {
    {"par", WordUse::Text, paragraph},
    {"sect", WordUse::Text, page},
    {"page", WordUse::Text, page},
    {"column", WordUse::Text, page},
    {"line", WordUse::Text, line},
    {"tab", WordUse::Text, character<u'\t'>},
    {"emdash", WordUse::Character, character<u'\u2014'>},
    {"endash", WordUse::Character, character<u'\u2013'>},
    {"emspace", WordUse::Character, character<u'\u2003'>},
    {"enspace", WordUse::Character, character<u'\u2002'>},
    {"qmspace", WordUse::Character, character<u'\u2005'>},
    {"bullet", WordUse::Character, character<u'\u2022'>},
    {"lquote", WordUse::Character, character<u'\u2018'>},
    {"rquote", WordUse::Character, character<u'\u2019'>},
    {"ldblquote", WordUse::Character, character<u'\u201C'>},
    {"rdblquote", WordUse::Character, character<u'\u201D'>},
    {"zwj", WordUse::Character, character<u'\u200D'>},
    {"zwnj", WordUse::Character, character<u'\u200C'>},
    {"ltrmark", WordUse::Character, character<u'\u200E'>},
    {"rtlmark", WordUse::Character, character<u'\u200F'>},
};

} // namespace

std::span<const RtfWordRow> textWords() { return Words; }

} // namespace tabrova
