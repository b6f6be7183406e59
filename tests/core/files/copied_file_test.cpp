// A file that is copied into one of the program's folders.
#include "core/files/copied_file.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class CopiedFile : public ::testing::Test {
  protected:
    static std::string bytesOf(const fs::path& path) {
        std::ifstream input(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    static void write(const fs::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    std::size_t entries() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
    }

    testing::TemporaryFolder folder;
    fs::path from = folder.path() / "from";
    fs::path to = folder.path() / "to";
};

TEST_F(CopiedFile, HoldsTheSameBytes) {
    const std::string bytes = std::string("a\0b\r\n", 5) + std::string(3'000'000, 'x');
    write(from, bytes);
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_EQ(bytesOf(to), bytes);
    EXPECT_EQ(bytesOf(from), bytes);
    EXPECT_EQ(entries(), 2U);
}

TEST_F(CopiedFile, ReplacesAFileAndALinkButNotWhatTheLinkLeadsTo) {
    write(from, "new");
    write(to, "old");
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_EQ(bytesOf(to), "new");
    const fs::path other = folder.path() / "other";
    write(other, "other");
    fs::remove(to);
    fs::create_symlink(other, to);
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_FALSE(fs::is_symlink(to));
    EXPECT_EQ(bytesOf(other), "other");
    // A link to the file that is copied is replaced too.
    fs::remove(to);
    fs::create_symlink(from, to);
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_FALSE(fs::is_symlink(to));
    EXPECT_EQ(bytesOf(to), "new");
}

TEST_F(CopiedFile, OntoItselfStaysAsItIs) {
    write(from, "bytes");
    EXPECT_TRUE(copyRegularFile(from, from));
    EXPECT_TRUE(copyRegularFile(from, folder.path() / "." / "from"));
    fs::create_hard_link(from, to);
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_EQ(bytesOf(from), "bytes");
    EXPECT_EQ(entries(), 2U);
}

TEST_F(CopiedFile, IsNotMadeOfWhatIsNoRegularFile) {
    const fs::path pipe = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fs::create_directory(folder.path() / "folder");
    for (const fs::path& source : {pipe, folder.path() / "folder", folder.path() / "missing", fs::path()}) {
        EXPECT_FALSE(copyRegularFile(source, to)) << source;
        EXPECT_FALSE(fs::exists(to)) << source;
    }
}

TEST_F(CopiedFile, TakesNoPlaceOfAFolderOrAPipeOrInAMissingFolder) {
    write(from, "bytes");
    const fs::path pipe = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fs::create_directory(to);
    EXPECT_FALSE(copyRegularFile(from, to));
    EXPECT_FALSE(copyRegularFile(from, pipe));
    EXPECT_FALSE(copyRegularFile(from, folder.path() / "missing" / "file"));
    EXPECT_TRUE(fs::is_directory(to));
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(entries(), 3U);
}

TEST_F(CopiedFile, LeavesWhatWasThereWhereTheDiskIsFull) {
    write(from, std::string(200'000, 'x'));
    write(to, "old");
    {
        const testing::FileSizeLimit limit(50'000);
        EXPECT_FALSE(copyRegularFile(from, to));
    }
    EXPECT_EQ(bytesOf(to), "old");
    EXPECT_EQ(entries(), 2U);
}

// A copy that was broken off may have left one, or somebody a link to write through.
TEST_F(CopiedFile, TouchesNothingThatStandsBesideIt) {
    const fs::path other = folder.path() / "other";
    write(from, "new");
    write(other, "other");
    write(folder.path() / "to.part", "part");
    fs::create_symlink(other, folder.path() / ".copy0");
    ASSERT_EQ(mkfifo((folder.path() / ".copy1").c_str(), 0600), 0);
    write(folder.path() / ".copy2", "before");
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_EQ(bytesOf(to), "new");
    EXPECT_EQ(bytesOf(other), "other");
    EXPECT_EQ(bytesOf(folder.path() / "to.part"), "part");
    EXPECT_EQ(bytesOf(folder.path() / ".copy2"), "before");
    EXPECT_EQ(entries(), 7U);
}

TEST_F(CopiedFile, FailsWhereNoPlaceIsLeft) {
    write(from, "new");
    write(to, "old");
    for (int number = 0; number < 100; ++number)
        write(folder.path() / (".copy" + std::to_string(number)), "");
    EXPECT_FALSE(copyRegularFile(from, to));
    EXPECT_EQ(bytesOf(to), "old");
    fs::remove(folder.path() / ".copy99");
    EXPECT_TRUE(copyRegularFile(from, to));
    EXPECT_EQ(bytesOf(to), "new");
    EXPECT_EQ(entries(), 101U);
}

TEST_F(CopiedFile, MayHaveTheLongestName) {
    write(from, "new");
    const fs::path longest = folder.path() / std::string(255, 'n');
    EXPECT_TRUE(copyRegularFile(from, longest));
    EXPECT_EQ(bytesOf(longest), "new");
}

} // namespace
} // namespace tabrova
