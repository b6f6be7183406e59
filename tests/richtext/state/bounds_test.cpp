// A text of any size becomes no more than so much.
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"
#include "tests/richtext/rich_rules.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using namespace tests;

void expectBounds(const RichText& text) { EXPECT_STREQ(RichRules(text).broken(), nullptr); }

std::size_t charactersOf(const RichText& text) {
    RichRules rules(text);
    EXPECT_STREQ(rules.broken(), nullptr);
    return rules.characters();
}

TEST(Bounds, OfCharacters) {
    EXPECT_EQ(charactersOf(readBody(std::string(2'100'000, 'x'))), 2'000'000U);
    EXPECT_EQ(charactersOf(readPlainText(std::string(2'100'000, 'x'))), 2'000'000U);
    const RichText pieces = readBody(std::string(1'999'999, 'x') + "\\b yz\\par a");
    EXPECT_EQ(std::get<RichParagraph>(pieces.blocks.back()).runs.back().text, "y");
}

TEST(Bounds, ALongParagraphBecomesSeveral) {
    const RichText text = readBody("\\qc\\b " + std::string(25'000, 'x') + "\\par y");
    ASSERT_EQ(text.blocks.size(), 4U);
    EXPECT_EQ(runAt(text, 0).text.size(), 10'001);
    EXPECT_EQ(described(paragraphAt(text, 1).look), "side=2");
    EXPECT_EQ(described(paragraphAt(text, 2).runs[0].look), "bold");
    EXPECT_EQ(shown(paragraphAt(text, 3)), "y");
    EXPECT_EQ(readBody("\\fs240 " + std::string(1500, 'x')).blocks.size(), 2U);
    EXPECT_EQ(readBody("\\up240\\fs1 " + std::string(1500, 'x')).blocks.size(), 2U);
    EXPECT_EQ(readPlainText(std::string(10'002, 'x')).blocks.size(), 2U);
    EXPECT_EQ(readPlainText(std::string(10'001, 'x') + "\n").blocks.size(), 2U);
}

TEST(Bounds, ALongParagraphEndsWithALineIfItCan) {
    const RichText text = readBody(repeated(std::string(99, 'x') + "\\line ", 120));
    ASSERT_EQ(text.blocks.size(), 3U);
    EXPECT_EQ(runAt(text, 0).text.size(), 51 * 100 - 1);
    EXPECT_TRUE(runAt(text, 0).text.endsWith('x'));
}

TEST(Bounds, AParagraphHasSoManyRunsAndTabs) {
    const RichText runs = readBody(repeated("\\b x\\b0 y", 201));
    ASSERT_EQ(runs.blocks.size(), 2U);
    EXPECT_EQ(paragraphAt(runs, 0).runs.size(), 400U);
    const RichText tabs = readBody(std::string(1000, '\t'));
    ASSERT_EQ(tabs.blocks.size(), 10U);
    EXPECT_EQ(runAt(tabs, 0).text.size(), 100);
    EXPECT_EQ(readBody(repeated("\\tab", 101)).blocks.size(), 2U);
    EXPECT_EQ(runAt(readBody(repeated("a\\tab\\tab\\line ", 100)), 0).text.size(), 25 * 4 - 1);
    EXPECT_EQ(readBody(repeated("a\\tab\\par ", 500)).blocks.size(), 500U);
}

TEST(Bounds, OfTheHeight) {
    const auto paragraphs = [](const std::string& words, const std::string& text) {
        return readBody(words + " " + repeated(text + "\\par ", 10'000)).blocks.size();
    };
    EXPECT_EQ(paragraphs("", "word"), 10'000U);
    EXPECT_EQ(paragraphs("\\fs48", std::string(80, 'x')), 10'000U);
    EXPECT_LT(paragraphs("\\fs49", std::string(80, 'x')), 4000U);
    EXPECT_LT(paragraphs("\\fs1000", "word"), 3000U);
    EXPECT_LT(paragraphs("\\sb31680", "word"), 3800U);
    EXPECT_LT(paragraphs("\\sa31680", "word"), 3800U);
    EXPECT_LT(paragraphs("\\sl2400", std::string(100, 'x')), 4200U);
    EXPECT_LT(paragraphs("\\li4000", std::string(100, 'x')), 5000U);
    EXPECT_LT(paragraphs("\\ri4000", std::string(100, 'x')), 5000U);
    EXPECT_LT(paragraphs("\\sl2400", repeated("x\\line ", 20)), 3800U);
    EXPECT_EQ(paragraphs("\\li1000\\ri1000\\sb120\\sa120\\sl300", std::string(100, 'x')), 10'000U);
    EXPECT_EQ(readBody(repeated("\\pard\\par{\\pict\\pngblip\\picwgoal20000\\pichgoal31680 00}", 490))
                  .pictures.size(),
              490U);
}

TEST(Bounds, OfParagraphs) {
    const RichText text = readBody(repeated("\\par", 50'100));
    expectBounds(text);
    EXPECT_EQ(text.blocks.size(), 50'000U);
    EXPECT_EQ(readPlainText(std::string(50'100, '\n')).blocks.size(), 50'000U);
}

// So many paragraphs, rows of one cell or tables of one row.
TEST(Bounds, OfTables) {
    const std::string row = "\\trowd\\cellx1000\\pard\\intbl\\cell\\row";
    EXPECT_EQ(tableAt(readBody(repeated(row, 20'000)), 0).rows.size(), 10'000U);
    EXPECT_EQ(readBody(repeated(row + "\\pard\\par", 20'000)).blocks.size() / 2, 50'000U / 26);
    const std::string inner = "\\pard\\intbl\\itap2\\nestcell{\\*\\nesttableprops\\trowd\\cellx300\\nestrow}";
    const RichText nested = readBody(repeated(inner, 20'000));
    EXPECT_EQ(std::get<std::unique_ptr<RichTable>>(tableAt(nested, 0).rows[0].cells[0][0])->rows.size(),
              50'000U / 15 + 1);
}

TEST(Bounds, OfCells) {
    std::string row = "\\trowd";
    for (int cell = 1; cell <= 60; ++cell)
        row += "\\cellx" + std::to_string(cell * 100);
    const RichText text = readBody(row + "\\pard\\intbl" + repeated("\\cell\\row", 50'000));
    expectBounds(text);
    EXPECT_LT(tableAt(text, 0).rows.size(), 2000U);
}

TEST(Bounds, OfRuns) {
    const RichText text = readBody(repeated("\\b x\\b0 y", 80'000));
    expectBounds(text);
    EXPECT_EQ(charactersOf(text), 150'000U);
}

TEST(Bounds, OfAnchors) {
    EXPECT_EQ(paragraphAt(readBody(repeated("{\\bkmkstart x}", 2100)), 0).anchors.size(), 2000U);
}

TEST(Bounds, OfLinks) {
    const RichText text = readBody(repeated("{\\field{\\fldinst HYPERLINK a}{\\fldrslt x}}", 20'100));
    EXPECT_EQ(text.links.size(), 20'000U);
    EXPECT_EQ(described(std::get<RichParagraph>(text.blocks.back()).runs.back().look), "");
}

TEST(Bounds, OfSignsOfLists) {
    const RichText text =
        readBody("{\\listtable{\\list\\levelnfc4\\levelstartat3000\\listid1}}{\\listoverridetable\\listid1"
                 "\\ls1}\\pard\\ls1" +
                 repeated(" x\\par", 50'000));
    expectBounds(text);
    EXPECT_EQ(runAt(text, 0).text.size(), 116 + 2);
}

} // namespace
} // namespace tabrova
