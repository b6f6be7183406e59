#include "core/files/line_reader.h"

#include <gtest/gtest.h>

#include <fstream>
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

constexpr std::size_t BufferSize = 256 * 1024;

TEST(LineReader, AnEmptyFileHasNoLine) {
    std::istringstream in("");
    LineReader reader(in);
    EXPECT_EQ(reader.next(), std::nullopt);
    EXPECT_EQ(reader.next(), std::nullopt);
    EXPECT_EQ(reader.skipEmptyLines(10), 0u);
}

TEST(LineReader, AFileThatCannotBeReadHasNoLine) {
    std::ifstream in("/nonexistent/file");
    LineReader reader(in);
    EXPECT_EQ(reader.next(), std::nullopt);
}

TEST(LineReader, AnEndedLastLineIsNotFollowedByAnother) {
    EXPECT_EQ(allLines("\r\n"), (Lines{""}));
    EXPECT_EQ(allLines("a\r\n\r\n"), (Lines{"a", ""}));
    EXPECT_EQ(allLines("\n"), (Lines{""}));
}

TEST(LineReader, TheFirstCrLfDecidesAgainstLfs) {
    EXPECT_EQ(allLines("a\nb\nc\r\nd"), (Lines{"a\nb\nc", "d"}));
    EXPECT_EQ(allLines("\n\r\n"), (Lines{"\n"}));
    EXPECT_EQ(allLines("\n\n\nx\r\n\n\r\n"), (Lines{"\n\n\nx", "\n"}));
}

TEST(LineReader, AFileOfLoneCrsIsOneLine) { EXPECT_EQ(allLines("a\rb\rc"), (Lines{"a\rb\rc"})); }

TEST(LineReader, ZeroBytesAreText) {
    EXPECT_EQ(allLines(std::string("a\0b\r\n\0\r\n", 8)),
              (Lines{std::string("a\0b", 3), std::string(1, '\0')}));
}

TEST(LineReader, ShortLinesOfEveryMixtureOfCrAndLfAreExact) {
    const std::string signs = "\r\na";
    for (int number = 0; number < 3 * 3 * 3 * 3 * 3; ++number) {
        std::string bytes = "start\r\n";
        for (int digit = 0, rest = number; digit < 5; ++digit, rest /= 3)
            bytes.push_back(signs[static_cast<std::size_t>(rest % 3)]);
        bytes += "\r\nend\r\n";
        Lines expected;
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t end = bytes.find("\r\n", at);
            expected.push_back(bytes.substr(at, end - at));
            at = end + 2;
        }
        EXPECT_EQ(allLines(bytes), expected) << number;
    }
}

TEST(LineReader, ACrBehindAnLfAtTheBorderOfTheBufferIsNoLineEnd) {
    for (std::size_t before = BufferSize - 8; before <= BufferSize; ++before) {
        const std::string first(before, 'q');
        EXPECT_EQ(allLines("a\r\n" + first + "\n\rz\r\n"), (Lines{"a", first + "\n\rz"})) << before;
        EXPECT_EQ(allLines("a\r\n" + first + "\r\r\nz\r\n"), (Lines{"a", first + "\r", "z"})) << before;
    }
}

TEST(LineReader, LinesOfPlainLfCrossTheBufferToo) {
    for (std::size_t before = BufferSize - 4; before <= BufferSize + 1; ++before) {
        const std::string text(before, 'q');
        EXPECT_EQ(allLines("a\n" + text + "\n\nz"), (Lines{"a", text, "", "z"})) << before;
    }
}

TEST(LineReader, OnlyTheBeginningDecidesAboutPlainLf) {
    const std::string start(BufferSize, '\n');
    const Lines found = allLines(start + "x\r\ny");
    ASSERT_EQ(found.size(), BufferSize + 2);
    EXPECT_EQ(found[BufferSize], "x\r");
    EXPECT_EQ(found[BufferSize + 1], "y");
}

TEST(LineReader, ALineOfMegabytesIsOneLine) {
    const std::string text(5'000'000, 'm');
    const Lines found = allLines("a\r\n" + text);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_TRUE(found[1] == text);
}

TEST(LineReader, ALineStaysUntilTheNextIsTaken) {
    std::istringstream in("first\r\nsecond\r\n");
    LineReader reader(in);
    const auto line = reader.next();
    EXPECT_EQ(line, "first");
    EXPECT_EQ(line, "first");
    EXPECT_EQ(reader.next(), "second");
}

TEST(LineReader, SkippingNoneTakesNone) {
    std::istringstream in("\r\n\r\nx");
    LineReader reader(in);
    EXPECT_EQ(reader.skipEmptyLines(0), 0u);
    EXPECT_EQ(reader.next(), "");
}

TEST(LineReader, SkippingCrossesTheBufferAtAnOddByte) {
    for (const std::size_t start : {0u, 1u, 2u, 3u, 31u}) {
        std::string bytes = std::string(start, 'q') + "\r\n";
        for (std::size_t line = 0; line < BufferSize; ++line)
            bytes += "\r\n";
        std::istringstream in(bytes + "x");
        LineReader reader(in);
        EXPECT_EQ(reader.next(), std::string(start, 'q'));
        EXPECT_EQ(reader.skipEmptyLines(2 * BufferSize), BufferSize) << start;
        EXPECT_EQ(reader.next(), "x");
    }
}

TEST(LineReader, SkippingStopsAtALoneCrOrLf) {
    for (const char* text : {"\r", "\n", "\rx", "\nx", "\r\r", "\n\n"}) {
        std::istringstream in("\r\n\r\n" + std::string(text) + "\r\n");
        LineReader reader(in);
        EXPECT_EQ(reader.skipEmptyLines(100), 2u);
        EXPECT_EQ(reader.next(), text);
    }
}

TEST(LineReader, SkippingLeavesPlainLfLinesToBeRead) {
    std::istringstream in("\n\n\nx");
    LineReader reader(in);
    std::size_t empty = reader.skipEmptyLines(3);
    for (auto line = reader.next(); line && line->empty(); line = reader.next())
        ++empty;
    EXPECT_EQ(empty, 3u);
}

} // namespace
} // namespace tabrova
