// Which names a new entry may have. Those that any entry may have are tested with the tracks.
#include "core/files/entry_name.h"

#include <gtest/gtest.h>

#include <string>

namespace tabrova {
namespace {

using namespace std::string_view_literals;

TEST(NewEntryName, MayBeWhatAPlayerCallsAChord) {
    for (const auto name : {u"F#m7 (barre)"sv, u"C"sv, u"7+9-5"sv, u"Ré mineur"sv, u"до мажор"sv, u"..."sv,
                            u" "sv, u"\U0001F3B8"sv, u"a\u00A0b"sv, u"~"sv})
        EXPECT_TRUE(isNewEntryName(name)) << name.size();
}

TEST(NewEntryName, IsNoneThatNoEntryMayHave) {
    for (const auto name : {u""sv, u"."sv, u".."sv, u"C/G"sv, u"C\\G"sv, u"a\0b"sv})
        EXPECT_FALSE(isNewEntryName(name));
}

TEST(NewEntryName, HoldsNoLineEndsNorOtherControls) {
    for (const int unit : {0x1, 0x9, 0xA, 0xD, 0x1F, 0x7F, 0x80, 0x85, 0x9F, 0x2028, 0x2029})
        EXPECT_FALSE(isNewEntryName(std::u16string(u"C") + static_cast<char16_t>(unit))) << unit;
    for (const int unit : {0x20, 0x7E, 0xA0, 0x2027, 0x202A, 0xD7FF, 0xE000})
        EXPECT_TRUE(isNewEntryName(std::u16string(u"C") + static_cast<char16_t>(unit))) << unit;
}

TEST(NewEntryName, HoldsNoHalfCharacters) {
    const std::u16string first(1, 0xD83C), second(1, 0xDFB8);
    EXPECT_TRUE(isNewEntryName(first + second));
    EXPECT_TRUE(isNewEntryName(u"a" + first + second + u"b"));
    EXPECT_FALSE(isNewEntryName(first));
    EXPECT_FALSE(isNewEntryName(second));
    EXPECT_FALSE(isNewEntryName(second + first));
    EXPECT_FALSE(isNewEntryName(first + u"a"));
    EXPECT_FALSE(isNewEntryName(first + first + second));
    EXPECT_FALSE(isNewEntryName(first + std::u16string(1, 0xE000)));
    EXPECT_FALSE(isNewEntryName(std::u16string(1, 0xDC80))); // a byte that is no text
}

} // namespace
} // namespace tabrova
