// Puts a rich text together as its parts come along: runs into paragraphs, those into the cells of tables
// that may stand in one another. Bounds what any text may become.
#pragma once

#include "richtext/state/rich_text.h"

namespace tabrova {

class RichFlow {
  public:
    explicit RichFlow(RichText& text) : text_(text) {}

    static constexpr std::size_t MostCharacters = 2'000'000;
    static constexpr std::size_t MostBlocks = 100'000; // paragraphs and cells
    static constexpr std::size_t MostRuns = 400'000;
    static constexpr std::size_t MostCells = 60; // of a row; what follows stands in the last one
    static constexpr int MostNested = 4;         // tables in one another

    // Adds to the paragraph under way.
    void addText(const QString& text, const CharacterLook& look);
    void addPicture(RichPicture picture, const CharacterLook& look);
    void addAnchor(const QString& name);
    // Before all else in the paragraph.
    void putFirst(const QString& text, const CharacterLook& look);

    // How deep in tables the paragraph, cell or row stands: 0 for the page.
    void endParagraph(const ParagraphLook& look, const CharacterLook& endLook, int nested);
    void endCell(const ParagraphLook& look, const CharacterLook& endLook, int nested);
    void endRow(const RowLook& look, int nested);
    // Ends what is still open.
    void finish(const ParagraphLook& look, const CharacterLook& endLook, int nested);

    bool isParagraphEmpty() const { return paragraph_.runs.empty() && paragraph_.anchors.empty(); }
    std::size_t characters() const { return characters_; }
    // Nothing more is to be added.
    bool isFull() const;

  private:
    struct OpenTable {
        RichTable table;
        RichRow row;
        RichCell cell;
    };

    RichCell& blocks() { return open_.empty() ? text_.blocks : open_.back().cell; }
    void nestTo(int nested);
    void closeTable();
    void closeCell();
    void closeRow(const RowLook& look);

    RichText& text_;
    RichParagraph paragraph_;
    std::vector<OpenTable> open_; // from the outermost on
    std::size_t characters_ = 0;
    std::size_t blockCount_ = 0;
    std::size_t runCount_ = 0;
};

} // namespace tabrova
