// The signs before the paragraphs of lists, spelled in the text or not.
#include "richtext/state/rtf_lists.h"
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using namespace tests;

std::string level(int kind, const std::string& more = "") {
    return "{\\listlevel\\levelnfc" + std::to_string(kind) + more +
           "{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}}";
}

// List 1 of the text, with two levels.
std::string header(int kind, int inner = 23) {
    return "{\\*\\listtable{\\list\\listtemplateid9" + level(kind) + level(inner) +
           "{\\listname "
           "x;}\\listid77}}{\\*\\listoverridetable{\\listoverride\\listid77\\listoverridecount0\\ls1}}";
}

constexpr const char* Three = "\\pard\\ls1 a\\par b\\par c\\par";

TEST(Lists, SignsThatAreSpelledAreText) {
    EXPECT_EQ(shownBody("\\pard{\\listtext\\pard 1.\\tab}\\ls1\\ilvl0 a\\par"), "1.>a");
    EXPECT_EQ(shownBody("\\pard{\\pntext\\f2\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf2{\\pntxtb\\'b7}}a\\par"),
              "•>a");
    EXPECT_EQ(shownBody(header(0) + "\\pard{\\listtext 1)\\tab}\\ls1 a\\par b\\par"), "1)>a/2.>b");
    EXPECT_EQ(shownBody("\\pard\\ls1{\\listtext\t\\uc0\\u8226 \t}a\\\n{\\listtext\t\\uc0\\u8226 \t}b"),
              ">•>a/>•>b");
}

TEST(Lists, SignsThatAreNotSpelledAreAdded) {
    EXPECT_EQ(shownBody(header(0) + Three), "1.>a/2.>b/3.>c");
    EXPECT_EQ(shownBody(header(1) + Three), "I.>a/II.>b/III.>c");
    EXPECT_EQ(shownBody(header(2) + Three), "i.>a/ii.>b/iii.>c");
    EXPECT_EQ(shownBody(header(3) + Three), "A.>a/B.>b/C.>c");
    EXPECT_EQ(shownBody(header(4) + Three), "a.>a/b.>b/c.>c");
    EXPECT_EQ(shownBody(header(23) + Three), "•>a/•>b/•>c");
    EXPECT_EQ(shownBody(header(255) + Three), "a/b/c");
    EXPECT_EQ(shownBody(Three), "•>a/•>b/•>c");
}

TEST(Lists, ASignHasTheLookOfTheParagraphsEnd) {
    const RichText text = readBody("\\pard\\ls1\\b a\\par");
    EXPECT_EQ(described(runAt(text, 0).look), "bold");
    EXPECT_EQ(runAt(text, 0).text, "•\t");
}

TEST(Lists, OnlyParagraphsOfAListHaveSigns) {
    EXPECT_EQ(shownBody(header(0) + "\\pard\\ls1 a\\par\\pard b\\par\\ls1 c\\par\\ls0 d\\par\\ls-1 e"),
              "1.>a/b/2.>c/d/e");
    EXPECT_EQ(shownBody(header(0) + "{\\pard\\ls1 a\\par}b"), "1.>a/b");
}

TEST(Lists, EmptyParagraphsHaveNone) {
    EXPECT_EQ(shownBody(header(0) + "\\pard\\ls1 a\\par\\par b\\par"), "1.>a//2.>b");
}

TEST(Lists, AParagraphThatACellEndsHasASignToo) {
    EXPECT_EQ(shownBody(header(0) + "\\trowd\\cellx1000\\pard\\intbl\\ls1 a\\par b\\cell\\row"),
              "[1.>a/2.>b]");
    EXPECT_EQ(
        shownBody(header(0) + "\\trowd\\cellx1000\\pard\\intbl\\ls1{\\listtext 1.\\tab}a\\cell b\\cell\\row"),
        "[1.>a|2.>b]");
    EXPECT_EQ(shownBody(header(0) + "\\pard\\ls1 a"), "1.>a");
}

TEST(Lists, InnerLevelsBeginAnew) {
    const std::string inner = "\\ilvl1 ", outer = "\\ilvl0 ";
    EXPECT_EQ(shownBody(header(0, 4) + "\\pard\\ls1 a\\par" + inner + "b\\par c\\par" + outer + "d\\par" +
                        inner + "e"),
              "1.>a/a.>b/b.>c/2.>d/a.>e");
    EXPECT_EQ(shownBody(header(0) + "\\pard\\ls1\\ilvl2 a\\par\\ilvl-1 b\\par\\ilvl99 c"), "•>a/•>b/•>c");
}

TEST(Lists, BeginWhereTheyAreToldTo) {
    const std::string list = "{\\*\\listtable{\\list" + level(0, "\\levelstartat5") +
                             level(4, "\\levelstartat3") +
                             "\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}";
    EXPECT_EQ(shownBody("{\\listtable{\\list" + level(0, "\\levelstartat") +
                        "\\listid7}}{\\listoverridetable\\listid7\\ls1}\\pard\\ls1 a"),
              "1.>a");
    EXPECT_EQ(shownBody(list + "\\pard\\ls1 a\\par\\ilvl1 b\\par\\ilvl0 c\\par\\ilvl1 d"),
              "5.>a/c.>b/6.>c/c.>d");
}

TEST(Lists, AreToldApart) {
    const std::string lists =
        "{\\*\\listtable{\\list" + level(0) + "\\listid7}{\\list" + level(4) +
        "\\listid-8}}{\\*\\listoverridetable{\\listoverride\\listid-8\\ls1}{\\listoverride"
        "\\listid7\\ls2}{\\listoverride\\listid7\\ls3}{\\listoverride\\listid99\\ls4}}";
    EXPECT_EQ(shownBody(lists + "\\pard\\ls1 a\\par\\ls2 b\\par\\ls1 c\\par\\ls2 d\\par\\ls3 e\\par\\ls4 f"),
              "a.>a/1.>b/b.>c/2.>d/3.>e/•>f");
}

TEST(Lists, TheirWordsMeanNothingElsewhere) {
    EXPECT_EQ(shownBody("\\list\\levelnfc0\\listid1{\\listoverridetable\\listid1\\ls1}\\pard\\ls1 a"), "•>a");
}

class OneList {
  public:
    explicit OneList(int kind) {
        lists_.beginList();
        lists_.setLevelNumbers(kind);
        lists_.setListId(1);
        lists_.setOverrideList(1);
        lists_.setOverrideNumber(1);
    }
    std::string signOf(int number) {
        for (; at_ < number - 1; ++at_)
            lists_.count(1, 0);
        ++at_;
        return lists_.nextSign(1, 0).toStdString();
    }

  private:
    RtfLists lists_;
    int at_ = 0;
};

TEST(Lists, RomanNumbers) {
    OneList list(1);
    EXPECT_EQ(list.signOf(4), "IV.");
    EXPECT_EQ(list.signOf(9), "IX.");
    EXPECT_EQ(list.signOf(14), "XIV.");
    EXPECT_EQ(list.signOf(49), "XLIX.");
    EXPECT_EQ(list.signOf(98), "XCVIII.");
    EXPECT_EQ(list.signOf(444), "CDXLIV.");
    EXPECT_EQ(list.signOf(999), "CMXCIX.");
    EXPECT_EQ(list.signOf(1666), "MDCLXVI.");
    EXPECT_EQ(list.signOf(5000), "MMM.");
}

TEST(Lists, Letters) {
    OneList list(4);
    EXPECT_EQ(list.signOf(26), "z.");
    EXPECT_EQ(list.signOf(27), "aa.");
    EXPECT_EQ(list.signOf(52), "zz.");
    EXPECT_EQ(list.signOf(53), "aaa.");
    OneList capitals(3);
    EXPECT_EQ(capitals.signOf(28), "BB.");
}

TEST(Lists, HaveBounds) {
    RtfLists lists;
    for (int list = 0; list < 2100; ++list) {
        lists.beginList();
        for (int at = 0; at < 12; ++at)
            lists.setLevelNumbers(0);
        lists.setListId(list);
        lists.setOverrideList(list);
        lists.setOverrideNumber(list);
    }
    EXPECT_EQ(lists.nextSign(1999, 8), "1.");
    EXPECT_EQ(lists.nextSign(1999, 9), "•");
    EXPECT_EQ(lists.nextSign(2099, 0), "•");
}

} // namespace
} // namespace tabrova
