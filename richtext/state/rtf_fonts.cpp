#include "richtext/state/rtf_fonts.h"

#include <algorithm>
#include <utility>

namespace tabrova {

void RtfFonts::begin(int number) {
    end();
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

// A character of several bytes may come in pieces.
void RtfFonts::addName(std::string_view bytes, int textCodePage) {
    if (!takesName()) return;
    const std::size_t end = bytes.find(';');
    const int own = codePageOf(static_cast<int>(rows_.size()) - 1, textCodePage);
    nameCodePage_ = own == SymbolCodePage ? textCodePage : own;
    name_ += bytes.substr(0, std::min(end, MostNameBytes - name_.size()));
    if (end == std::string_view::npos) return;
    RtfFonts::end();
    rows_.back().named = true;
}

void RtfFonts::addName(const QString& characters) {
    if (!takesName()) return;
    end();
    text_.fonts.back().name += characters.left(LongestName - text_.fonts.back().name.size());
}

void RtfFonts::end() {
    if (name_.empty()) return;
    CodePageText text;
    text.add(std::exchange(name_, {}), nameCodePage_);
    QString& name = text_.fonts.back().name;
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
