// What holds for every rich text that was read, whatever its bytes.
#pragma once

#include "richtext/state/rich_flow.h"
#include "richtext/state/rtf_state.h"

namespace tabrova::tests {

class RichRules {
  public:
    explicit RichRules(const RichText& text) : text_(text) {}

    // Names one that does not hold; nullptr if all do.
    const char* broken() {
        check(text_.fonts.size() <= RtfFonts::MostFonts, "too many fonts");
        check(text_.links.size() <= RtfState::MostLinks, "too many links");
        check(text_.pictures.size() <= RtfState::MostPictures, "too many pictures");
        check(text_.defaultTab >= 90, "a tab of no width");
        for (const RichPicture& picture : text_.pictures)
            check(!picture.bytes.isEmpty() && picture.bytes.size() <= RtfPicture::MostBytes &&
                      picture.width >= 0 && picture.height >= 0,
                  "a picture out of its bounds");
        checkBlocks(text_.blocks, 0);
        check(characters_ <= RichFlow::MostCharacters + 200, "too many characters");
        check(blocks_ <= RichFlow::MostBlocks + 1000, "too many blocks");
        check(runs_ <= RichFlow::MostRuns + 2, "too many runs");
        return broken_;
    }

    std::size_t characters() const { return characters_; }
    std::size_t blocks() const { return blocks_; }

  private:
    void check(bool holds, const char* rule) {
        if (!holds && !broken_) broken_ = rule;
    }

    static bool isIndex(int index, std::size_t size) {
        return index >= -1 && (index < 0 || static_cast<std::size_t>(index) < size);
    }

    void checkLook(const CharacterLook& look) {
        check(isIndex(look.font, text_.fonts.size()), "a font that is not there");
        check(isIndex(look.link, text_.links.size()), "a link that is not there");
        check(look.halfPoints > 0, "a font of no height");
    }

    void checkParagraph(const RichParagraph& paragraph) {
        check(paragraph.look.tabs.size() <= RtfState::MostTabs, "too many tabs");
        check(paragraph.look.above >= 0 && paragraph.look.below >= 0 && paragraph.look.line >= 0,
              "a space below nothing");
        checkLook(paragraph.endLook);
        runs_ += paragraph.runs.size() + paragraph.anchors.size();
        for (const RichRun& run : paragraph.runs) {
            checkLook(run.look);
            check(isIndex(run.picture, text_.pictures.size()), "a picture that is not there");
            check(run.picture >= 0 || !run.text.isEmpty(), "a run of nothing");
            characters_ += static_cast<std::size_t>(run.text.size());
        }
    }

    void checkRow(const RichRow& row, int depth) {
        check(!row.cells.empty() && row.cells.size() <= RichFlow::MostCells, "cells out of their bounds");
        check(row.cells.size() == row.look.cells.size(), "a cell without a look");
        blocks_ += row.cells.size();
        for (const RichCell& cell : row.cells)
            checkBlocks(cell, depth);
    }

    void checkBlocks(const std::vector<RichBlock>& blocks, int depth) {
        check(depth <= RichFlow::MostNested, "tables too deep");
        for (const RichBlock& block : blocks) {
            if (const auto* paragraph = std::get_if<RichParagraph>(&block)) {
                ++blocks_;
                checkParagraph(*paragraph);
                continue;
            }
            const RichTable& table = *std::get<std::unique_ptr<RichTable>>(block);
            check(!table.rows.empty(), "a table without rows");
            for (const RichRow& row : table.rows)
                checkRow(row, depth + 1);
        }
    }

    const RichText& text_;
    const char* broken_ = nullptr;
    std::size_t characters_ = 0;
    std::size_t blocks_ = 0;
    std::size_t runs_ = 0;
};

} // namespace tabrova::tests
