// The words that give characters their looks.
#include "richtext/state/rtf_words.h"

namespace tabrova {

namespace {

using State = RtfState;
using Number = RtfNumber;

constexpr int LargestFont = 1000; // half points

CharacterLook& look(State& state) { return state.now().character; }

template <UnderlineLook Kind>
void underline(State& state, Number number) {
    look(state).underline = number.isOn() ? Kind : UnderlineLook::None;
}

template <ScriptPlace Place>
void script(State& state, Number number) {
    look(state).script = number.isOn() ? Place : ScriptPlace::Line;
}

template <Capitals Kind>
void capitals(State& state, Number number) {
    look(state).capitals = number.isOn() ? Kind : Capitals::AsTyped;
}

void strikeOut(State& state, Number number) { look(state).strikeOut = number.isOn(); }

// Color 0 is none here.
void background(State& state, Number number) {
    look(state).background = number.value() > 0 ? state.color(number.value()) : std::nullopt;
}

void hidden(State& state, Number number) { state.now().hidden = number.isOn(); }

void raised(State& state, int halfPoints) {
    look(state).raised = std::clamp(halfPoints, -LargestFont, LargestFont);
}

// In the font table it begins a row.
void font(State& state, Number number) {
    if (state.now().destination == Destination::Fonts) return state.fonts.begin(number.value());
    look(state).font = state.fonts.indexOf(number.value());
}

constexpr RtfWordRow Words[] = {
    {"plain", WordUse::Look, [](State& state, Number) { state.plainCharacters(); }},
    {"f", WordUse::Look, font},
    {"fs", WordUse::Look,
     [](State& state, Number n) {
         look(state).halfPoints = std::clamp(n.told.value_or(24), 1, LargestFont);
     }},
    {"b", WordUse::Look, [](State& state, Number n) { look(state).bold = n.isOn(); }},
    {"i", WordUse::Look, [](State& state, Number n) { look(state).italic = n.isOn(); }},
    {"strike", WordUse::Look, strikeOut},
    {"striked", WordUse::Look, strikeOut},
    {"ul", WordUse::Look, underline<UnderlineLook::Single>},
    {"uld", WordUse::Look, underline<UnderlineLook::Dotted>},
    {"uldash", WordUse::Look, underline<UnderlineLook::Dashed>},
    {"uldashd", WordUse::Look, underline<UnderlineLook::Dashed>},
    {"uldashdd", WordUse::Look, underline<UnderlineLook::Dashed>},
    {"uldb", WordUse::Look, underline<UnderlineLook::Single>},
    {"ulth", WordUse::Look, underline<UnderlineLook::Single>},
    {"ulw", WordUse::Look, underline<UnderlineLook::Single>},
    {"ulwave", WordUse::Look, underline<UnderlineLook::Wavy>},
    {"ulnone", WordUse::Look, [](State& state, Number) { look(state).underline = UnderlineLook::None; }},
    {"super", WordUse::Look, script<ScriptPlace::Above>},
    {"sub", WordUse::Look, script<ScriptPlace::Below>},
    {"nosupersub", WordUse::Look, [](State& state, Number) { look(state).script = ScriptPlace::Line; }},
    {"up", WordUse::Look, [](State& state, Number n) { raised(state, n.told.value_or(6)); }},
    {"dn", WordUse::Look, [](State& state, Number n) { raised(state, -std::max(0, n.told.value_or(6))); }},
    {"caps", WordUse::Look, capitals<Capitals::All>},
    {"scaps", WordUse::Look, capitals<Capitals::Small>},
    {"cf", WordUse::Look, [](State& state, Number n) { look(state).color = state.color(n.value()); }},
    {"cb", WordUse::Look, background},
    {"chcbpat", WordUse::Look, background},
    {"highlight", WordUse::Look, background},
    {"v", WordUse::Look, hidden},
    {"deleted", WordUse::Look, hidden},
};

} // namespace

std::span<const RtfWordRow> characterWords() { return Words; }

} // namespace tabrova
