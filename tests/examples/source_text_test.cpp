// UTF-8 becomes bytes of the code page, or nothing at all.
#include "examples/compose/source_text.h"

#include "core/text/code_page.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(SourceText, ConvertsToTheCodePage) {
    EXPECT_EQ(codePageFromUtf8("\xC2\xB2\xE2\x82\xAC"), "\xB2\x80");
    EXPECT_EQ(codePageFromUtf8(""), "");
}

TEST(SourceText, EveryByteSurvivesTheWayThereAndBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(codePageFromUtf8(utf8FromCodePage(all)), all);
}

TEST(SourceText, OneWrongCharacterFailsTheWholeText) {
    EXPECT_EQ(codePageFromUtf8("caf\xC3\xA9 \xE4\xB8\xAD"), std::nullopt);
    EXPECT_EQ(codePageFromUtf8("abc\xC4\x80"), std::nullopt);
    EXPECT_EQ(codePageFromUtf8("\xC4\x80"
                               "abc"),
              std::nullopt);
}

TEST(SourceText, MalformedUtf8Fails) {
    for (const char* text : {"\xC3", "\xE2\x82", "\x80", "\xFF", "\xC3(", "\xF0\x9F\x8E\xB8"})
        EXPECT_EQ(codePageFromUtf8(text), std::nullopt);
}

// A character has one form in UTF-8; a longer one is malformed.
TEST(SourceText, OverlongUtf8Fails) {
    for (const char* text :
         {"\xC0\x80", "\xC1\x81", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x82\xB2", "\xE0\x9F\xBF"})
        EXPECT_EQ(codePageFromUtf8(text), std::nullopt);
}

TEST(SourceText, SurrogatesInUtf8Fail) { EXPECT_EQ(codePageFromUtf8("\xED\xA0\x80"), std::nullopt); }

} // namespace
} // namespace tabrova
