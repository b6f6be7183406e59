#include "richtext/tokens/rtf_tokenizer.h"

#include <gtest/gtest.h>

#include <string>

namespace tabrova {
namespace {

using namespace std::string_view_literals;
using namespace std::string_literals;

// All tokens up to the end: { } W(word=number) S(sign) B(byte) T(text) N(binary).
std::string tokensOf(std::string_view bytes) {
    RtfTokenizer tokens(bytes);
    std::string all;
    for (RtfToken token = tokens.next(); token.kind != RtfTokenKind::End; token = tokens.next()) {
        const std::string text(token.text);
        if (token.kind == RtfTokenKind::GroupBegin) all += "{";
        if (token.kind == RtfTokenKind::GroupEnd) all += "}";
        if (token.kind == RtfTokenKind::Word)
            all += "W(" + text + (token.number ? "=" + std::to_string(*token.number) : "") + ")";
        if (token.kind == RtfTokenKind::Sign)
            all += "S(" + std::string(1, static_cast<char>(token.byte)) + ")";
        if (token.kind == RtfTokenKind::Byte) all += "B(" + std::to_string(token.byte) + ")";
        if (token.kind == RtfTokenKind::Text) all += "T(" + text + ")";
        if (token.kind == RtfTokenKind::Binary) all += "N(" + text + ")";
    }
    EXPECT_EQ(tokens.next().kind, RtfTokenKind::End);
    return all;
}

TEST(RtfTokenizer, EveryKindOfTokenIsRead) {
    EXPECT_EQ(tokensOf("{\\b0 bold\\'e4\\~}"), "{W(b=0)T(bold)B(228)S(~)}");
    EXPECT_EQ(tokensOf(""), "");
}

TEST(RtfTokenizer, OneBlankBelongsToTheWord) {
    EXPECT_EQ(tokensOf("\\i x"), "W(i)T(x)");
    EXPECT_EQ(tokensOf("\\i  x"), "W(i)T( x)");
    EXPECT_EQ(tokensOf("\\fs24 x"), "W(fs=24)T(x)");
    EXPECT_EQ(tokensOf("\\i;x"), "W(i)T(;x)");
    EXPECT_EQ(tokensOf("\\~ x"), "S(~)T( x)");
    EXPECT_EQ(tokensOf("\\'41 x"), "B(65)T( x)");
}

TEST(RtfTokenizer, NumbersHaveASignAndAreCutToTheLargest) {
    EXPECT_EQ(tokensOf("\\li-360\\li0\\li-\\li--1"), "W(li=-360)W(li=0)W(li)T(-)W(li)T(--1)");
    EXPECT_EQ(tokensOf("\\u2147483647\\u2147483648"), "W(u=2147483647)W(u=2147483647)");
    EXPECT_EQ(tokensOf("\\u-2147483647\\u-99999999999999999999999999999"),
              "W(u=-2147483647)W(u=-2147483647)");
    EXPECT_EQ(tokensOf("\\u007x"), "W(u=7)T(x)");
    EXPECT_EQ(tokensOf("\\li12-3"), "W(li=12)T(-3)");
}

TEST(RtfTokenizer, AWordHasLettersOfBothSizesAnd32OfThem) {
    EXPECT_EQ(tokensOf("\\aZ1"), "W(aZ=1)");
    const std::string longest(32, 'a');
    EXPECT_EQ(tokensOf("\\" + longest + "7"), "W(" + longest + "=7)");
    EXPECT_EQ(tokensOf("\\" + longest + "b7"), "W(" + longest + ")T(b7)");
}

TEST(RtfTokenizer, LineEndsAndZerosAreNoText) {
    EXPECT_EQ(tokensOf("a\r\nb\nc\rd\0e"sv), "T(a)T(b)T(c)T(d)T(e)");
    EXPECT_EQ(tokensOf("\r\n\n"), "");
}

TEST(RtfTokenizer, ABackslashBeforeALineEndIsOneSign) {
    EXPECT_EQ(tokensOf("a\\\nb"), "T(a)S(\n)T(b)");
    EXPECT_EQ(tokensOf("a\\\r\nb"), "T(a)S(\n)T(b)");
    EXPECT_EQ(tokensOf("a\\\rb"), "T(a)S(\n)T(b)");
    EXPECT_EQ(tokensOf("\\\r"), "S(\n)");
}

TEST(RtfTokenizer, SignsAreAnyOtherCharacter) {
    EXPECT_EQ(tokensOf("\\{\\}\\\\\\*\\_\\1"), "S({)S(})S(\\)S(*)S(_)S(1)");
}

TEST(RtfTokenizer, ABytesDigitsMayBeLargeOrSmall) {
    EXPECT_EQ(tokensOf("\\'aF\\'Fa\\'09"), "B(175)B(250)B(9)");
}

TEST(RtfTokenizer, AByteWithoutTwoDigitsIsNothing) {
    EXPECT_EQ(tokensOf("\\'g1"), "T()T(g1)");
    EXPECT_EQ(tokensOf("\\'1g"), "T()T(1g)");
    EXPECT_EQ(tokensOf("\\'1"), "T()T(1)");
    EXPECT_EQ(tokensOf("\\'"), "T()");
    EXPECT_EQ(tokensOf("\\'1}"), "T()T(1)}");
}

TEST(RtfTokenizer, BinaryBytesAreTakenAsTheyStand) {
    EXPECT_EQ(tokensOf("\\bin3 {}\\x"), "W(bin=3)N({}\\)T(x)");
    EXPECT_EQ(tokensOf("\\bin3abc"), "W(bin=3)N(abc)");
    EXPECT_EQ(tokensOf("\\bin0 a"), "W(bin=0)T(a)");
    EXPECT_EQ(tokensOf("\\bin-3 a"), "W(bin=-3)T(a)");
    EXPECT_EQ(tokensOf("\\bin a"), "W(bin)T(a)");
}

TEST(RtfTokenizer, BinaryBytesEndWithTheText) {
    EXPECT_EQ(tokensOf("\\bin5 abc"), "W(bin=5)N(abc)");
    EXPECT_EQ(tokensOf("\\bin2147483647 abc"), "W(bin=2147483647)N(abc)");
    EXPECT_EQ(tokensOf("\\bin5"), "W(bin=5)");
    EXPECT_EQ(tokensOf("\\bin5 "), "W(bin=5)");
}

TEST(RtfTokenizer, ABackslashAtTheEndIsNothing) { EXPECT_EQ(tokensOf("a\\"), "T(a)"); }

TEST(RtfTokenizer, EveryTextEndsWhereverItIsCut) {
    const std::string whole = "{\\rtf1 a\\'e4\\'zz\\u-8212?\\bin4 {}\\\\\\\r\nb\\*\\fs24}\0x"s;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        RtfTokenizer tokens(std::string_view(whole).substr(0, size));
        std::size_t count = 0;
        while (tokens.next().kind != RtfTokenKind::End)
            ASSERT_LE(++count, size);
    }
}

// Texts and binary bytes lie in the bytes, one behind the other.
TEST(RtfTokenizer, EveryByteIsReadOnce) {
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second) {
            const char bytes[] = {'\\', static_cast<char>(first), static_cast<char>(second), 'x'};
            RtfTokenizer tokens({bytes, sizeof bytes});
            const char* end = bytes;
            for (RtfToken token = tokens.next(); token.kind != RtfTokenKind::End; token = tokens.next()) {
                if (token.text.empty()) continue;
                ASSERT_GE(token.text.data(), end);
                end = token.text.data() + token.text.size();
                ASSERT_LE(end, bytes + sizeof bytes);
            }
        }
}

TEST(RtfTokenizer, HexDigits) {
    EXPECT_EQ(hexDigit('0'), 0);
    EXPECT_EQ(hexDigit('9'), 9);
    EXPECT_EQ(hexDigit('a'), 10);
    EXPECT_EQ(hexDigit('f'), 15);
    EXPECT_EQ(hexDigit('A'), 10);
    EXPECT_EQ(hexDigit('F'), 15);
    for (const char other : {'/', ':', '@', 'G', '`', 'g', '\0', '\xff'})
        EXPECT_EQ(hexDigit(other), -1) << other;
}

} // namespace
} // namespace tabrova
