// The words of the header's tables and of pictures.
#include "richtext/state/rtf_words.h"

namespace tabrova {

namespace {

using State = RtfState;
using Number = RtfNumber;

constexpr int MacintoshCodePage = 10000;

template <FontKind Kind>
void fontKind(State& state, Number) {
    if (state.now().destination == Destination::Fonts) state.fonts.setKind(Kind);
}

template <int Part>
void colorPart(State& state, Number number) {
    if (state.now().destination == Destination::Colors) state.setPart(Part, number.value());
}

// Only a font can be one of pictures.
void textCodePage(State& state, Number number) {
    if (number.value() > 0 && number.value() != SymbolCodePage) state.textCodePage = number.value();
}

template <int Page>
void codePage(State& state, Number) {
    state.textCodePage = Page;
}

template <PictureKind Kind>
void pictureKind(State& state, Number) {
    state.picture.kind = Kind;
}

void otherPicture(State& state, Number) { state.picture.kind = std::nullopt; }

void levelNumbers(State& state, Number number) {
    if (state.now().destination == Destination::Lists) state.lists.setLevelNumbers(number.value());
}

void levelStart(State& state, Number number) {
    if (state.now().destination == Destination::Lists) state.lists.setLevelStart(number.told.value_or(1));
}

void listId(State& state, Number number) {
    if (state.now().destination == Destination::Lists) state.lists.setListId(number.value());
    if (state.now().destination == Destination::ListNumbers) state.lists.setOverrideList(number.value());
}

void list(State& state, Number) {
    if (state.now().destination == Destination::Lists) state.lists.beginList();
}

constexpr RtfWordRow Words[] = {
    {"ansicpg", WordUse::Look, textCodePage},
    {"mac", WordUse::Look, codePage<MacintoshCodePage>},
    {"pc", WordUse::Look, codePage<437>},
    {"pca", WordUse::Look, codePage<850>},
    {"deff", WordUse::Look, [](State& state, Number n) { state.defaultFont = n.value(); }},
    {"deftab", WordUse::Look,
     [](State& state, Number n) { state.text.defaultTab = std::clamp(n.value(), 90, 14400); }},
    {"uc", WordUse::Look,
     [](State& state, Number n) { state.now().bytesAfterUnicode = std::clamp(n.value(), 0, 100); }},
    {"fnil", WordUse::Look, fontKind<FontKind::Any>},
    {"froman", WordUse::Look, fontKind<FontKind::Roman>},
    {"fswiss", WordUse::Look, fontKind<FontKind::Swiss>},
    {"fmodern", WordUse::Look, fontKind<FontKind::Modern>},
    {"fscript", WordUse::Look, fontKind<FontKind::Script>},
    {"fdecor", WordUse::Look, fontKind<FontKind::Decorative>},
    {"fcharset", WordUse::Look, [](State& state, Number n) { state.fonts.setCharacterSet(n.value()); }},
    {"cpg", WordUse::Look, [](State& state, Number n) { state.fonts.setCodePage(n.value()); }},
    {"red", WordUse::Look, colorPart<0>},
    {"green", WordUse::Look, colorPart<1>},
    {"blue", WordUse::Look, colorPart<2>},
    {"list", WordUse::Look, list},
    {"levelnfc", WordUse::Look, levelNumbers},
    {"levelstartat", WordUse::Look, levelStart},
    {"listid", WordUse::Look, listId},
    {"pngblip", WordUse::Look, pictureKind<PictureKind::Png>},
    {"jpegblip", WordUse::Look, pictureKind<PictureKind::Jpeg>},
    {"wmetafile", WordUse::Look, otherPicture},
    {"emfblip", WordUse::Look, otherPicture},
    {"dibitmap", WordUse::Look, otherPicture},
    {"wbitmap", WordUse::Look, otherPicture},
    {"macpict", WordUse::Look, otherPicture},
    {"picwgoal", WordUse::Look, [](State& state, Number n) { state.picture.width = n.twips(); }},
    {"pichgoal", WordUse::Look, [](State& state, Number n) { state.picture.height = n.twips(); }},
    {"picscalex", WordUse::Look,
     [](State& state, Number n) { state.picture.scaleAcross = n.told.value_or(100); }},
    {"picscaley", WordUse::Look,
     [](State& state, Number n) { state.picture.scaleDown = n.told.value_or(100); }},
};

} // namespace

std::span<const RtfWordRow> headerWords() { return Words; }

} // namespace tabrova
