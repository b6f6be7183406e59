// What each word of the table of characters does.
#include "richtext/state/rtf_reader.h"
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
    {"plain", ""},
    {"b\\i\\fs40\\plain", ""},
    {"f1", "font=1"},
    {"f9", "font=-1"},
    {"fs40", "size=40"},
    {"fs", ""},
    {"fs0", "size=1"},
    {"fs-3", "size=1"},
    {"fs99999", "size=1000"},
    {"b", "bold"},
    {"b1", "bold"},
    {"b\\b0", ""},
    {"i", "italic"},
    {"i\\i0", ""},
    {"strike", "struck"},
    {"strike\\strike0", ""},
    {"striked1", "struck"},
    {"striked1\\striked0", ""},
    {"ul", "underline=1"},
    {"ul\\ul0", ""},
    {"uld", "underline=3"},
    {"uldash", "underline=2"},
    {"uldashd", "underline=2"},
    {"uldashdd", "underline=2"},
    {"uldb", "underline=1"},
    {"ulth", "underline=1"},
    {"ulw", "underline=1"},
    {"ulwave", "underline=4"},
    {"ulwave\\ulwave0", ""},
    {"ulnone", ""},
    {"ul\\ulnone", ""},
    {"super", "script=1"},
    {"super\\super0", ""},
    {"sub", "script=2"},
    {"nosupersub", ""},
    {"sub\\nosupersub", ""},
    {"up", "raised=6"},
    {"up8", "raised=8"},
    {"up\\up0", ""},
    {"up9999", "raised=1000"},
    {"up-9999", "raised=-1000"},
    {"dn", "raised=-6"},
    {"dn8", "raised=-8"},
    {"dn-8", ""},
    {"dn9999", "raised=-1000"},
    {"caps", "capitals=1"},
    {"caps\\caps0", ""},
    {"scaps", "capitals=2"},
    {"scaps\\scaps0", ""},
    {"cf1", "color=ff0000"},
    {"cf2", "color=0000ff"},
    {"cf1\\cf0", ""},
    {"cf3", ""},
    {"cf-1", ""},
    {"cb1", "back=ff0000"},
    {"cb1\\cb0", ""},
    {"cb-1", ""},
    {"chcbpat2", "back=0000ff"},
    {"highlight1", "back=ff0000"},
    {"highlight9", ""},
    {"v", "nothing"},
    {"v\\v0", ""},
    {"v\\plain", ""},
    {"deleted", "nothing"},
    {"deleted\\deleted0", ""},
};

TEST(CharacterWords, EachHasItsEffect) {
    for (const WordCase& row : Words)
        EXPECT_EQ(characterLook(std::string("\\") + row.words), row.look) << row.words;
}

TEST(CharacterWords, NoneIsWithoutATest) {
    std::set<std::string> tested;
    for (const WordCase& row : Words) {
        const std::string words = row.words;
        tested.insert(words.substr(0, words.find_first_of("\\-0123456789")));
    }
    for (const RtfWordRow& row : characterWords())
        EXPECT_THAT(tested, Contains(std::string(row.name)));
}

TEST(CharacterWords, AGroupGivesTheLooksBack) {
    const RichText text = readBody("a{\\b b{\\i c}d}e");
    EXPECT_EQ(shown(text), "abcde");
    EXPECT_EQ(described(runAt(text, 0).look), "");
    EXPECT_EQ(described(runAt(text, 1).look), "bold");
    EXPECT_EQ(described(runAt(text, 2).look), "bold italic");
    EXPECT_EQ(described(runAt(text, 3).look), "bold");
    EXPECT_EQ(described(runAt(text, 4).look), "");
}

TEST(CharacterWords, TextOfOneLookIsOneRun) {
    EXPECT_EQ(paragraphAt(readBody("a{b}\\'63\\b0 d\\emdash e"), 0).runs.size(), 1U);
    EXPECT_EQ(paragraphAt(readBody("a\\b b\\b0 c"), 0).runs.size(), 3U);
}

TEST(CharacterWords, TextKeepsTheLookThatItHadBeforeAWord) {
    const RichText text = readBody("\\'61\\b b");
    EXPECT_EQ(described(runAt(text, 0).look), "");
    EXPECT_EQ(described(runAt(text, 1).look), "bold");
}

TEST(CharacterWords, PlainTextHasTheDefaultFont) {
    const RichText text = readRichText("{\\rtf1\\deff5{\\fonttbl{\\f4 A;}{\\f5 B;}}x\\f4 y\\plain z}");
    EXPECT_EQ(runAt(text, 0).look.font, 1);
    EXPECT_EQ(runAt(text, 1).look.font, 0);
    EXPECT_EQ(runAt(text, 2).look.font, 1);
}

TEST(CharacterWords, WithoutAFontTableAnyFontIsTaken) {
    const RichText text = readRichText("{\\rtf1 x\\f4 y\\plain z}");
    EXPECT_TRUE(text.fonts.empty());
    EXPECT_EQ(shown(text), "xyz");
    EXPECT_EQ(runAt(text, 0).look.font, -1);
}

TEST(CharacterWords, APlainWordInALinkKeepsTheLink) {
    const RichText text =
        readBody("{\\field{\\*\\fldinst HYPERLINK \"http://a\"}{\\fldrslt\\b x\\plain y}}z");
    EXPECT_EQ(described(runAt(text, 0).look), "bold link=0");
    EXPECT_EQ(described(runAt(text, 1).look), "link=0");
    EXPECT_EQ(described(runAt(text, 2).look), "");
}

TEST(CharacterWords, HiddenTextIsNotShown) {
    EXPECT_EQ(shownBody("a{\\v b{c}\\u8212?\\emdash\\~}d"), "ad");
    EXPECT_EQ(shownBody("a{\\v b\\v0 c}d"), "acd");
    EXPECT_EQ(shownBody("a{\\deleted b}c"), "ac");
    EXPECT_EQ(shownBody("a{\\v b\\par c}d\\par e"), "ad/e");
}

} // namespace
} // namespace tabrova
