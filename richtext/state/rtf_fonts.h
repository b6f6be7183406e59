// The font table of a rich text, by the numbers that the text gives its fonts.
#pragma once

#include "richtext/state/code_pages.h"
#include "richtext/state/rich_text.h"

#include <unordered_map>

namespace tabrova {

class RtfFonts {
  public:
    explicit RtfFonts(RichText& text) : text_(text) {}

    static constexpr std::size_t MostFonts = 1000;

    // In the table: a font begins, and what is told of it.
    void begin(int number);
    void setKind(FontKind kind);
    void setCharacterSet(int characterSet);
    void setCodePage(int codePage);
    // Bytes of its name, up to a semicolon.
    void addName(std::string_view bytes, int textCodePage);
    void addName(const QString& characters);
    void end();

    // In the text. -1 for a font that the table lacks.
    int indexOf(int number) const;
    int codePageOf(int index, int textCodePage) const;

  private:
    struct Row {
        int characterSet = -1; // not told
        int codePage = 0;      // not told
        bool named = false;
    };
    static constexpr qsizetype LongestName = 100;
    static constexpr std::size_t MostNameBytes = 400;

    bool takesName() const { return !rows_.empty() && !rows_.back().named; }

    RichText& text_; // its fonts, by index
    std::vector<Row> rows_;
    std::string name_; // bytes of the last row's, of which characters are still to be made
    int nameCodePage_ = WesternCodePage;
    std::unordered_map<int, int> indexes_;
};

} // namespace tabrova
