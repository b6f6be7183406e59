#include "richtext/state/rtf_fonts.h"

namespace tabrova {

void RtfFonts::begin(int number) {
    if (rows_.size() >= MostFonts) return;
    indexes_[number] = static_cast<int>(rows_.size());
    rows_.push_back({});
    text_.fonts.push_back({});
}

void RtfFonts::setKind(FontKind kind) {
    if (!rows_.empty()) text_.fonts.back().kind = kind;
}

void RtfFonts::setCharacterSet(int characterSet) {
    if (!rows_.empty()) rows_.back().characterSet = characterSet;
}

void RtfFonts::setCodePage(int codePage) {
    if (!rows_.empty()) rows_.back().codePage = codePage;
}

void RtfFonts::addName(std::string_view bytes, int textCodePage) {
    if (rows_.empty() || rows_.back().named) return;
    QString& name = text_.fonts.back().name;
    const std::size_t end = bytes.find(';');
    if (end != std::string_view::npos) rows_.back().named = true;
    const int own = codePageOf(static_cast<int>(rows_.size()) - 1, textCodePage);
    CodePageText text;
    text.add(bytes.substr(0, end), own == SymbolCodePage ? textCodePage : own);
    name = (name + text.take()).left(LongestName);
}

int RtfFonts::indexOf(int number) const {
    const auto found = indexes_.find(number);
    return found == indexes_.end() ? -1 : found->second;
}

int RtfFonts::codePageOf(int index, int textCodePage) const {
    if (index < 0) return textCodePage;
    const Row& row = rows_[static_cast<std::size_t>(index)];
    return row.codePage > 0 ? row.codePage : codePageOfCharacterSet(row.characterSet, textCodePage);
}

} // namespace tabrova
