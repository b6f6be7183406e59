// Bytes of texts as characters, by the code page of the text or of the font.
#include "richtext/state/code_pages.h"
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using namespace tests;

struct PageCase {
    const char* words; // of the header
    const char* bytes;
    const char* shown;
};

constexpr PageCase Pages[] = {
    {"\\ansi\\ansicpg1250", "\\'e8\\'9a", "čš"},
    {"\\ansi\\ansicpg1251", "\\'f0\\'f3", "ру"},
    {"\\ansi\\ansicpg1252", "\\'e4\\'80\\'96", "ä€–"},
    {"\\ansi\\ansicpg1253", "\\'e1\\'ec", "αμ"},
    {"\\ansi\\ansicpg1254", "\\'fe\\'f0", "şğ"},
    {"\\ansi\\ansicpg1255", "\\'e0\\'f9", "אש"},
    {"\\ansi\\ansicpg1256", "\\'c7\\'e1", "ال"},
    {"\\ansi\\ansicpg1257", "\\'e0\\'fb", "ąū"},
    {"\\ansi\\ansicpg1258", "\\'f0\\'fe", "đ₫"},
    {"\\ansi\\ansicpg874", "\\'a1\\'ba", "กบ"},
    {"\\ansi\\ansicpg932", "\\'93\\'fa\\'96\\'7b", "日本"},
    {"\\ansi\\ansicpg936", "\\'c4\\'e3", "你"},
    {"\\ansi\\ansicpg949", "\\'b1\\'e2", "기"},
    {"\\ansi\\ansicpg950", "\\'a4\\'40", "一"},
    {"\\ansi\\ansicpg437", "\\'84\\'81", "äü"},
    {"\\ansi\\ansicpg850", "\\'84\\'9b", "äø"},
    {"\\ansi\\ansicpg852", "\\'9f", "č"},
    {"\\ansi\\ansicpg866", "\\'a0", "а"},
    {"\\ansi\\ansicpg10000", "\\'8a\\'d2", "ä“"},
    {"\\ansi\\ansicpg20866", "\\'d2", "р"},
    {"\\ansi\\ansicpg28591", "\\'e4", "ä"},
    {"\\ansi\\ansicpg65001", "\\'e2\\'99\\'af", "♯"},
    {"\\mac", "\\'8a", "ä"},
    {"\\pc", "\\'84", "ä"},
    {"\\pca", "\\'9b", "ø"},
    {"\\ansi", "\\'e4\xe4", "ää"},
    {"\\ansi\\ansicpg0", "\\'e4", "ä"},
    {"\\ansi\\ansicpg-5", "\\'e4", "ä"},
    {"\\ansi\\ansicpg4711", "\\'e4", "ä"},
    {"\\ansi\\ansicpg42", "\\'e4", "ä"},
};

TEST(CodePages, OfTheText) {
    for (const PageCase& row : Pages)
        EXPECT_EQ(shown(readRichText(std::string("{\\rtf1") + row.words + " " + row.bytes + "}")), row.shown)
            << row.words;
}

constexpr PageCase Fonts[] = {
    {"\\fcharset0", "\\'e4", "ä"},          {"\\fcharset77", "\\'8a", "ä"},
    {"\\fcharset128", "\\'93\\'fa", "日"},  {"\\fcharset129", "\\'b1\\'e2", "기"},
    {"\\fcharset134", "\\'c4\\'e3", "你"},  {"\\fcharset136", "\\'a4\\'40", "一"},
    {"\\fcharset161", "\\'e1", "α"},        {"\\fcharset162", "\\'fe", "ş"},
    {"\\fcharset163", "\\'fe", "₫"},        {"\\fcharset177", "\\'e0", "א"},
    {"\\fcharset178", "\\'c7", "ا"},        {"\\fcharset186", "\\'e0", "ą"},
    {"\\fcharset204", "\\'f0", "р"},        {"\\fcharset222", "\\'a1", "ก"},
    {"\\fcharset238", "\\'e8", "č"},        {"\\fcharset254", "\\'84", "ä"},
    {"\\fcharset255", "\\'9b", "ø"},        {"\\cpg42", "a", "α"},
    {"\\fcharset1", "\\'e8", "č"},          {"", "\\'e8", "č"},
    {"\\fcharset0\\cpg1251", "\\'f0", "р"}, {"\\cpg1251\\fcharset0", "\\'f0", "р"},
};

TEST(CodePages, OfTheFont) {
    for (const PageCase& row : Fonts)
        EXPECT_EQ(shown(readRichText(std::string("{\\rtf1\\ansi\\ansicpg1250{\\fonttbl{\\f0 T;}{\\f7") +
                                     row.words + " Name;}}\\f7 " + row.bytes + "}")),
                  row.shown)
            << row.words;
}

TEST(CodePages, OfEachFontItsOwn) {
    EXPECT_EQ(shown(readRichText("{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset0 T;}{\\f1\\fcharset204 C;}}"
                                 "\\'e4{\\f1\\'f0\\f0\\'e4}\\'e4\\f1\\'f0\\plain\\'e4}")),
              "äрääрä");
}

constexpr const char* Japanese = "{\\rtf1\\ansi\\ansicpg932\\deff0{\\fonttbl{\\f0\\fcharset128 F;}}";

TEST(CodePages, ACharacterOfSeveralBytesMayComeInPieces) {
    const auto read = [](const std::string& body) { return shown(readRichText(Japanese + body + "}")); };
    EXPECT_EQ(read("\\'93\r\n\\'fa"), "日");
    EXPECT_EQ(read("\\'93\xfa\x96{}\\'7b"), "日{"); // a group cuts it
    EXPECT_EQ(read("\x93\\'fa"), "日");
    EXPECT_EQ(read("\\'83A"), "ア");
    EXPECT_EQ(read("\\'83\\'5c"), "ソ");
    EXPECT_EQ(read("\\'83\\\\x"), "ソx");
    EXPECT_EQ(read("\\'83\\{\\'83\\}"), "ボマ");
}

TEST(CodePages, HalfACharacterIsLeftOut) {
    EXPECT_EQ(shown(readRichText(std::string(Japanese) + "a\\'93}")), "a");
    EXPECT_EQ(shown(readRichText(std::string(Japanese) + "\\'93\\b x}")), "x");
}

TEST(CodePages, NamesOfFontsAreOfTheirCodePage) {
    const RichText text =
        readRichText("{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset128 \\'82\\'6c\\'82\\'72 \\'96\\'be\\'92\\'a9;}"
                     "{\\f1\\fnil\\fcharset2 W\\'e4;}{\\f2\\fcharset0 A\\u9839?B;}{\\f3\\fcharset204\\'f0x"
                     "{\\*\\falt Other;};more}}x}");
    ASSERT_EQ(text.fonts.size(), 4U);
    EXPECT_EQ(text.fonts[0].name, QString::fromUtf8("ＭＳ 明朝"));
    EXPECT_EQ(text.fonts[1].name, QString::fromUtf8("Wä"));
    EXPECT_EQ(text.fonts[2].name, QString::fromUtf8("A♯B"));
    EXPECT_EQ(text.fonts[3].name, QString::fromUtf8("рx"));
}

TEST(CodePages, ANameOfAFontNeedsNoEnd) {
    EXPECT_EQ(readRichText("{\\rtf1{\\fonttbl{\\f0 Arial}{\\f1 Times}}x}").fonts[0].name, "Arial");
    EXPECT_EQ(readRichText("{\\rtf1{\\fonttbl{\\f0 Arial}{\\f1 Times}}x}").fonts[1].name, "Times");
    EXPECT_EQ(readRichText("{\\rtf1{\\fonttbl\\f0 Arial;\\f1 Times;}x}").fonts[1].name, "Times");
    EXPECT_EQ(readRichText("{\\rtf1{\\fonttbl{\\f0 " + std::string(500, 'a') + ";}}x}").fonts[0].name.size(),
              100);
    EXPECT_EQ(readRichText("{\\rtf1{\\fonttbl Arial;\\fswiss\\fcharset2\\cpg5\\u65?;}x}").fonts.size(), 0U);
}

TEST(SymbolFonts, TheirBytesArePictures) {
    EXPECT_EQ(shownBody("\\f2\\'b7a\\'b1A\\{"), "•α±Α{");
    EXPECT_EQ(shownBody("\\f3\\'fc \\'a7\\'a8l\\'01"), "✓ ▪◻● ");
    EXPECT_EQ(shownBody("\\f3 \\'41"), "•");
    EXPECT_EQ(shownBody("a{\\f2 b}c"), "aβc");
}

TEST(SymbolFonts, TheirPlacesMayBeCharacters) {
    EXPECT_EQ(shownBody("\\f2\\u61623?"), "•");
    EXPECT_EQ(shownBody("\\f2\\u-3913?"), "•");
    EXPECT_EQ(shownBody("\\f3\\u61692?\\u61473?"), "✓•");
    EXPECT_EQ(shownBody("\\f0\\u61623?"), "•");
    EXPECT_EQ(shownBody("\\f9\\u61473?"), "!");
    EXPECT_EQ(shownBody("\\f2\\u61471?\\u61696?"), "\uF01F\uF100");
    EXPECT_EQ(shownBody("\\f2\\u61472?\\u61695?"), " •");
}

TEST(SymbolFonts, AllLettersAreGreek) {
    QString capitals, small;
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        capitals += symbolCharacter("Symbol", static_cast<unsigned char>(letter));
    for (char letter = 'a'; letter <= 'z'; ++letter)
        small += symbolCharacter("Symbol", static_cast<unsigned char>(letter));
    EXPECT_EQ(capitals, QString::fromUtf8("ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ"));
    EXPECT_EQ(small, QString::fromUtf8("αβχδεφγηιϕκλμνοπθρστυϖωξψζ"));
    EXPECT_EQ(symbolCharacter("Symbol", '@'), QChar('@'));
    EXPECT_EQ(symbolCharacter("Symbol", '['), QChar('['));
    EXPECT_EQ(symbolCharacter("Symbol", '`'), QChar('`'));
    EXPECT_EQ(symbolCharacter("Symbol", 0x7F), QChar(0x7F));
    EXPECT_EQ(symbolCharacter("Symbol", 0x80), QChar(0x2022));
}

TEST(SymbolFonts, AreKnownByName) {
    EXPECT_TRUE(isPictureFont("Symbol"));
    EXPECT_TRUE(isPictureFont("WINGDINGS 2"));
    EXPECT_TRUE(isPictureFont("Webdings"));
    EXPECT_FALSE(isPictureFont("Segoe UI Symbol"));
    EXPECT_FALSE(isPictureFont(""));
    EXPECT_EQ(symbolCharacter("Webdings", 0x6C), QChar(u'●'));
}

} // namespace
} // namespace tabrova
