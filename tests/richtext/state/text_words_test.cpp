// The words and signs that stand for characters, and the characters that are written as numbers.
#include "richtext/state/rtf_reader.h"
#include "richtext/state/rtf_words.h"
#include "richtext/state/text_characters.h"
#include "tests/richtext/rich_helpers.h"

#include <gmock/gmock.h>

#include <set>

namespace tabrova {
namespace {

using namespace tests;
using testing::Contains;

struct WordCase {
    const char* word;
    const char* shown; // between "a" and "b"
};

constexpr WordCase Words[] = {
    {"par", "a/b"},          {"sect", "a/b"},         {"page", "a/b"},         {"column", "a/b"},
    {"line", "a^b"},         {"tab", "a>b"},          {"emdash", "a—b"},       {"endash", "a–b"},
    {"emspace", "a\u2003b"}, {"enspace", "a\u2002b"}, {"qmspace", "a\u2005b"}, {"bullet", "a•b"},
    {"lquote", "a‘b"},       {"rquote", "a’b"},       {"ldblquote", "a“b"},    {"rdblquote", "a”b"},
    {"zwj", "a\u200Db"},     {"zwnj", "a\u200Cb"},    {"ltrmark", "a\u200Eb"}, {"rtlmark", "a\u200Fb"},
};

TEST(TextWords, EachHasItsEffect) {
    for (const WordCase& row : Words)
        EXPECT_EQ(shownBody(std::string("a\\") + row.word + " b"), row.shown) << row.word;
}

TEST(TextWords, NoneIsWithoutATest) {
    std::set<std::string> tested;
    for (const WordCase& row : Words)
        tested.insert(row.word);
    for (const RtfWordRow& row : textWords())
        EXPECT_THAT(tested, Contains(std::string(row.name)));
}

TEST(TextWords, ThePagesEndIsNoParagraphOfItsOwn) {
    EXPECT_EQ(shownBody("a\\par\\page b"), "a/b");
    EXPECT_EQ(shownBody("\\sect\\column a"), "a");
}

TEST(TextWords, SignsAreCharacters) {
    EXPECT_EQ(shownBody("\\\\\\{\\}"), "\\{}");
    EXPECT_EQ(shownBody("a\\~b\\_c\\-d"), "a\u00A0b\u2011c\u00ADd");
    EXPECT_EQ(shownBody("a\\\tb\tc"), "a>b>c");
    EXPECT_EQ(shownBody("a\\\nb\\\r\nc"), "a/b/c");
    EXPECT_EQ(shownBody("a\\|\\:\\1b"), "ab");
}

TEST(TextWords, LineEndsOfTheFileAreNone) { EXPECT_EQ(shownBody("a\r\nb\nc"), "abc"); }

TEST(TextWords, UnknownWordsAreNothing) {
    EXPECT_EQ(shownBody("a\\nosuchword7 b\\nosuch c"), "abc");
    EXPECT_EQ(findRtfWord("nosuchword"), nullptr);
    EXPECT_EQ(findRtfWord(""), nullptr);
    EXPECT_EQ(findRtfWord("B"), nullptr);
}

TEST(TextWords, ACharacterByItsNumberStandsForSoManyBytes) {
    EXPECT_EQ(shownBody("\\u9839?b"), "♯b");
    EXPECT_EQ(shownBody("\\u9839 ?b"), "♯b");
    EXPECT_EQ(shownBody("\\u9839\\'23b"), "♯b");
    EXPECT_EQ(shownBody("\\uc0\\u9839 ?b"), "♯?b");
    EXPECT_EQ(shownBody("\\uc2\\u9839??b"), "♯b");
    EXPECT_EQ(shownBody("\\uc2\\u9839\\'81\\'f2b"), "♯b");
    EXPECT_EQ(shownBody("\\uc2\\u9839?\\'f2b"), "♯b");
    EXPECT_EQ(shownBody("\\uc3\\u9839?b"), "♯");
    EXPECT_EQ(shownBody("\\uc-1\\u9839 b"), "♯b");
    EXPECT_EQ(shownBody("\\uc999\\u9839 " + std::string(101, 'b')), "♯b");
}

TEST(TextWords, ItsBytesEndWithTheGroup) {
    EXPECT_EQ(shownBody("{\\u9839}b"), "♯b");
    EXPECT_EQ(shownBody("\\u9839{b}c"), "♯bc");
    EXPECT_EQ(shownBody("{\\uc0\\u9839 b}\\u9839?c"), "♯b♯c");
}

TEST(TextWords, ASignOrACharactersWordCountsAsOneOfItsBytes) {
    EXPECT_EQ(shownBody("\\u8220\\ldblquote b"), "“b");
    EXPECT_EQ(shownBody("\\u123\\{b"), "{b");
    EXPECT_EQ(shownBody("\\uc2\\u8212\\bullet\\~b"), "—b");
}

// Texts whose writer has left the bytes out.
TEST(TextWords, OtherWordsAreReadEvenSo) {
    EXPECT_EQ(shownBody("\\u9839\\u9837\\u9838?b"), "♯♭♮b");
    EXPECT_EQ(shownBody("\\u9839\\par b"), "♯/b");
    EXPECT_EQ(described(runAt(readBody("\\u9839\\b ?b"), 1).look), "bold");
}

TEST(TextWords, NumbersBelowZeroAreCharactersToo) {
    EXPECT_EQ(shownBody("\\u-3?b"), "\uFFFDb");
    EXPECT_EQ(shownBody("\\u65?\\u65601?"), "AA");
    EXPECT_EQ(shownBody("\\u?b"), "b");
}

TEST(TextWords, ACharacterMayComeAsAPair) {
    EXPECT_EQ(shownBody("\\u55348?\\u56606?x"), "\U0001D11Ex");
    EXPECT_EQ(shownBody("\\u-10188?\\u-8930?x"), "\U0001D11Ex");
}

TEST(TextWords, ControlCharactersAreNoText) {
    EXPECT_EQ(shownBody("a\\u7?\\u8233?\\u65532?\\u-4?b\\'00\\'07\\'7fc\x01"), "abc");
    EXPECT_EQ(onlyText(QString::fromUtf16(u"a\x1f\x7f\x9f\u2029\uFFFC\uFDD0\uFDD1\uFFFE\uFFFF b")), "a b");
    EXPECT_EQ(onlyText(QString::fromUtf16(u"\x20\x7e\xa0\t\u2028\u2027\u202A\uFFFB\uFFFD\uFDCF\uFDD2")),
              QString::fromUtf16(u"\x20\x7e\xa0\t\u2028\u2027\u202A\uFFFB\uFFFD\uFDCF\uFDD2"));
}

TEST(RichTextReader, KnowsItsOwn) {
    EXPECT_TRUE(isRichText("{\\rtf1 x}"));
    EXPECT_TRUE(isRichText("{\\rtf"));
    EXPECT_FALSE(isRichText("{\\rt"));
    EXPECT_FALSE(isRichText(" {\\rtf1 x}"));
    EXPECT_FALSE(isRichText(""));
}

TEST(RichTextReader, EndsWithTheFirstGroup) {
    EXPECT_EQ(shown(readRichText("{\\rtf1 a{b}}c{d}")), "ab");
    EXPECT_EQ(shown(readRichText("{\\rtf1 a}}b")), "a");
    EXPECT_EQ(shown(readRichText("{\\rtf1 a{b")), "ab");
    EXPECT_EQ(shown(readRichText("}a")), "");
    EXPECT_EQ(shown(readRichText("")), "");
}

TEST(PlainText, LinesAreParagraphs) {
    EXPECT_EQ(shown(readPlainText("a\nb\r\nc")), "a/b/c");
    EXPECT_EQ(shown(readPlainText("a\n")), "a/");
    EXPECT_EQ(shown(readPlainText("a\tb\a{\\b}")), "a>b{\\b}");
    EXPECT_EQ(described(paragraphAt(readPlainText("a"), 0).look), "");
}

TEST(PlainText, IsOfTheOneOrTheOtherEncoding) {
    EXPECT_EQ(shown(readPlainText("\xe2\x99\xaf \xc3\xa4")), "♯ ä");
    EXPECT_EQ(shown(readPlainText("\xef\xbb\xbf\xc3\xa4")), "ä");
    EXPECT_EQ(shown(readPlainText("\xe4\x96")), "ä–");
    EXPECT_EQ(shown(readPlainText("x\xc3")), "xÃ");
}

} // namespace
} // namespace tabrova
