// The words that say what their group holds, and where its text goes.
#include "richtext/state/rtf_reader.h"
#include "richtext/state/rtf_words.h"
#include "tests/richtext/rich_helpers.h"

#include <gmock/gmock.h>

#include <set>

namespace tabrova {
namespace {

using namespace tests;
using testing::Contains;

constexpr const char* NotShown[] = {
    "stylesheet",
    "info",
    "header",
    "headerl",
    "headerr",
    "headerf",
    "footer",
    "footerl",
    "footerr",
    "footerf",
    "footnote",
    "annotation",
    "nonshppict",
    "shprslt",
    "nonesttables",
    "objdata",
    "objclass",
    "objname",
    "listname",
    "leveltext",
    "levelnumbers",
    "xe",
    "tc",
    "rxe",
    "txe",
    "private",
    "filetbl",
    "revtbl",
    "template",
    "falt",
    "panose",
    "fontemb",
    "fontfile",
    "fonttbl",
    "colortbl",
    "listtable",
    "listoverridetable",
    "pict",
    "fldinst",
    "bkmkstart",
    "bkmkend",
    "shpinst",
    "upr",
};
constexpr const char* Shown[] = {"field",   "fldrslt", "listtext",       "pntext",
                                 "shppict", "shptxt",  "nesttableprops", "ud"};

TEST(DestinationWords, TextOfSomeIsNotShown) {
    for (const char* word : NotShown)
        for (const char* star : {"", "\\*"})
            EXPECT_EQ(shownBody(std::string("a{") + star + "\\" + word + " x{y}}b"), "ab") << star << word;
}

TEST(DestinationWords, TextOfOthersIsShown) {
    for (const char* word : Shown)
        for (const char* star : {"", "\\*"})
            EXPECT_EQ(shownBody(std::string("a{") + star + "\\" + word + " x{y}}b"), "axyb") << star << word;
}

TEST(DestinationWords, NoneIsWithoutATest) {
    std::set<std::string> tested(std::begin(NotShown), std::end(NotShown));
    tested.insert(std::begin(Shown), std::end(Shown));
    for (const RtfWordRow& row : destinationWords())
        EXPECT_THAT(tested, Contains(std::string(row.name)));
}

TEST(DestinationWords, NoWordStandsInTwoTables) {
    std::set<std::string_view> names = {"u", "bin"};
    for (const auto rows :
         {characterWords(), paragraphWords(), tableWords(), textWords(), destinationWords(), headerWords()})
        for (const RtfWordRow& row : rows) {
            EXPECT_TRUE(names.insert(row.name).second) << row.name;
            EXPECT_EQ(findRtfWord(row.name), &row);
        }
}

TEST(DestinationWords, UnknownGroupsWithAStarAreNotShown) {
    EXPECT_EQ(shownBody("a{\\*\\nosuch x{y{\\pntext z}}\\par\\u65?}b"), "ab");
    EXPECT_EQ(shownBody("a{\\nosuch x}b"), "axb");
    EXPECT_EQ(shownBody("a{\\* x}b"), "a xb");
    EXPECT_EQ(shownBody("a{\\*}{\\nosuch x}b"), "axb");
    EXPECT_EQ(shownBody("a{\\*{\\nosuch x}}b"), "axb");
    EXPECT_EQ(shownBody("a{\\*\\b x}b"), "ab");
}

TEST(DestinationWords, WhatStandsBeforeAnUnknownGroupsStarIsShown) {
    EXPECT_EQ(shownBody("{a\\*\\nosuch x}b"), "ab");
    EXPECT_EQ(shownBody("{\\'61\\*\\nosuch x}b"), "ab");
}

TEST(DestinationWords, NothingOfASkippedGroupHasAnEffect) {
    EXPECT_EQ(shownBody("a{\\info\\par\\cell{\\pict\\pngblip 00}{\\fldrslt x}\\~\\u65 ?}b"), "ab");
    const RichText text = readBody("{\\info\\b\\deftab100{\\colortbl;}}\\cf1 b");
    EXPECT_EQ(described(runAt(text, 0).look), "color=ff0000");
    EXPECT_EQ(text.defaultTab, 720);
}

TEST(DestinationWords, BinaryBytesOfASkippedGroupDoNotEndIt) {
    EXPECT_EQ(shownBody("a{\\*\\blob\\bin3 }}}x}b"), "ab");
    EXPECT_EQ(shownBody("a{\\bin3 }}}x}b"), "axb");
}

TEST(DestinationWords, OnlyTheBodyHasParagraphsAndCells) {
    EXPECT_EQ(shownBody("a{\\*\\bkmkstart x\\par\\cell\\row y\\\n}b"), "ab");
    EXPECT_EQ(shownBody("a{\\colortbl\\par\\tab\\line\\\n}b"), "ab");
}

TEST(DestinationWords, ADrawingsTextAndPicturesAreShown) {
    EXPECT_EQ(
        shownBody(
            "a{\\shp{\\*\\shpinst\\shpleft0 x{\\sp{\\sn n}{\\sv v}}{\\sp{\\sn pib}{\\sv{\\pict\\pngblip "
            "00}}}{\\shptxt t\\par}}{\\shprslt y}}b"),
        "a<0>t/b");
    EXPECT_EQ(shownBody("a{\\*\\shpinst{\\field x}{\\fldrslt y}{\\pntext z}}b"), "ab");
}

TEST(DestinationWords, OfATextToldTwiceTheSecondIsShown) {
    EXPECT_EQ(shownBody("a{\\upr{x}{\\*\\ud{\\u9839 ?}}}b"), "a♯b");
}

TEST(DestinationWords, GroupsWithinEachOtherHaveABound) {
    const auto nested = [](int depth) {
        return shownBody("a" + repeated("{", depth) + "x" + repeated("}", depth) + "b");
    };
    EXPECT_EQ(nested(497), "axb");
    EXPECT_EQ(nested(500), "ab");
    EXPECT_EQ(nested(100'000), "ab");
    EXPECT_EQ(shownBody(repeated("{", 600) + "\\b x\\par\\'41"), "");
}

TEST(Anchors, AreNamesOfPlacesInAParagraph) {
    const RichText text =
        readBody("a\\par{\\*\\bkmkstart one}{\\*\\bkmkend one}b{\\*\\bkmkstart  zw\\'f6lf \\u9839?}c");
    EXPECT_EQ(shown(text), "a/bc");
    EXPECT_TRUE(paragraphAt(text, 0).anchors.empty());
    EXPECT_EQ(paragraphAt(text, 1).anchors, (std::vector<QString>{"one", "zwölf ♯"}));
}

TEST(Anchors, OfAnEmptyLastParagraphAreKept) {
    const RichText text = readBody("a\\par{\\*\\bkmkstart end}{\\*\\bkmkend end}");
    ASSERT_EQ(text.blocks.size(), 2U);
    EXPECT_EQ(paragraphAt(text, 1).anchors, std::vector<QString>{"end"});
}

TEST(Anchors, WithoutANameAreNone) {
    EXPECT_EQ(shownBody("{\\*\\bkmkstart }"), "");
    EXPECT_TRUE(paragraphAt(readBody("{\\*\\bkmkstart  }x"), 0).anchors.empty());
}

} // namespace
} // namespace tabrova
