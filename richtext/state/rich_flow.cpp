#include "richtext/state/rich_flow.h"

#include <algorithm>
#include <cstdlib>

namespace tabrova {

namespace {

constexpr int CellWithoutEdge = 1440;
constexpr std::size_t CellBlocks = 4;   // blocks that a cell counts for
constexpr std::size_t TableBlocks = 20; // and a table

constexpr std::size_t LongestParagraph = 240'000; // characters by their height: 10,000 ordinary ones
constexpr std::size_t MostPieces = 400;           // of a paragraph: its runs, and its tabs at four each
constexpr std::size_t TabPieces = 4;

std::size_t sizeOf(const CharacterLook& look) {
    return static_cast<std::size_t>(look.halfPoints) + static_cast<std::size_t>(std::abs(look.raised));
}

// A table is laid out several times for each time that the one around it is.
std::size_t layoutsOf(int nested) {
    std::size_t count = 1;
    for (int at = 1; at < nested; ++at)
        count *= 3;
    return count;
}

// As many looks as cells, and as many cells as looks.
void levelRow(RichRow& row) {
    auto& looks = row.look.cells;
    looks.resize(std::min(looks.size(), RichFlow::MostCells));
    while (looks.size() < row.cells.size()) {
        CellLook next;
        next.end = (looks.empty() ? row.look.left : looks.back().end) + CellWithoutEdge;
        looks.push_back(next);
    }
    row.cells.resize(looks.size());
}

} // namespace

bool RichFlow::isFull() const {
    return characters_ >= MostCharacters || blockCount_ >= MostBlocks || runCount_ >= MostRuns ||
           height_ >= MostHeight;
}

std::size_t RichFlow::pieces() const { return paragraph_.runs.size() + TabPieces * tabCount_; }

bool RichFlow::isParagraphLong() const {
    return paragraphSize_ >= LongestParagraph || pieces() >= MostPieces;
}

bool RichFlow::isParagraphLarge() const {
    return paragraphSize_ >= LongestParagraph / 2 || pieces() >= MostPieces / 2;
}

qsizetype RichFlow::fitting(QStringView text, const CharacterLook& look) const {
    const std::size_t left = LongestParagraph - std::min(LongestParagraph, paragraphSize_);
    text = text.left(static_cast<qsizetype>(left / sizeOf(look) + 1));
    std::size_t count = pieces();
    for (qsizetype at = 0; at < text.size(); ++at)
        if (text[at] == '\t' && (count += TabPieces) >= MostPieces) return at + 1;
    return text.size();
}

void RichFlow::addText(const QString& text, const CharacterLook& look) {
    if (text.isEmpty() || isFull()) return;
    const QStringView taken = QStringView(text).left(static_cast<qsizetype>(MostCharacters - characters_));
    characters_ += static_cast<std::size_t>(taken.size());
    paragraphSize_ += static_cast<std::size_t>(taken.size()) * sizeOf(look);
    tabCount_ += static_cast<std::size_t>(taken.count(QChar('\t')));
    auto& runs = paragraph_.runs;
    if (!runs.empty() && runs.back().picture < 0 && runs.back().look == look) {
        runs.back().text += taken;
        return;
    }
    ++runCount_;
    runs.push_back({taken.toString(), look});
}

void RichFlow::addPicture(RichPicture picture, const CharacterLook& look) {
    if (isFull()) return;
    ++runCount_;
    text_.pictures.push_back(std::move(picture));
    paragraph_.runs.push_back({{}, look, static_cast<int>(text_.pictures.size()) - 1});
}

void RichFlow::addAnchor(const QString& name) {
    if (name.isEmpty() || isFull() || anchorCount_ >= MostAnchors) return;
    ++anchorCount_;
    paragraph_.anchors.push_back(name);
}

void RichFlow::putFirst(const QString& text, const CharacterLook& look) {
    if (isFull()) return;
    ++runCount_;
    characters_ += static_cast<std::size_t>(text.size());
    paragraph_.runs.insert(paragraph_.runs.begin(), {text, look});
}

void RichFlow::endParagraph(const ParagraphLook& look, const CharacterLook& endLook, int nested) {
    nestTo(nested);
    blockCount_ += layoutsOf(nested);
    paragraph_.look = look;
    paragraph_.endLook = endLook;
    height_ += heightOf(paragraph_, nested);
    blocks().emplace_back(std::move(paragraph_));
    paragraph_ = {};
    paragraphSize_ = 0;
    tabCount_ = 0;
}

// Of ordinary characters in an ordinary paragraph several stand in a line, of others perhaps one.
std::size_t RichFlow::heightOf(const RichParagraph& paragraph, int nested) const {
    constexpr int OrdinarySize = 48, WidestIndent = 4000, InALine = 8;
    constexpr int HalfPoint = 10; // twips
    const ParagraphLook& look = paragraph.look;
    std::size_t height =
        sizeOf(paragraph.endLook) + static_cast<std::size_t>((look.above + look.below) / HalfPoint);
    for (const RichRun& run : paragraph.runs) {
        if (run.picture >= 0)
            height += static_cast<std::size_t>(text_.pictures[static_cast<std::size_t>(run.picture)].height /
                                               HalfPoint);
        const bool isOrdinary =
            nested == 0 && run.look.halfPoints <= OrdinarySize && look.left + look.right < WidestIndent;
        const auto breaks = static_cast<std::size_t>(run.text.count(QChar(0x2028)));
        const auto characters = static_cast<std::size_t>(run.text.size());
        const std::size_t lines = isOrdinary ? characters / InALine + breaks : characters;
        height += lines * std::max(sizeOf(run.look), static_cast<std::size_t>(look.line / HalfPoint));
    }
    return height * layoutsOf(nested);
}

void RichFlow::endCell(const ParagraphLook& look, const CharacterLook& endLook, int nested) {
    endParagraph(look, endLook, std::max(nested, 1));
    closeCell();
}

void RichFlow::endRow(const RowLook& look, int nested) {
    nestTo(std::max(nested, 1));
    closeRow(look);
}

void RichFlow::finish(const ParagraphLook& look, const CharacterLook& endLook, int nested) {
    if (!isParagraphEmpty()) endParagraph(look, endLook, nested);
    nestTo(0);
}

void RichFlow::nestTo(int nested) {
    const auto depth = static_cast<std::size_t>(std::clamp(nested, 0, MostNested));
    while (open_.size() > depth)
        closeTable();
    open_.resize(depth);
}

void RichFlow::closeTable() {
    closeRow({});
    OpenTable last = std::move(open_.back());
    blockCount_ += TableBlocks * layoutsOf(static_cast<int>(open_.size()));
    open_.pop_back();
    if (!last.table.rows.empty()) blocks().emplace_back(std::make_unique<RichTable>(std::move(last.table)));
}

void RichFlow::closeCell() {
    OpenTable& last = open_.back();
    auto& cells = last.row.cells;
    if (cells.size() < MostCells)
        cells.push_back(std::move(last.cell));
    else
        std::move(last.cell.begin(), last.cell.end(), std::back_inserter(cells.back()));
    last.cell.clear();
}

// A row without a cell is none.
void RichFlow::closeRow(const RowLook& look) {
    if (!open_.back().cell.empty()) closeCell();
    RichRow row = std::move(open_.back().row);
    open_.back().row = {};
    if (row.cells.empty()) return;
    row.look = look;
    blockCount_ += std::max(look.cells.size(), row.cells.size()) * CellBlocks *
                   layoutsOf(static_cast<int>(open_.size()));
    levelRow(row);
    open_.back().table.rows.push_back(std::move(row));
}

} // namespace tabrova
