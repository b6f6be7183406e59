// Pipes, devices, folders and files without an end: nothing is read from them, nothing written to them, and
// nothing waits for them. The pipes and devices are the tests' own.
#include "core/files/line_reader.h"
#include "core/files/regular_file.h"
#include "core/files/text_lines.h"
#include "tests/core/document/document_helpers.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <sstream>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class SpecialFiles : public ::testing::Test {
  protected:
    fs::path pipe(const char* name) {
        EXPECT_EQ(mkfifo((folder.path() / name).c_str(), 0600), 0);
        return folder.path() / name;
    }
    // A device that never ends; std::nullopt where this user may not make one.
    std::optional<fs::path> endlessDevice(const char* name) {
        constexpr unsigned Memory = 1, Zero = 5;
        const fs::path path = folder.path() / name;
        if (mknod(path.c_str(), S_IFCHR | 0600, makedev(Memory, Zero)) != 0) return std::nullopt;
        // Some systems make it, but do not let it be opened.
        return std::ifstream(path) ? std::optional<fs::path>(path) : std::nullopt;
    }
    fs::path file(const char* name, const std::string& bytes) {
        std::ofstream(folder.path() / name, std::ios::binary) << bytes;
        return folder.path() / name;
    }
    static std::string all(RegularFile& input) {
        std::string bytes(1000, '\0');
        input.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(input.gcount()));
        return bytes;
    }

    TemporaryFolder folder;
};

TEST_F(SpecialFiles, ARegularFileIsReadToItsEnd) {
    RegularFile whole(file("a", "some text"));
    ASSERT_TRUE(whole);
    EXPECT_EQ(all(whole), "some text");
    EXPECT_EQ(all(whole), "");
    RegularFile empty(file("b", ""));
    ASSERT_TRUE(empty);
    EXPECT_EQ(all(empty), "");
}

TEST_F(SpecialFiles, AFileOfTheLargestSizeOpensAndALargerOneDoesNot) {
    const fs::path nine = file("a", "nine byte");
    EXPECT_TRUE(RegularFile(nine, 9));
    EXPECT_FALSE(RegularFile(nine, 8));
}

TEST_F(SpecialFiles, WhatAFileGrowsByWhileItIsReadIsLeft) {
    const fs::path path = file("a", "first");
    RegularFile opened(path);
    std::ofstream(path, std::ios::app) << " and more";
    EXPECT_EQ(all(opened), "first");
}

TEST_F(SpecialFiles, ALinkCountsForWhatItLeadsTo) {
    fs::create_symlink(file("a", "text"), folder.path() / "link");
    fs::create_symlink(pipe("p"), folder.path() / "to-pipe");
    fs::create_symlink(folder.path() / "nowhere", folder.path() / "to-nothing");
    EXPECT_TRUE(RegularFile(folder.path() / "link"));
    EXPECT_FALSE(RegularFile(folder.path() / "to-pipe"));
    EXPECT_FALSE(RegularFile(folder.path() / "to-nothing"));
    EXPECT_FALSE(isSpecialFile(folder.path() / "link"));
    EXPECT_TRUE(isSpecialFile(folder.path() / "to-pipe"));
    EXPECT_FALSE(isSpecialFile(folder.path() / "to-nothing"));
}

TEST_F(SpecialFiles, APipeAFolderAndADeviceAreNotOpened) {
    EXPECT_FALSE(RegularFile(pipe("pipe")));
    EXPECT_FALSE(RegularFile(folder.path()));
    EXPECT_FALSE(isSpecialFile(folder.path()));
    EXPECT_FALSE(RegularFile(folder.path() / "missing"));
    const auto device = endlessDevice("zero");
    if (!device) GTEST_SKIP() << "this user may make no device, so only pipe and folder were tried";
    EXPECT_FALSE(RegularFile(*device));
    EXPECT_TRUE(isSpecialFile(*device));
}

TEST_F(SpecialFiles, ALanguageOrInstrumentListThatIsOneHasNoLines) {
    EXPECT_TRUE(readTextLines(pipe("lang.trl"), 10).empty());
    if (const auto device = endlessDevice("genmidi.txt")) {
        EXPECT_TRUE(readTextLines(*device, 10).empty());
    }
    EXPECT_EQ(readTextLines(file("text", "one\ntwo"), 10).size(), 2u);
}

// Before, a pipe without a reader would hang here for ever.
TEST_F(SpecialFiles, TakeNoDocument) {
    std::vector<fs::path> places = {pipe("song.tr3")};
    if (const auto device = endlessDevice("device.tr3")) places.push_back(*device);
    for (const fs::path& path : places) {
        Document document;
        resetToNewDocument(document);
        const fs::file_type type = fs::status(path).type();
        EXPECT_FALSE(saveDocument(document, path));
        EXPECT_EQ(document.HasFileName, True16);
        EXPECT_EQ(fs::status(path).type(), type);
    }
}

// Hands out the same character for ever.
class Endless : public std::streambuf {
  public:
    explicit Endless(std::string text) : text_(std::move(text)) {}
    std::size_t given = 0;

  protected:
    std::streamsize xsgetn(char* to, std::streamsize count) override {
        for (std::streamsize i = 0; i < count; ++i)
            to[i] = text_[given++ % text_.size()];
        return count;
    }

  private:
    std::string text_;
};

TEST(EndlessInput, ALineWithoutAnEndIsNoLine) {
    Endless zeros(std::string(1, '\0'));
    std::istream input(&zeros);
    LineReader lines(input);
    EXPECT_FALSE(lines.next());
    EXPECT_FALSE(lines.next());
    EXPECT_LE(zeros.given, 2 * LineReader::LongestLine);
}

TEST(EndlessInput, TheLongestLineIsReadAndTheOneBehindIt) {
    const std::string longest(LineReader::LongestLine - 1000, 'x');
    std::istringstream input(longest + "\r\nnext\r\n");
    LineReader lines(input);
    const auto line = lines.next();
    ASSERT_TRUE(line);
    EXPECT_TRUE(*line == longest);
    EXPECT_EQ(lines.next(), "next");
}

// Texts that are all different: in time the reading ends, and what came stays.
TEST(EndlessInput, ADocumentOfEverNewTextsIsNotRead) {
    std::ostringstream head;
    head << "t\r\na\r\n1\r\n 480 \r\n\r\nFalse\r\n 100 \r\n 1 \r\n 1 \r\n 64 \r\n";
    for (int track = 0; track < 100; ++track)
        head << "n\r\n127\r\nTrue\r\n24\r\n";
    for (int row = 0; row < 600; ++row)
        head << " 13 \r\n";
    std::string text = head.str();
    for (int cell = 0; cell < 64 * 32 * 600; ++cell)
        text += "n" + std::to_string(cell) + "\r\n";
    std::istringstream input(text);
    Document document;
    resetToNewDocument(document);
    EXPECT_FALSE(readDocument(document, input));
    EXPECT_LE(document.pool.size(), 1024u * 1024u + 2u);
    EXPECT_EQ(document.note(0, 0), "n0");
    EXPECT_EQ(document.note(1746, 400), "n1048000");
    EXPECT_EQ(document.note(2047, 599), "");
}

} // namespace
} // namespace tabrova::testing
