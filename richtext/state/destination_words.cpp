// The words that say what their group holds.
#include "richtext/state/rtf_words.h"

namespace tabrova {

namespace {

using State = RtfState;
using Number = RtfNumber;

template <Destination Where>
void opens(State& state, Number) {
    state.now().destination = Where;
}

void picture(State& state, Number) {
    state.now().destination = Destination::Picture;
    state.picture = {};
}

void field(State& state, Number) {
    state.now().isField = true;
    state.now().fieldLink = -1;
    state.now().fieldSymbol.clear();
}

// A field inside of another one's instruction gives its result to it.
void instruction(State& state, Number) {
    const bool isInside = state.now().destination == Destination::Instruction;
    state.now().destination = isInside ? Destination::Skipped : Destination::Instruction;
}

void fieldResult(State& state, Number) {
    if (state.now().destination == Destination::Instruction) return;
    state.now().destination = Destination::Body;
    state.beginFieldResult();
}

// The sign before a list's paragraph, spelled for readers that make none themselves.
void listText(State& state, Number) { state.spelledSign = true; }

void nestedTable(State& state, Number) { state.outerRow = state.row; }

void nothing(State&, Number) {}

constexpr RtfWordRow Words[] = {
    {"fonttbl", WordUse::Opens, opens<Destination::Fonts>},
    {"colortbl", WordUse::Opens, opens<Destination::Colors>},
    {"listtable", WordUse::Opens, opens<Destination::Lists>},
    {"listoverridetable", WordUse::Opens, opens<Destination::ListNumbers>},
    {"pict", WordUse::Part, picture},
    {"shppict", WordUse::Part, nothing},
    {"field", WordUse::Opens, field},
    {"fldinst", WordUse::Opens, instruction},
    {"fldrslt", WordUse::Opens, fieldResult},
    {"bkmkstart", WordUse::Opens, opens<Destination::Anchor>},
    {"bkmkend", WordUse::Opens, opens<Destination::Skipped>},
    {"listtext", WordUse::Opens, listText},
    {"pntext", WordUse::Opens, listText},
    {"nesttableprops", WordUse::Opens, nestedTable},
    // A drawing holds its text and pictures somewhere inside.
    {"shpinst", WordUse::Opens, opens<Destination::Silent>},
    {"shptxt", WordUse::Part, opens<Destination::Body>},
    // The same text twice: the second time by characters of any language.
    {"upr", WordUse::Opens, opens<Destination::Silent>},
    {"ud", WordUse::Part, opens<Destination::Body>},
    // What is not shown.
    {"stylesheet", WordUse::Opens, opens<Destination::Skipped>},
    {"info", WordUse::Opens, opens<Destination::Skipped>},
    {"header", WordUse::Opens, opens<Destination::Skipped>},
    {"headerl", WordUse::Opens, opens<Destination::Skipped>},
    {"headerr", WordUse::Opens, opens<Destination::Skipped>},
    {"headerf", WordUse::Opens, opens<Destination::Skipped>},
    {"footer", WordUse::Opens, opens<Destination::Skipped>},
    {"footerl", WordUse::Opens, opens<Destination::Skipped>},
    {"footerr", WordUse::Opens, opens<Destination::Skipped>},
    {"footerf", WordUse::Opens, opens<Destination::Skipped>},
    {"footnote", WordUse::Opens, opens<Destination::Skipped>},
    {"annotation", WordUse::Opens, opens<Destination::Skipped>},
    {"nonshppict", WordUse::Part, opens<Destination::Skipped>},
    {"shprslt", WordUse::Opens, opens<Destination::Skipped>},
    {"nonesttables", WordUse::Opens, opens<Destination::Skipped>},
    {"objdata", WordUse::Opens, opens<Destination::Skipped>},
    {"objclass", WordUse::Opens, opens<Destination::Skipped>},
    {"objname", WordUse::Opens, opens<Destination::Skipped>},
    {"listname", WordUse::Opens, opens<Destination::Skipped>},
    {"leveltext", WordUse::Opens, opens<Destination::Skipped>},
    {"levelnumbers", WordUse::Opens, opens<Destination::Skipped>},
    {"xe", WordUse::Opens, opens<Destination::Skipped>},
    {"tc", WordUse::Opens, opens<Destination::Skipped>},
    {"rxe", WordUse::Opens, opens<Destination::Skipped>},
    {"txe", WordUse::Opens, opens<Destination::Skipped>},
    {"private", WordUse::Opens, opens<Destination::Skipped>},
    {"filetbl", WordUse::Opens, opens<Destination::Skipped>},
    {"revtbl", WordUse::Opens, opens<Destination::Skipped>},
    {"template", WordUse::Opens, opens<Destination::Skipped>},
    {"falt", WordUse::Opens, opens<Destination::Skipped>},
    {"panose", WordUse::Opens, opens<Destination::Skipped>},
    {"fontemb", WordUse::Opens, opens<Destination::Skipped>},
    {"fontfile", WordUse::Opens, opens<Destination::Skipped>},
};

} // namespace

std::span<const RtfWordRow> destinationWords() { return Words; }

} // namespace tabrova
