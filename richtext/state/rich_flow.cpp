#include "richtext/state/rich_flow.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int CellWithoutEdge = 1440;

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
    return characters_ >= MostCharacters || blockCount_ >= MostBlocks || runCount_ >= MostRuns;
}

void RichFlow::addText(const QString& text, const CharacterLook& look) {
    if (text.isEmpty() || isFull()) return;
    const QStringView taken = QStringView(text).left(static_cast<qsizetype>(MostCharacters - characters_));
    characters_ += static_cast<std::size_t>(taken.size());
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
    if (name.isEmpty() || isFull()) return;
    ++runCount_;
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
    ++blockCount_;
    paragraph_.look = look;
    paragraph_.endLook = endLook;
    blocks().emplace_back(std::move(paragraph_));
    paragraph_ = {};
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
    blockCount_ += std::max(look.cells.size(), row.cells.size());
    levelRow(row);
    open_.back().table.rows.push_back(std::move(row));
}

} // namespace tabrova
