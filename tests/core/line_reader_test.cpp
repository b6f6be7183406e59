#include "core/line_reader.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace tabrova {
namespace {

std::vector<std::string> allLines(const std::string& bytes) {
    std::istringstream in(bytes);
    LineReader reader(in);
    std::vector<std::string> list;
    while (const auto line = reader.next())
        list.emplace_back(*line);
    return list;
}

using Lines = std::vector<std::string>;

TEST(LineReader, EndsALineAtCrLfAlone) {
    EXPECT_EQ(allLines("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(allLines("a\rb\r\nc\nd\r\n"), (Lines{"a\rb", "c\nd"}));
    EXPECT_EQ(allLines("\r\r\n\n\r\n\r\n"), (Lines{"\r", "\n", ""}));
    EXPECT_EQ(allLines("abc\r\r\n"), (Lines{"abc\r"}));
}

TEST(LineReader, TakesALastLineThatIsNotEnded) {
    EXPECT_EQ(allLines("a\r\nlast"), (Lines{"a", "last"}));
    EXPECT_EQ(allLines("a\r\nlast\r"), (Lines{"a", "last"}));
    EXPECT_EQ(allLines("a\r\nb\r\n\r"), (Lines{"a", "b", ""}));
    EXPECT_EQ(allLines(""), Lines{});
}

TEST(LineReader, ReadsAFileOfPlainLfByItsLfs) {
    EXPECT_EQ(allLines("a\n\nb\n"), (Lines{"a", "", "b"}));
    EXPECT_EQ(allLines("a\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(allLines("a\rb\n"), (Lines{"a\rb"}));
}

TEST(LineReader, CrossesItsBufferAtAnyByte) {
    constexpr std::size_t Buffer = 256 * 1024;
    for (std::size_t before = Buffer - 6; before <= Buffer + 2; ++before) {
        const std::string first(before, 'q');
        EXPECT_EQ(allLines(first + "\r\nsecond\r\n\r\n3"), (Lines{first, "second", "", "3"})) << before;
    }
    const std::string longer(3 * Buffer + 17, 'w');
    EXPECT_EQ(allLines("a\r\n" + longer + "\r\nz\r\n"), (Lines{"a", longer, "z"}));
}

TEST(LineReader, SkipsEmptyLinesUpToTheMost) {
    std::string bytes;
    for (int line = 0; line < 400000; ++line)
        bytes += "\r\n";
    bytes += "x\r\n\r\n";
    std::istringstream in(bytes);
    LineReader reader(in);
    EXPECT_EQ(reader.skipEmptyLines(5), 5u);
    EXPECT_EQ(reader.skipEmptyLines(100000), 100000u);
    EXPECT_EQ(reader.skipEmptyLines(1000000), 400000u - 100005u);
    EXPECT_EQ(reader.skipEmptyLines(10), 0u);
    EXPECT_EQ(reader.next(), "x");
    EXPECT_EQ(reader.skipEmptyLines(10), 1u);
    EXPECT_EQ(reader.next(), std::nullopt);
}

TEST(LineReader, SkippingAndReadingAgreeOnRandomFiles) {
    std::mt19937 random(3);
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int file = 0; file < 60; ++file) {
        std::string bytes;
        Lines expected;
        for (int line = 0; line < 3000; ++line) {
            std::string text;
            if (choose(9) == 0)
                for (int length = choose(300); length > 0; --length)
                    text.push_back("ab\r\n7 "[choose(5)]);
            while (text.find("\r\n") != std::string::npos)
                text.erase(text.find("\r\n"), 2);
            expected.push_back(text);
            bytes += text + "\r\n";
        }
        std::istringstream in(bytes);
        LineReader reader(in);
        Lines found;
        while (true) {
            if (choose(1))
                found.insert(found.end(), reader.skipEmptyLines(static_cast<std::size_t>(choose(40))),
                             std::string());
            const auto line = reader.next();
            if (!line) break;
            found.emplace_back(*line);
        }
        ASSERT_EQ(found, expected);
    }
}

} // namespace
} // namespace tabrova
