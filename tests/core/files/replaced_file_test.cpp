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
        EXPECT_EQ(replaceFile(file, std::string(100000, 'y')), Replaced::InPart);
    }
    EXPECT_LE(fs::file_size(file), 30000u);
    EXPECT_EQ(bytesOf(file).find('x'), std::string::npos);
}

TEST_F(ReplacedFile, APipeTakesNothing) {
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(replaceFile(file, lines(1)), Replaced::InPart);
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(ReplacedFile, TakesBytesAsTheyStand) {
    std::ofstream(file) << std::string(1000, 'x');
    const std::string bytes("\0\r\n\xFF end", 8);
    EXPECT_EQ(replaceFile(file, bytes), Replaced::Whole);
    EXPECT_EQ(bytesOf(file), bytes);
    EXPECT_EQ(replaceFile("/dev/full", bytes), Replaced::InPart);
    EXPECT_EQ(replaceFile(folder.path(), bytes), Replaced::NotOpened);
}

TEST_F(ReplacedFile, TheProgramsOwnHasRoomWhereNothingOrAFileStands) {
    EXPECT_TRUE(makeRoomForFile(file));
    std::ofstream(file) << "old";
    EXPECT_TRUE(makeRoomForFile(file));
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(ReplacedFile, ALinkInThePlaceOfTheProgramsOwnGoesAndWhatItLeadsToStays) {
    const fs::path other = folder.path() / "other";
    std::ofstream(other) << "other's";
    for (const fs::path& target : {other, folder.path(), folder.path() / "missing", fs::path("/dev/null")}) {
        fs::create_symlink(target, file);
        EXPECT_TRUE(makeRoomForFile(file));
        EXPECT_FALSE(fs::exists(fs::symlink_status(file)));
    }
    EXPECT_EQ(bytesOf(other), "other's");
}

TEST_F(ReplacedFile, AFolderOrAPipeLeavesNoRoomForTheProgramsOwn) {
    fs::create_directory(file);
    EXPECT_FALSE(makeRoomForFile(file));
    EXPECT_TRUE(fs::is_directory(file));
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(makeRoomForFile(file));
    EXPECT_TRUE(fs::is_fifo(file));
}

} // namespace
} // namespace tabrova
