#include "core/text/code_page.h"

#include <gtest/gtest.h>

#include <set>

namespace tabrova {
namespace {

TEST(CodePage, EveryByteSurvivesTheWayThereAndBack) {
    std::set<char32_t> seen;
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t codePoint = codePointOf(static_cast<unsigned char>(byte));
        EXPECT_EQ(byteOf(codePoint), static_cast<unsigned char>(byte));
        seen.insert(codePoint);
    }
    EXPECT_EQ(seen.size(), 256u);
}

TEST(CodePage, UnassignedBytesAreTheCodePointsOfTheSameNumber) {
    for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(codePointOf(static_cast<unsigned char>(byte)), static_cast<char32_t>(byte));
}

TEST(CodePage, HoldsTheSignsOfTheSystem) {
    EXPECT_EQ(codePointOf(0xB2), U'\u00B2');
    EXPECT_EQ(codePointOf(0x80), U'\u20AC');
    EXPECT_EQ(codePointOf(0x99), U'\u2122');
}

TEST(CodePage, OtherCharactersHaveNoByte) {
    for (const char32_t other : {U'\u0100', U'\u4E2D', U'\u0080', U'\u009F', U'\u2190'})
        EXPECT_EQ(byteOf(other), std::nullopt);
}

// One character in its shortest form, or nothing.
std::optional<char32_t> codePointOfUtf8(std::string_view text) {
    const auto at = [&text](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[i]));
    };
    const auto rest = [&at](std::size_t i) { return at(i) >= 0x80 && at(i) < 0xC0 ? at(i) - 0x80 : 0x10000; };
    char32_t value = 0x10000;
    if (text.size() == 1) value = at(0);
    if (text.size() == 2) value = (at(0) - 0xC0) * 64 + rest(1);
    if (text.size() == 3) value = ((at(0) - 0xE0) * 64 + rest(1)) * 64 + rest(2);
    const std::size_t length = value < 0x80 ? 1 : value < 0x800 ? 2 : value < 0x10000 ? 3 : 0;
    return length == text.size() ? std::optional(value) : std::nullopt;
}

TEST(CodePage, EveryByteBecomesItsCharacterInUtf8) {
    std::string all, expected;
    for (int value = 0; value < 256; ++value) {
        const auto byte = static_cast<unsigned char>(value);
        const std::string utf8 = utf8FromCodePage(std::string(1, static_cast<char>(byte)));
        EXPECT_EQ(codePointOfUtf8(utf8), codePointOf(byte)) << value;
        all.push_back(static_cast<char>(byte));
        expected += utf8;
    }
    EXPECT_EQ(utf8FromCodePage(all), expected);
    EXPECT_EQ(utf8FromCodePage("\xB2\x80"), "\xC2\xB2\xE2\x82\xAC");
}

TEST(CodePage, TheRowsOfControlsHoldTheirPrintableSigns) {
    struct Sign {
        unsigned char byte;
        char32_t codePoint;
    };
    constexpr Sign Signs[] = {{0x80, 0x20AC}, {0x82, 0x201A}, {0x83, 0x0192}, {0x84, 0x201E}, {0x85, 0x2026},
                              {0x86, 0x2020}, {0x87, 0x2021}, {0x88, 0x02C6}, {0x89, 0x2030}, {0x8A, 0x0160},
                              {0x8B, 0x2039}, {0x8C, 0x0152}, {0x8E, 0x017D}, {0x91, 0x2018}, {0x92, 0x2019},
                              {0x93, 0x201C}, {0x94, 0x201D}, {0x95, 0x2022}, {0x96, 0x2013}, {0x97, 0x2014},
                              {0x98, 0x02DC}, {0x99, 0x2122}, {0x9A, 0x0161}, {0x9B, 0x203A}, {0x9C, 0x0153},
                              {0x9E, 0x017E}, {0x9F, 0x0178}};
    for (const Sign& sign : Signs) {
        EXPECT_EQ(codePointOf(sign.byte), sign.codePoint);
        EXPECT_EQ(byteOf(sign.codePoint), sign.byte);
    }
}

TEST(CodePage, AllOtherBytesAreTheCodePointOfTheSameNumber) {
    for (int byte = 0; byte < 256; ++byte) {
        if (byte >= 0x80 && byte <= 0x9F) continue;
        EXPECT_EQ(codePointOf(static_cast<unsigned char>(byte)), static_cast<char32_t>(byte));
    }
}

TEST(CodePage, NoMoreThan256CodePointsHaveAByte) {
    int held = 0;
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint)
        if (const auto byte = byteOf(codePoint)) {
            ++held;
            ASSERT_EQ(codePointOf(*byte), codePoint);
        }
    EXPECT_EQ(held, 256);
}

TEST(CodePage, AnEmptyTextStaysEmpty) { EXPECT_EQ(utf8FromCodePage(""), ""); }

} // namespace
} // namespace tabrova
