// Small text files from anywhere: both encodings, all line ends, and files that are none.
#include "core/files/text_lines.h"

#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

using Lines = std::vector<std::string>;

class TextLines : public ::testing::Test {
  protected:
    Lines linesOf(const std::string& bytes, std::size_t most = 100) {
        std::ofstream(file, std::ios::binary) << bytes;
        return readTextLines(file, most);
    }

    testing::TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "lang.trl";
};

TEST_F(TextLines, EndInCrLfLfOrCr) {
    EXPECT_EQ(linesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(linesOf("a\r\n\r\n\n\r\rb\r\n"), (Lines{"a", "", "", "", "", "b"}));
    EXPECT_EQ(linesOf(""), Lines{});
    EXPECT_EQ(linesOf("\n"), Lines{""});
}

TEST_F(TextLines, StayAsTheyStandInAFileOfValidUtf8) {
    EXPECT_EQ(linesOf("Größe\r\nФайл\r\n🎸"), (Lines{"Größe", "Файл", "🎸"}));
}

// The first and the last character of every length, and those beside what is not allowed.
TEST_F(TextLines, OfValidUtf8MayHoldEveryCharacter) {
    for (const std::string bytes :
         {"\x7F", "\xC2\x80", "\xC3\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
          "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(linesOf(bytes + "\nnext"), (Lines{bytes, "next"}));
    for (const std::string bytes : {"\xC1\xBF", "\xC3\x7F", "\xC3\xC0", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF"})
        EXPECT_NE(linesOf(bytes).front(), bytes);
}

TEST_F(TextLines, ComeFromTheCodePageInAnyOtherFile) {
    EXPECT_EQ(linesOf("Gr\xF6\xDF"
                      "e\r\n\x80 100"),
              (Lines{"Größe", "€ 100"}));
    // One byte that UTF-8 does not allow makes the whole file one of the code page.
    EXPECT_EQ(linesOf("\xC3\xB6\n\xF6"), (Lines{"Ã¶", "ö"}));
}

TEST_F(TextLines, OfMalformedUtf8AreThoseOfTheCodePage) {
    for (const std::string bytes :
         {"\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\x80", "\xC3", "\xE2\x82", "\xFF"}) {
        const Lines lines = linesOf(bytes);
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_NE(lines.front(), bytes);
    }
}

TEST_F(TextLines, BeginBehindAByteOrderMark) {
    EXPECT_EQ(linesOf("\xEF\xBB\xBF"
                      "Datei\r\nNeu"),
              (Lines{"Datei", "Neu"}));
}

TEST_F(TextLines, AreNoMoreThanAskedFor) { EXPECT_EQ(linesOf("a\nb\nc\n", 2), (Lines{"a", "b"})); }

TEST_F(TextLines, AreNoneWithoutARegularFile) {
    EXPECT_EQ(readTextLines(folder.path() / "missing", 10), Lines{});
    EXPECT_EQ(readTextLines(folder.path(), 10), Lines{});
    if (std::filesystem::exists("/dev/zero")) {
        EXPECT_EQ(readTextLines("/dev/zero", 10), Lines{});
        std::filesystem::create_symlink("/dev/zero", folder.path() / "endless");
        EXPECT_EQ(readTextLines(folder.path() / "endless", 10), Lines{});
    }
}

TEST_F(TextLines, OfABinaryFileAreReadWithoutAFault) {
    std::string bytes;
    for (int value = 0; value < 4096; ++value)
        bytes.push_back(static_cast<char>(value * 37 % 256));
    EXPECT_FALSE(linesOf(bytes, 1000).empty());
}

TEST_F(TextLines, EndAtTheBoundOfAnEndlessFile) {
    constexpr std::size_t Bound = 4 * 1024 * 1024;
    std::string bytes;
    while (bytes.size() < Bound + 1000)
        bytes += "Größe";
    const Lines lines = linesOf(bytes);
    ASSERT_EQ(lines.size(), 1U);
    // The character at the bound may be cut; the file is UTF-8 all the same.
    EXPECT_EQ(lines.front(), bytes.substr(0, Bound));
}

} // namespace
} // namespace tabrova
