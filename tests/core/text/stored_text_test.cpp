// Texts of small files: the code page's bytes where they say the same when they are read, UTF-8 elsewhere.
#include "core/text/stored_text.h"

#include "core/text/code_page.h"

#include <gtest/gtest.h>

#include <random>

namespace tabrova {
namespace {

TEST(StoredText, IsOfTheCodePageWhereThatHoldsEveryCharacter) {
    EXPECT_EQ(storedText("Café €5"), "Caf\xE9 \x80"
                                     "5");
    EXPECT_EQ(storedText("plain, \"text\""), "plain, \"text\"");
    EXPECT_EQ(storedText(""), "");
}

TEST(StoredText, IsUtf8WhereTheCodePageLacksACharacter) {
    EXPECT_EQ(storedText("Группа é"), "Группа é");
    EXPECT_EQ(storedText("🎸"), "🎸");
}

TEST(StoredText, IsUtf8WhereItsBytesWouldBeReadAsAnotherText) {
    EXPECT_EQ(storedText("Ã©"), "Ã©"); // which the page's bytes C3 A9 would make an é
    EXPECT_EQ(storedText("ï»¿a"), "ï»¿a");
    EXPECT_EQ(storedText("Ã©è"), "\xC3\xA9\xE8"); // no UTF-8 as a whole
}

TEST(StoredText, IsReadAsUtf8IfItIsAndAsTheCodePageOtherwise) {
    EXPECT_EQ(textOfStored("caf\xC3\xA9"), "café");
    EXPECT_EQ(textOfStored("caf\xE9"), "café");
    EXPECT_EQ(textOfStored("\xC3\xA9 \xE9"), "Ã© é");
    EXPECT_EQ(textOfStored(""), "");
}

TEST(StoredText, LeavesAByteOrderMarkOut) {
    EXPECT_EQ(textOfStored("\xEF\xBB\xBF"
                           "a"),
              "a");
    EXPECT_EQ(textOfStored("\xEF\xBB\xBF\xE9"), "ï»¿é");
}

TEST(StoredText, MayBeCutInItsLastCharacter) {
    EXPECT_EQ(textOfStored("\xC3\xA9\xC3", LastCharacter::MayBeCut), "\xC3\xA9\xC3");
    EXPECT_EQ(textOfStored("\xC3\xA9\xC3"), "Ã©Ã");
    EXPECT_FALSE(isUtf8("\xC3xyz", LastCharacter::MayBeCut));
    EXPECT_TRUE(isUtf8("\xF0\x9F\x8E", LastCharacter::MayBeCut));
}

std::string utf8Of(char32_t c) {
    std::string bytes;
    const auto put = [&](char32_t value) { bytes.push_back(static_cast<char>(value)); };
    if (c < 0x80) return std::string(1, static_cast<char>(c));
    if (c < 0x800) {
        put(0xC0 | c >> 6);
    } else if (c < 0x10000) {
        put(0xE0 | c >> 12);
        put(0x80 | (c >> 6 & 0x3F));
    } else {
        put(0xF0 | c >> 18);
        put(0x80 | (c >> 12 & 0x3F));
        put(0x80 | (c >> 6 & 0x3F));
    }
    put(0x80 | (c & 0x3F));
    return bytes;
}

TEST(StoredText, OfEveryCharacterComesBack) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF) continue;
        const std::string text = utf8Of(c);
        const std::string stored = storedText(text);
        ASSERT_EQ(textOfStored(stored), text) << static_cast<unsigned>(c);
        ASSERT_EQ(stored.size(), byteOf(c) ? 1u : c == 0xFEFF ? 6u : text.size()) << static_cast<unsigned>(c);
    }
}

// Short texts over few letters, so that many of them are valid UTF-8 in the page's bytes.
TEST(StoredText, OfAnyTextComesBack) {
    constexpr char32_t Letters[] = {'a',  ',',  0xC3,  0xA9,   0xE9,    0x20AC, 0x2019,      0xEF,
                                    0xBB, 0xBF, 0x416, 0xFEFF, 0x1F3B8, 0xC2,   0x80 + 0x40, 0xA0};
    std::mt19937 random(5);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (auto left = random() % 6; left > 0; --left)
            text += utf8Of(Letters[random() % std::size(Letters)]);
        ASSERT_EQ(textOfStored(storedText(text)), text) << text;
    }
}

} // namespace
} // namespace tabrova
