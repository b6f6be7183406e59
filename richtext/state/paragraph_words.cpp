// The words that give paragraphs their looks.
#include "richtext/state/rtf_words.h"

namespace tabrova {

namespace {

using State = RtfState;
using Number = RtfNumber;

constexpr int HighestLine = 2400; // twips, or ten lines

ParagraphLook& look(State& state) { return state.now().paragraph; }

template <int ParagraphLook::*Length>
void length(State& state, Number number) {
    look(state).*Length = number.twips();
}

// Never less than nothing.
template <int ParagraphLook::*Length>
void space(State& state, Number number) {
    look(state).*Length = std::max(0, number.twips());
}

template <TextSide Side>
void side(State& state, Number) {
    look(state).side = Side;
}

template <TabSide Side>
void tabSide(State& state, Number) {
    state.nextTab = Side;
}

// The height of a line: 0 is the font's own, one below 0 is exact.
void lineHeight(State& state, Number number) {
    ParagraphLook& paragraph = look(state);
    paragraph.line = std::min(std::abs(number.twips()), HighestLine);
    paragraph.spacing = number.value() == 0  ? LineSpacing::Auto
                        : number.value() < 0 ? LineSpacing::Exactly
                                             : LineSpacing::AtLeast;
}

// Behind the height: whether it counts in lines.
void lineTimes(State& state, Number number) {
    if (number.value() == 1 && look(state).spacing == LineSpacing::AtLeast)
        look(state).spacing = LineSpacing::Times;
}

// In the table of list numbers it ends a row.
void list(State& state, Number number) {
    if (state.now().destination == Destination::ListNumbers)
        return state.lists.setOverrideNumber(number.value());
    state.now().list = std::max(0, number.value());
}

constexpr RtfWordRow Words[] = {
    {"pard", WordUse::Look, [](State& state, Number) { state.plainParagraph(); }},
    {"ql", WordUse::Look, side<TextSide::Left>},
    {"qr", WordUse::Look, side<TextSide::Right>},
    {"qc", WordUse::Look, side<TextSide::Middle>},
    {"qj", WordUse::Look, side<TextSide::Both>},
    {"rtlpar", WordUse::Look, [](State& state, Number) { look(state).rightToLeft = true; }},
    {"ltrpar", WordUse::Look, [](State& state, Number) { look(state).rightToLeft = false; }},
    {"li", WordUse::Look, length<&ParagraphLook::left>},
    {"ri", WordUse::Look, length<&ParagraphLook::right>},
    {"fi", WordUse::Look, length<&ParagraphLook::firstLine>},
    {"sb", WordUse::Look, space<&ParagraphLook::above>},
    {"sa", WordUse::Look, space<&ParagraphLook::below>},
    {"sl", WordUse::Look, lineHeight},
    {"slmult", WordUse::Look, lineTimes},
    {"tx", WordUse::Look, [](State& state, Number n) { state.addTab(n.twips()); }},
    {"tqr", WordUse::Look, tabSide<TabSide::Right>},
    {"tqc", WordUse::Look, tabSide<TabSide::Middle>},
    {"tqdec", WordUse::Look, tabSide<TabSide::Point>},
    {"cbpat", WordUse::Look,
     [](State& state, Number n) {
         look(state).background = n.value() > 0 ? state.color(n.value()) : std::nullopt;
     }},
    {"intbl", WordUse::Look, [](State& state, Number) { state.now().inTable = true; }},
    {"itap", WordUse::Look,
     [](State& state, Number n) {
         state.now().nested = std::clamp(n.value(), 0, RichFlow::MostNested);
         state.now().inTable = n.value() > 0;
     }},
    {"ls", WordUse::Look, list},
    {"ilvl", WordUse::Look, [](State& state, Number n) { state.now().listLevel = n.value(); }},
    {"brdrt", WordUse::Look, [](State& state, Number) { state.border = nullptr; }},
    {"brdrl", WordUse::Look, [](State& state, Number) { state.border = nullptr; }},
    {"brdrb", WordUse::Look, [](State& state, Number) { state.border = nullptr; }},
    {"brdrr", WordUse::Look, [](State& state, Number) { state.border = nullptr; }},
    {"box", WordUse::Look, [](State& state, Number) { state.border = nullptr; }},
    {"chbrdr", WordUse::Look, [](State& state, Number) { state.border = nullptr; }},
};

} // namespace

std::span<const RtfWordRow> paragraphWords() { return Words; }

} // namespace tabrova
