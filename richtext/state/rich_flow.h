// Puts a rich text together as its parts come along: runs into paragraphs, those into the cells of tables
// that may stand in one another. Bounds what any text may become.
#pragma once

#include "richtext/state/rich_text.h"

namespace tabrova {

class RichFlow {
  public:
    explicit RichFlow(RichText& text) : text_(text) {}

    static constexpr std::size_t MostCharacters = 2'000'000;
    // Paragraphs, and cells and tables, which take as much time to lay out as several. Inside of other tables
    // each counts for more.
    static constexpr std::size_t MostBlocks = 50'000;
    static constexpr std::size_t MostRuns = 150'000;
    static constexpr std::size_t MostAnchors = 2000;
    // What a page may be high, in half points, if as few characters as may be stand in a line: beyond it the
    // toolkit's numbers end.
    static constexpr std::size_t MostHeight = 12'000'000;
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

    // The paragraph is better ended, and its text goes on in the next: the time to lay it out grows with the
    // square of its length.
    bool isParagraphLong() const;
    // It becomes long: where a line of it ends it may end as well.
    bool isParagraphLarge() const;
    // How many characters of a text the paragraph takes before it is long; at least one.
    qsizetype fitting(QStringView text, const CharacterLook& look) const;
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

    std::size_t pieces() const;
    std::size_t heightOf(const RichParagraph& paragraph, int nested) const;
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
    std::size_t anchorCount_ = 0;
    std::size_t height_ = 0;        // of the paragraphs so far, half points
    std::size_t tabCount_ = 0;      // of the paragraph under way
    std::size_t paragraphSize_ = 0; // of the characters under way, each by its height in half points
};

} // namespace tabrova
