// A character has one form in UTF-8; a longer one is malformed.
#include "core/text/code_page.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(CodePage, OverlongUtf8Fails) {
    for (const char* text :
         {"\xC0\x80", "\xC1\x81", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x82\xB2", "\xE0\x9F\xBF"})
        EXPECT_EQ(codePageFromUtf8(text), std::nullopt);
}

} // namespace
} // namespace tabrova
