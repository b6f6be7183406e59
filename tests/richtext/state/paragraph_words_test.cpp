// What each word of the table of paragraphs does.
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

constexpr WordCase Words[] = {
    {"pard", ""},
    {"qc\\li7\\sb3\\tx100\\pard", ""},
    {"ql", ""},
    {"qr\\ql", ""},
    {"qr", "side=1"},
    {"qc", "side=2"},
    {"qj", "side=3"},
    {"rtlpar", "rightToLeft"},
    {"ltrpar", ""},
    {"rtlpar\\ltrpar", ""},
    {"li720", "left=720"},
    {"li-720", "left=-720"},
    {"li99999", "left=31680"},
    {"li-99999", "left=-31680"},
    {"ri300", "right=300"},
    {"fi360", "first=360"},
    {"fi-360", "first=-360"},
    {"sb120", "above=120"},
    {"sb-120", ""},
    {"sa120", "below=120"},
    {"sa-120", ""},
    {"sl300", "spacing=1 line=300"},
    {"sl-300", "spacing=2 line=300"},
    {"sl300\\slmult1", "spacing=3 line=300"},
    {"sl300\\slmult0", "spacing=1 line=300"},
    {"sl-300\\slmult1", "spacing=2 line=300"},
    {"sl0", ""},
    {"sl0\\slmult1", ""},
    {"sl300\\sl0", ""},
    {"slmult1", ""},
    {"tx720", "tab=720L"},
    {"tx720\\tx1440", "tab=720L tab=1440L"},
    {"tqr\\tx720\\tx1440", "tab=720R tab=1440L"},
    {"tqc\\tx720", "tab=720M"},
    {"tqdec\\tx720", "tab=720P"},
    {"tqdec\\pard\\tx720", "tab=720L"},
    {"cbpat1", "back=ff0000"},
    {"cbpat1\\cbpat0", ""},
    {"cbpat9", ""},
};

TEST(ParagraphWords, EachHasItsEffect) {
    for (const WordCase& row : Words)
        EXPECT_EQ(paragraphLook(std::string("\\") + row.words), row.look) << row.words;
}

TEST(ParagraphWords, NoneIsWithoutATest) {
    // Those of tables, lists and borders are tested with them.
    std::set<std::string> tested = {"intbl", "itap",  "ls",    "ilvl", "brdrt",
                                    "brdrl", "brdrb", "brdrr", "box",  "chbrdr"};
    for (const WordCase& row : Words) {
        const std::string words = row.words;
        tested.insert(words.substr(0, words.find_first_of("\\-0123456789")));
        for (std::size_t at = words.find('\\'); at != std::string::npos; at = words.find('\\', at + 1))
            tested.insert(words.substr(at + 1, words.find_first_of("\\-0123456789", at + 1) - at - 1));
    }
    for (const RtfWordRow& row : paragraphWords())
        EXPECT_THAT(tested, Contains(std::string(row.name)));
}

TEST(ParagraphWords, TheLookAtTheEndOfAParagraphIsIts) {
    const RichText text = readBody("\\qc a\\par\\qr b\\qj\\par c\\pard\\par");
    EXPECT_EQ(described(paragraphAt(text, 0).look), "side=2");
    EXPECT_EQ(described(paragraphAt(text, 1).look), "side=3");
    EXPECT_EQ(described(paragraphAt(text, 2).look), "");
}

TEST(ParagraphWords, AGroupGivesTheLookOfParagraphsBack) {
    const RichText text = readBody("{\\qc\\tx100 a\\par}b\\par");
    EXPECT_EQ(described(paragraphAt(text, 0).look), "side=2 tab=100L");
    EXPECT_EQ(described(paragraphAt(text, 1).look), "");
}

TEST(ParagraphWords, AParagraphHasSoManyTabsAtTheMost) {
    std::string stops;
    for (int stop = 1; stop <= 80; ++stop)
        stops += "\\tx" + std::to_string(stop * 10);
    EXPECT_EQ(paragraphAt(readBody(stops + " x\\par"), 0).look.tabs.size(), 60U);
}

TEST(ParagraphWords, AnEmptyParagraphKeepsTheLookOfItsEnd) {
    const RichText text = readBody("\\fs60\\par x");
    EXPECT_TRUE(paragraphAt(text, 0).runs.empty());
    EXPECT_EQ(paragraphAt(text, 0).endLook.halfPoints, 60);
}

TEST(ParagraphWords, TheLastParagraphNeedsNoEnd) {
    EXPECT_EQ(shownBody("a\\par b"), "a/b");
    EXPECT_EQ(shownBody("a\\par b\\par"), "a/b");
    EXPECT_EQ(shownBody("a\\par b\\par\\par"), "a/b/");
    EXPECT_EQ(shownBody(""), "");
    EXPECT_EQ(described(paragraphAt(readBody("\\qc b"), 0).look), "side=2");
}

TEST(ParagraphWords, ABorderOfAParagraphLeavesTheCellsAlone) {
    for (const char* word : {"brdrt", "brdrl", "brdrb", "brdrr", "box", "chbrdr", "pard"}) {
        const RichText text = readBody(std::string("\\trowd\\clbrdrt\\") + word +
                                       "\\brdrs\\brdrw40\\cellx1000\\intbl a\\cell\\row");
        EXPECT_EQ(described(tableAt(text, 0).rows[0].look.cells[0]), "") << word;
    }
}

} // namespace
} // namespace tabrova
