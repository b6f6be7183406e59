// A text of any size becomes no more than so much.
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"
#include "tests/richtext/rich_rules.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using namespace tests;

void expectBounds(const RichText& text) { EXPECT_STREQ(RichRules(text).broken(), nullptr); }

TEST(Bounds, OfCharacters) {
    for (const RichText& text :
         {readBody(std::string(2'100'000, 'x')), readPlainText(std::string(2'100'000, 'x'))}) {
        expectBounds(text);
        EXPECT_EQ(runAt(text, 0).text.size(), 2'000'000);
    }
    const RichText pieces = readBody(std::string(1'999'999, 'x') + "\\b yz\\par a");
    EXPECT_EQ(runAt(pieces, 1).text, "y");
    EXPECT_EQ(pieces.blocks.size(), 1U);
}

TEST(Bounds, OfParagraphs) {
    const RichText text = readBody(repeated("\\par", 100'100));
    expectBounds(text);
    EXPECT_EQ(text.blocks.size(), 100'000U);
    EXPECT_EQ(readPlainText(std::string(100'100, '\n')).blocks.size(), 100'000U);
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
    const RichText text = readBody(repeated("\\b x\\b0 y", 200'100));
    expectBounds(text);
    EXPECT_EQ(paragraphAt(text, 0).runs.size(), 400'000U);
}

TEST(Bounds, OfAnchors) {
    const RichText text = readBody(repeated("{\\bkmkstart x}", 400'100));
    expectBounds(text);
    EXPECT_EQ(paragraphAt(text, 0).anchors.size(), 400'000U);
}

TEST(Bounds, OfLinks) {
    const RichText text = readBody(repeated("{\\field{\\fldinst HYPERLINK a}{\\fldrslt x}}", 20'100));
    EXPECT_EQ(text.links.size(), 20'000U);
    EXPECT_EQ(described(paragraphAt(text, 0).runs.back().look), "");
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
