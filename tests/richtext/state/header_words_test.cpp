// What the words of the header and of pictures do.
#include "richtext/state/rtf_reader.h"
#include "richtext/state/rtf_words.h"
#include "tests/richtext/rich_helpers.h"

#include <gmock/gmock.h>

#include <set>

namespace tabrova {
namespace {

using namespace tests;
using testing::Contains;

TEST(HeaderWords, NoneIsWithoutATest) {
    const std::set<std::string> tested = {
        "ansicpg",  "mac",      "pc",           "pca",       "fcharset", "cpg", // with the code pages
        "uc",                                                                   // with the characters
        "list",     "levelnfc", "levelstartat", "listid",                       // with the lists
        "deff",     "deftab",   "fnil",         "froman",    "fswiss",   "fmodern",
        "fscript",  "fdecor",           // here
        "red",      "green",    "blue", //
        "pngblip",  "jpegblip", "wmetafile",    "emfblip",   "dibitmap", "wbitmap",
        "macpict", // with the pictures
        "picwgoal", "pichgoal", "picscalex",    "picscaley", "picw",     "pich"};
    for (const RtfWordRow& row : headerWords())
        EXPECT_THAT(tested, Contains(std::string(row.name)));
}

TEST(HeaderWords, TheDefaultTabIsWithinBounds) {
    EXPECT_EQ(readBody("x").defaultTab, 720);
    EXPECT_EQ(readBody("\\deftab709 x").defaultTab, 709);
    EXPECT_EQ(readBody("\\deftab0 x").defaultTab, 90);
    EXPECT_EQ(readBody("\\deftab-5 x").defaultTab, 90);
    EXPECT_EQ(readBody("\\deftab99999 x").defaultTab, 14400);
}

TEST(HeaderWords, FontsHaveAKind) {
    const RichText text =
        readRichText("{\\rtf1{\\fonttbl{\\f0\\fnil A;}{\\f1\\froman B;}{\\f2\\fswiss C;}{\\f3\\fmodern D;}"
                     "{\\f4\\fscript E;}{\\f5\\fdecor F;}{\\f6 G;}}\\froman\\fscript x}");
    const FontKind kinds[] = {FontKind::Any,    FontKind::Roman,      FontKind::Swiss, FontKind::Modern,
                              FontKind::Script, FontKind::Decorative, FontKind::Any};
    ASSERT_EQ(text.fonts.size(), std::size(kinds));
    for (std::size_t at = 0; at < std::size(kinds); ++at) {
        EXPECT_EQ(text.fonts[at].kind, kinds[at]);
        EXPECT_EQ(text.fonts[at].name, QString(QChar(static_cast<char16_t>('A' + at))));
    }
}

TEST(HeaderWords, FontsAreKnownByTheirNumbers) {
    const RichText text =
        readRichText("{\\rtf1\\deff9{\\fonttbl{\\f9 A;}{\\f-2 B;}{\\f9 C;}}x\\f-2 y\\f0 z}");
    EXPECT_EQ(runAt(text, 0).look.font, 2);
    EXPECT_EQ(runAt(text, 1).look.font, 1);
    EXPECT_EQ(runAt(text, 2).look.font, -1);
}

TEST(HeaderWords, TheDefaultFontMayBeToldLate) {
    const RichText text = readRichText("{\\rtf1{\\fonttbl{\\f4 A;}{\\f5 B;}}\\deff5\\plain x}");
    EXPECT_EQ(runAt(text, 0).look.font, 1);
}

TEST(HeaderWords, AFontTableHasABound) {
    std::string fonts;
    for (int font = 0; font < 1100; ++font)
        fonts += "{\\f" + std::to_string(font) + " N" + std::to_string(font) + ";}";
    const RichText text = readRichText("{\\rtf1{\\fonttbl" + fonts + "}\\f999 x\\f1000 y}");
    ASSERT_EQ(text.fonts.size(), 1000U);
    EXPECT_EQ(text.fonts[999].name, "N999");
    EXPECT_EQ(runAt(text, 0).look.font, 999);
    EXPECT_EQ(runAt(text, 1).look.font, -1);
}

std::string firstColor(const std::string& row) {
    return described(
        runAt(readRichText("{\\rtf1{\\fonttbl{\\f0 A;}}{\\colortbl;" + row + "}\\cf1 x}"), 0).look);
}

TEST(HeaderWords, ColorsHaveThreeParts) {
    EXPECT_EQ(firstColor("\\red18\\green52\\blue86;"), "color=123456");
    EXPECT_EQ(firstColor("\\red255;"), "color=ff0000");
    EXPECT_EQ(firstColor("\\green255;"), "color=00ff00");
    EXPECT_EQ(firstColor("\\blue255;"), "color=0000ff");
    EXPECT_EQ(firstColor("\\red999\\green-9\\blue0;"), "color=ff0000");
    EXPECT_EQ(firstColor("\\red0;"), "color=000000");
    EXPECT_EQ(firstColor(";"), "");
    EXPECT_EQ(firstColor("{\\*\\cname x;}\\red1\\green2\\blue3;"), "color=010203");
}

TEST(HeaderWords, AColorOfWhichNothingIsToldIsTheReadersOwn) {
    const RichText text =
        readRichText("{\\rtf1{\\colortbl\\red1\\green2\\blue3;;\\red4;}\\cf0 x\\cf1 y\\cf2 z}");
    EXPECT_EQ(described(runAt(text, 0).look), "font=-1 color=010203");
    EXPECT_EQ(described(runAt(text, 1).look), "font=-1");
    EXPECT_EQ(described(runAt(text, 2).look), "font=-1 color=040000");
}

TEST(HeaderWords, ColorsOutsideOfTheirTableAreNone) {
    EXPECT_EQ(firstColor("\\red1;}\\red9 {\\colortbl;"), "color=010000");
    EXPECT_EQ(described(runAt(readBody("\\blue9{\\colortbl;}\\cf3 x\\cf4 y"), 0).look), "");
}

TEST(HeaderWords, AColorTableHasABound) {
    const RichText text =
        readRichText("{\\rtf1{\\colortbl" + repeated("\\red7;", 10'001) + "}\\cf9999 x\\cf10000 y}");
    EXPECT_EQ(described(runAt(text, 0).look), "font=-1 color=070000");
    EXPECT_EQ(described(runAt(text, 1).look), "font=-1");
}

} // namespace
} // namespace tabrova
