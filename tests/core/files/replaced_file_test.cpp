// A file that is saved: made, replaced, and what takes nothing.
#include "core/files/replaced_file.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

FileText lines(int count) {
    FileText text;
    for (int line = 0; line < count; ++line)
        text.addLine("line");
    return text;
}

class ReplacedFile : public ::testing::Test {
  protected:
    static std::string bytesOf(const fs::path& path) {
        std::ifstream input(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }

    testing::TemporaryFolder folder;
    fs::path file = folder.path() / "file";
};

TEST_F(ReplacedFile, IsMadeAndHoldsTheText) {
    EXPECT_EQ(replaceFile(file, lines(2)), Replaced::Whole);
    EXPECT_EQ(bytesOf(file), "line\r\nline\r\n");
}

TEST_F(ReplacedFile, LosesAllThatItHeld) {
    std::ofstream(file) << std::string(1000, 'x');
    EXPECT_EQ(replaceFile(file, lines(1)), Replaced::Whole);
    EXPECT_EQ(bytesOf(file), "line\r\n");
    EXPECT_EQ(replaceFile(file, lines(0)), Replaced::Whole);
    EXPECT_EQ(bytesOf(file), "");
}

TEST_F(ReplacedFile, CannotBeAFolderOrStandInOneThatIsMissing) {
    fs::create_directory(file);
    EXPECT_EQ(replaceFile(file, lines(1)), Replaced::NotOpened);
    EXPECT_EQ(replaceFile(folder.path() / "missing" / "file", lines(1)), Replaced::NotOpened);
}

TEST_F(ReplacedFile, EndsWhereTheDiskIsFull) {
    std::ofstream(file) << std::string(100000, 'x');
    {
        const testing::FileSizeLimit limit(30000);
        EXPECT_EQ(replaceFile(file, lines(20000)), Replaced::InPart);
    }
    EXPECT_LE(fs::file_size(file), 30000u);
    EXPECT_EQ(bytesOf(file).find('x'), std::string::npos);
}

TEST_F(ReplacedFile, APipeTakesNothing) {
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(replaceFile(file, lines(1)), Replaced::InPart);
    EXPECT_TRUE(fs::is_fifo(file));
}

} // namespace
} // namespace tabrova
