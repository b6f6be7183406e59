// What each word of the table of tables does.
#include "richtext/state/rtf_words.h"
#include "tests/richtext/rich_helpers.h"

#include <gmock/gmock.h>

#include <set>

namespace tabrova {
namespace {

using namespace tests;
using testing::Contains;

struct WordCase {
    const char* words;
    const char* look;
};

// Of the only cell of a row.
constexpr WordCase CellWords[] = {
    {"clpadl100", "gap=100"},
    {"clpadl-100", "gap=0"},
    {"clpadl9999", "gap=1440"},
    {"clmgf", "across=1"},
    {"clmrg", "across=2"},
    {"clvmgf", "down=1"},
    {"clvmrg", "down=2"},
    {"clvertalt", ""},
    {"clvertalc\\clvertalt", ""},
    {"clvertalc", "place=1"},
    {"clvertalb", "place=2"},
    {"clcbpat1", "back=ff0000"},
    {"clcbpat1\\clcbpat0", ""},
    {"clcbpat7", ""},
    {"clbrdrt\\brdrs", "T(drawn)"},
    {"clbrdrl\\brdrs", "L(drawn)"},
    {"clbrdrb\\brdrs", "B(drawn)"},
    {"clbrdrr\\brdrs", "R(drawn)"},
    {"clbrdrt\\brdrth", "T(drawn)"},
    {"clbrdrt\\brdrdb", "T(drawn)"},
    {"clbrdrt\\brdrdot", "T(drawn)"},
    {"clbrdrt\\brdrdash", "T(drawn)"},
    {"clbrdrt\\brdrdashsm", "T(drawn)"},
    {"clbrdrt\\brdrhair", "T(drawn)"},
    {"clbrdrt\\brdrtnthsg", "T(drawn)"},
    {"clbrdrt\\brdrtriple", "T(drawn)"},
    {"clbrdrt\\brdrs\\brdrnone", ""},
    {"clbrdrt\\brdrs\\brdrnil", ""},
    {"clbrdrt\\brdrs\\brdrtbl", ""},
    {"clbrdrt\\brdrs\\brdrw40\\brdrcf2", "T(drawn width=40 color=0000ff)"},
    {"clbrdrt\\brdrs\\brdrw-1", "T(drawn width=0)"},
    {"clbrdrt\\brdrs\\brdrw999", "T(drawn width=150)"},
    {"clbrdrt\\brdrs\\brdrcf9", "T(drawn)"},
    {"clbrdrt\\brdrs\\clbrdrb\\brdrdb\\brdrw30", "T(drawn) B(drawn width=30)"},
    {"brdrs\\brdrw30\\brdrcf1\\brdrnil", ""},
    {"clbrdrt\\trbrdrt\\brdrs\\brdrw30\\brdrcf1", ""},
    {"clbrdrt\\trbrdrl\\brdrs", ""},
    {"clbrdrt\\trbrdrb\\brdrs", ""},
    {"clbrdrt\\trbrdrr\\brdrs", ""},
    {"clbrdrt\\trbrdrh\\brdrs", ""},
    {"clbrdrt\\trbrdrv\\brdrs", ""},
};

TEST(TableWords, EachHasItsEffectOnTheCell) {
    for (const WordCase& row : CellWords) {
        const RichText text =
            readBody(std::string("\\trowd\\") + row.words + "\\cellx1000\\pard\\intbl a\\cell\\row");
        EXPECT_EQ(described(tableAt(text, 0).rows[0].look.cells[0]), row.look) << row.words;
    }
}

TEST(TableWords, NoneIsWithoutATest) {
    std::set<std::string> tested = {"trowd", "trleft", "trgaph", "trpaddl", "trql",     "trqc",
                                    "trqr",  "cellx",  "cell",   "row",     "nestcell", "nestrow"};
    for (const WordCase& row : CellWords) {
        const std::string words = std::string("\\") + row.words;
        for (std::size_t at = 0; at != std::string::npos; at = words.find('\\', at + 1))
            tested.insert(words.substr(at + 1, words.find_first_of("\\-0123456789", at + 1) - at - 1));
    }
    for (const RtfWordRow& row : tableWords())
        EXPECT_THAT(tested, Contains(std::string(row.name)));
}

RowLook rowLook(const std::string& words) {
    const RichText text = readBody("\\trowd\\" + words + "\\cellx1000\\pard\\intbl a\\cell\\row");
    return tableAt(text, 0).rows[0].look;
}

TEST(TableWords, ARowHasALeftEdgeAGapAndASide) {
    EXPECT_EQ(rowLook("trleft-108").left, -108);
    EXPECT_EQ(rowLook("trleft99999").left, 31680);
    EXPECT_EQ(rowLook("trgaph70").gap, 70);
    EXPECT_EQ(rowLook("trgaph-70").gap, 0);
    EXPECT_EQ(rowLook("trgaph9999").gap, 1440);
    EXPECT_EQ(rowLook("trpaddl80").gap, 80);
    EXPECT_EQ(rowLook("trpaddl-80").gap, 0);
    EXPECT_EQ(rowLook("trpaddl9999").gap, 1440);
    EXPECT_EQ(rowLook("trql").side, TextSide::Left);
    EXPECT_EQ(rowLook("trqc").side, TextSide::Middle);
    EXPECT_EQ(rowLook("trqr").side, TextSide::Right);
    EXPECT_EQ(rowLook("trqr\\trql").side, TextSide::Left);
    EXPECT_EQ(rowLook("trkeep").gap, 60);
}

TEST(TableWords, CellsHaveEdges) {
    const RichText text =
        readBody("\\trowd\\cellx1000\\cellx99999\\cellx-5\\intbl a\\cell b\\cell c\\cell\\row");
    const auto& cells = tableAt(text, 0).rows[0].look.cells;
    ASSERT_EQ(cells.size(), 3U);
    EXPECT_EQ(cells[0].end, 1000);
    EXPECT_EQ(cells[1].end, 31680);
    EXPECT_EQ(cells[2].end, -5);
}

TEST(TableWords, ACellsWordsEndWithItsEdge) {
    const RichText text =
        readBody("\\trowd\\clvertalc\\clbrdrt\\brdrs\\cellx1000\\brdrdb\\brdrs\\cellx2000\\intbl "
                 "a\\cell b\\cell\\row");
    const auto& cells = tableAt(text, 0).rows[0].look.cells;
    EXPECT_EQ(described(cells[0]), "place=1 T(drawn)");
    EXPECT_EQ(described(cells[1]), "");
}

TEST(TableWords, ANewRowForgetsTheOneBefore) {
    const RichText text =
        readBody("\\trowd\\trqr\\trgaph9\\clvertalc\\cellx1000\\clvmgf\\clbrdrt\\trowd\\brdrs"
                 "\\cellx500\\intbl a\\cell\\row");
    const RowLook& row = tableAt(text, 0).rows[0].look;
    EXPECT_EQ(row.side, TextSide::Left);
    EXPECT_EQ(row.gap, 60);
    ASSERT_EQ(row.cells.size(), 1U);
    EXPECT_EQ(row.cells[0].end, 500);
    EXPECT_EQ(described(row.cells[0]), "");
}

} // namespace
} // namespace tabrova
