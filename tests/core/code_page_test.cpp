#include "core/code_page.h"

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
    EXPECT_EQ(codePageFromUtf8("caf\xC3\xA9 \xE4\xB8\xAD"), std::nullopt);
}

TEST(CodePage, ConvertsToAndFromUtf8) {
    EXPECT_EQ(utf8FromCodePage("\xB2\x80"), "\xC2\xB2\xE2\x82\xAC");
    EXPECT_EQ(codePageFromUtf8("\xC2\xB2\xE2\x82\xAC"), "\xB2\x80");
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(codePageFromUtf8(utf8FromCodePage(all)), all);
}

TEST(CodePage, MalformedUtf8Fails) {
    for (const char* text : {"\xC3", "\xE2\x82", "\x80", "\xFF", "\xC3(", "\xF0\x9F\x8E\xB8"})
        EXPECT_EQ(codePageFromUtf8(text), std::nullopt);
}

} // namespace
} // namespace tabrova
