// The words that tell tables: their rows, cells and borders.
#include "richtext/state/rtf_words.h"

namespace tabrova {

namespace {

using State = RtfState;
using Number = RtfNumber;

constexpr int WidestBorder = 150; // twips
constexpr int WidestGap = 1440;

template <Side At>
void cellBorder(State& state, Number) {
    state.border = &state.cell.borders[static_cast<std::size_t>(At)];
}

void noBorder(State& state, Number) { state.border = nullptr; }

void drawn(State& state, Number) {
    if (state.border) state.border->drawn = true;
}

void notDrawn(State& state, Number) {
    if (state.border) state.border->drawn = false;
}

template <CellMerge RtfMerge, CellMerge CellLook::*Way>
void merge(State& state, Number) {
    state.cell.*Way = RtfMerge;
}

template <TextSide At>
void rowSide(State& state, Number) {
    state.row.side = At;
}

template <CellPlace At>
void cellPlace(State& state, Number) {
    state.cell.place = At;
}

constexpr RtfWordRow Words[] = {
    {"trowd", WordUse::Look, [](State& state, Number) { state.beginRow(); }},
    {"trleft", WordUse::Look, [](State& state, Number n) { state.row.left = n.twips(); }},
    {"trgaph", WordUse::Look,
     [](State& state, Number n) { state.row.gap = std::clamp(n.value(), 0, WidestGap); }},
    {"trpaddl", WordUse::Look,
     [](State& state, Number n) { state.row.gap = std::clamp(n.value(), 0, WidestGap); }},
    {"clpadl", WordUse::Look,
     [](State& state, Number n) { state.cell.gap = std::clamp(n.value(), 0, WidestGap); }},
    {"trql", WordUse::Look, rowSide<TextSide::Left>},
    {"trqc", WordUse::Look, rowSide<TextSide::Middle>},
    {"trqr", WordUse::Look, rowSide<TextSide::Right>},
    {"cellx", WordUse::Look, [](State& state, Number n) { state.endCellLook(n.twips()); }},
    {"clmgf", WordUse::Look, merge<CellMerge::First, &CellLook::across>},
    {"clmrg", WordUse::Look, merge<CellMerge::Following, &CellLook::across>},
    {"clvmgf", WordUse::Look, merge<CellMerge::First, &CellLook::down>},
    {"clvmrg", WordUse::Look, merge<CellMerge::Following, &CellLook::down>},
    {"clvertalt", WordUse::Look, cellPlace<CellPlace::Top>},
    {"clvertalc", WordUse::Look, cellPlace<CellPlace::Middle>},
    {"clvertalb", WordUse::Look, cellPlace<CellPlace::Bottom>},
    {"clcbpat", WordUse::Look,
     [](State& state, Number n) {
         state.cell.background = n.value() > 0 ? state.color(n.value()) : std::nullopt;
     }},
    {"clbrdrt", WordUse::Look, cellBorder<Side::Top>},
    {"clbrdrl", WordUse::Look, cellBorder<Side::Left>},
    {"clbrdrb", WordUse::Look, cellBorder<Side::Bottom>},
    {"clbrdrr", WordUse::Look, cellBorder<Side::Right>},
    {"trbrdrt", WordUse::Look, noBorder},
    {"trbrdrl", WordUse::Look, noBorder},
    {"trbrdrb", WordUse::Look, noBorder},
    {"trbrdrr", WordUse::Look, noBorder},
    {"trbrdrh", WordUse::Look, noBorder},
    {"trbrdrv", WordUse::Look, noBorder},
    {"brdrs", WordUse::Look, drawn},
    {"brdrth", WordUse::Look, drawn},
    {"brdrdb", WordUse::Look, drawn},
    {"brdrdot", WordUse::Look, drawn},
    {"brdrdash", WordUse::Look, drawn},
    {"brdrdashsm", WordUse::Look, drawn},
    {"brdrhair", WordUse::Look, drawn},
    {"brdrtnthsg", WordUse::Look, drawn},
    {"brdrtriple", WordUse::Look, drawn},
    {"brdrnone", WordUse::Look, notDrawn},
    {"brdrnil", WordUse::Look, notDrawn},
    {"brdrtbl", WordUse::Look, notDrawn},
    {"brdrw", WordUse::Look,
     [](State& state, Number n) {
         if (state.border) state.border->width = std::clamp(n.value(), 0, WidestBorder);
     }},
    {"brdrcf", WordUse::Look,
     [](State& state, Number n) {
         if (state.border) state.border->color = state.color(n.value());
     }},
    {"cell", WordUse::Text, [](State& state, Number) { state.endCell(); }},
    {"nestcell", WordUse::Text, [](State& state, Number) { state.endCell(); }},
    {"row", WordUse::Text, [](State& state, Number) { state.endRow(); }},
    {"nestrow", WordUse::Text, [](State& state, Number) { state.endNestedRow(); }},
};

} // namespace

std::span<const RtfWordRow> tableWords() { return Words; }

} // namespace tabrova
