// The tables that rows and cells of a rich text become, also of texts that tell them badly.
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using namespace tests;

constexpr const char* TwoCells = "\\trowd\\cellx1000\\cellx2000\\pard\\intbl ";

std::string row(const std::string& first, const std::string& second) {
    return TwoCells + first + "\\cell " + second + "\\cell\\row\\pard ";
}

TEST(Tables, RowsThatFollowEachOtherAreATable) {
    EXPECT_EQ(shownBody(row("a", "b") + row("c", "d")), "[a|b;c|d]");
    EXPECT_EQ(shownBody("x\\par " + row("a", "b") + "y\\par " + row("c", "d")), "x/[a|b]/y/[c|d]");
}

TEST(Tables, ACellHoldsParagraphs) {
    EXPECT_EQ(shownBody(row("a\\par b", "c")), "[a/b|c]");
    EXPECT_EQ(shownBody(row("a\\par", "")), "[a/|]");
}

TEST(Tables, TheRowsOfAGroupGoOnBehindIt) {
    EXPECT_EQ(shownBody("{" + row("a", "b") + "}{" + row("c", "d") + "}e"), "[a|b;c|d]/e");
}

TEST(Tables, ARowMayBeToldBehindItsCells) {
    const RichText text = readBody("\\pard\\intbl a\\cell b\\cell\\trowd\\cellx700\\cellx900\\row");
    EXPECT_EQ(shown(text), "[a|b]");
    EXPECT_EQ(tableAt(text, 0).rows[0].look.cells[0].end, 700);
}

TEST(Tables, ARowsLookServesTheNextRowToo) {
    const RichText text = readBody(std::string(TwoCells) + "a\\cell b\\cell\\row c\\cell d\\cell\\row");
    EXPECT_EQ(shown(text), "[a|b;c|d]");
    EXPECT_EQ(tableAt(text, 0).rows[1].look.cells[1].end, 2000);
}

TEST(Tables, TextOfATableWithoutACellsEndIsACell) {
    EXPECT_EQ(shownBody(std::string(TwoCells) + "a\\par b"), "[a/b]");
    EXPECT_EQ(shownBody(std::string(TwoCells) + "a\\cell b\\row"), "[a|b]");
    EXPECT_EQ(shownBody(std::string(TwoCells) + "a\\par\\pard c\\par"), "[a]/c");
}

TEST(Tables, WithoutARowsEndItsCellsAreARow) {
    const RichText text = readBody(std::string(TwoCells) + "a\\cell b\\cell\\pard c\\par");
    EXPECT_EQ(shown(text), "[a|b]/c");
    EXPECT_EQ(tableAt(text, 0).rows[0].look.cells[0].end, 1440);
    EXPECT_EQ(tableAt(text, 0).rows[0].look.cells[1].end, 2880);
}

TEST(Tables, ACellNeedNotBeSaidToStandInATable) {
    EXPECT_EQ(shownBody("\\trowd\\cellx1000\\pard a\\cell\\row b"), "[a]/b");
}

TEST(Tables, ARowWithoutCellsIsNone) {
    EXPECT_EQ(shownBody("\\row a"), "a");
    EXPECT_EQ(shownBody("\\trowd\\cellx100\\row\\row\\pard a"), "a");
    EXPECT_EQ(shownBody("\\pard\\intbl\\pard a"), "a");
}

TEST(Tables, MissingCellsAreEmptyOnes) {
    EXPECT_EQ(shownBody(std::string(TwoCells) + "a\\cell\\row"), "[a|]");
}

TEST(Tables, CellsWithoutALookFollowTheOthers) {
    const RichText text = readBody("\\trowd\\cellx1000\\pard\\intbl a\\cell b\\cell c\\cell\\row");
    const auto& cells = tableAt(text, 0).rows[0].look.cells;
    ASSERT_EQ(cells.size(), 3U);
    EXPECT_EQ(cells[1].end, 1000 + 1440);
    EXPECT_EQ(cells[2].end, 1000 + 2 * 1440);
    const RichText without = readBody("\\trowd\\trleft50\\pard\\intbl a\\cell\\row");
    EXPECT_EQ(tableAt(without, 0).rows[0].look.cells[0].end, 50 + 1440);
}

TEST(Tables, CellsBeyondTheMostStandInTheLastOne) {
    std::string body = "\\trowd\\pard\\intbl ";
    for (int cell = 0; cell < 62; ++cell)
        body += "c" + std::to_string(cell) + "\\cell ";
    const RichText text = readBody(body + "\\row");
    const RichRow& wide = tableAt(text, 0).rows[0];
    ASSERT_EQ(wide.cells.size(), 60U);
    EXPECT_EQ(wide.look.cells.size(), 60U);
    EXPECT_EQ(shown(wide.cells[58]), "c58");
    EXPECT_EQ(shown(wide.cells[59]), "c59/c60/c61");
}

TEST(Tables, LooksBeyondTheMostAreLeftOut) {
    std::string body = "\\trowd";
    for (int cell = 1; cell < 80; ++cell)
        body += "\\cellx" + std::to_string(cell * 100);
    const RichText text = readBody(body + "\\pard\\intbl a\\cell\\row");
    EXPECT_EQ(tableAt(text, 0).rows[0].look.cells.size(), 60U);
    EXPECT_EQ(tableAt(text, 0).rows[0].cells.size(), 60U);
}

constexpr const char* Inner =
    "\\pard\\intbl\\itap2 x\\nestcell y\\nestcell{\\*\\nesttableprops\\trowd\\cellx300"
    "\\cellx600\\nestrow}{\\nonesttables\\par}";

TEST(Tables, ATableMayStandInACell) {
    const RichText text = readBody(std::string("\\trowd\\cellx1000\\cellx2000\\pard\\intbl a\\par ") + Inner +
                                   "\\pard\\intbl b\\cell c\\cell\\row\\pard d");
    EXPECT_EQ(shown(text), "[a/[x|y]/b|c]/d");
    const RichRow& outer = tableAt(text, 0).rows[0];
    EXPECT_EQ(outer.look.cells[1].end, 2000);
    const auto& inner = *std::get<std::unique_ptr<RichTable>>(outer.cells[0][1]);
    EXPECT_EQ(inner.rows[0].look.cells[0].end, 300);
    EXPECT_EQ(inner.rows[0].look.cells[1].end, 600);
}

TEST(Tables, ATableInsideMayHaveRows) {
    EXPECT_EQ(shownBody(std::string("\\trowd\\cellx1000") + Inner + Inner + "\\pard\\intbl\\cell\\row"),
              "[[x|y;x|y]/]");
}

TEST(Tables, ATableInsideOfNoRowOpensOne) {
    EXPECT_EQ(shownBody(Inner), "[[x|y]]");
    EXPECT_EQ(shownBody("\\pard\\intbl\\itap2 x\\nestcell\\nestrow"), "[[x]]");
    EXPECT_EQ(shownBody("\\nestrow x"), "x");
}

TEST(Tables, DeeperTablesThanTheMostStandInTheLast) {
    EXPECT_EQ(shownBody("\\pard\\intbl\\itap9 x\\nestcell"), "[[[[x]]]]");
}

TEST(Tables, ADepthOfNothingIsThePage) {
    EXPECT_EQ(shownBody("\\pard\\intbl\\itap0 x\\par"), "x");
    EXPECT_EQ(shownBody("\\pard\\itap1 x\\par"), "[x]");
    EXPECT_EQ(shownBody("\\pard\\itap-1 x\\par"), "x");
}

TEST(Tables, APictureOrALookStaysInItsCell) {
    const RichText text =
        readBody("\\trowd\\cellx1000\\cellx2000\\pard\\intbl\\qc a\\cell\\pard\\intbl b\\cell\\row");
    const RichRow& first = tableAt(text, 0).rows[0];
    EXPECT_EQ(described(std::get<RichParagraph>(first.cells[0][0]).look), "side=2");
    EXPECT_EQ(described(std::get<RichParagraph>(first.cells[1][0]).look), "");
}

} // namespace
} // namespace tabrova
