// The small files of entries: what is read of them, and what may be written where.
#include "core/files/entry_file.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class EntryFile : public ::testing::Test {
  protected:
    std::string item(const std::string& bytes) {
        std::ofstream(entry, std::ios::binary) << bytes;
        return readFirstItem(entry).value_or("nothing");
    }
    static std::string bytesOf(const fs::path& file) {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }

    testing::TemporaryFolder folder;
    fs::path entry = folder.path() / "entry";
};

// The bytes of "Ã©" alone would be an é.
TEST_F(EntryFile, TheFirstItemsTextIsStoredAsTheWholeFileIs) {
    const auto text = [this](const std::string& bytes) {
        std::ofstream(entry, std::ios::binary) << bytes;
        return readFirstItemText(entry).value_or("nothing");
    };
    EXPECT_EQ(text("caf\xE9, then\r\n"), "café");
    EXPECT_EQ(text("Группа, потом\r\n"), "Группа");
    EXPECT_EQ(text("\xC3\xA9, \xE9\r\n"), "Ã©");
    EXPECT_EQ(text("\xC3\xA9, x\r\n"), "é");
    EXPECT_EQ(text("  \"a, b\" c"), "a, b");
    EXPECT_EQ(text(""), "nothing");
    EXPECT_EQ(readFirstItemText(folder.path()), std::nullopt);
    // A character that the bound of a megabyte cuts does not make it a text of the code page.
    const std::string most = "é, " + std::string(1024 * 1024 - 5, 'x');
    EXPECT_EQ(text(most + "é"), "é");
}

TEST_F(EntryFile, TheFirstItemEndsAtALineEndOrAComma) {
    EXPECT_EQ(item("x32010\r\n"), "x32010");
    EXPECT_EQ(item("x32010"), "x32010");
    EXPECT_EQ(item("x3\n2010"), "x3");
    EXPECT_EQ(item("x3\r2010"), "x3");
    EXPECT_EQ(item("x3,2010\r\n"), "x3");
    EXPECT_EQ(item(",x32010"), "");
    EXPECT_EQ(item("\r\nx32010"), "");
    EXPECT_EQ(item(""), "nothing");
}

TEST_F(EntryFile, BlanksBeforeTheItemArePassedOverAndThoseInItStay) {
    EXPECT_EQ(item(" \t 320 10 ,"), "320 10 ");
    EXPECT_EQ(item("   "), "");
}

TEST_F(EntryFile, CommasInDoubleQuotesBelongToTheItem) {
    EXPECT_EQ(item("\"a,b\",c"), "a,b");
    EXPECT_EQ(item("a\"b,c\"d,e"), "a\"b,c\"d");
    EXPECT_EQ(item("\"never closed, at all\nnext"), "never closed, at all");
    EXPECT_EQ(item("\"\""), "");
    EXPECT_EQ(item("  \"in quotes\" "), "in quotes");
}

TEST_F(EntryFile, AnyBytesAreRead) {
    EXPECT_EQ(item(std::string("\xFF\0\x80", 3)), std::string("\xFF\0\x80", 3));
    EXPECT_EQ(item(std::string(3 * 1024 * 1024, 'x')).size(), 1024u * 1024u);
}

TEST_F(EntryFile, WhatIsNoRegularFileIsEmpty) {
    EXPECT_EQ(readFirstItem(entry), std::nullopt);
    EXPECT_EQ(readFirstItem(folder.path()), std::nullopt);
    ASSERT_EQ(mkfifo(entry.c_str(), 0600), 0);
    EXPECT_EQ(readFirstItem(entry), std::nullopt);
    EXPECT_EQ(readFirstItem({}), std::nullopt);
}

TEST_F(EntryFile, IsWrittenAsOneLine) {
    EXPECT_TRUE(writeEntryFile(entry, "x32010"));
    EXPECT_EQ(bytesOf(entry), "x32010\r\n");
    EXPECT_TRUE(writeEntryFile(entry, ""));
    EXPECT_EQ(bytesOf(entry), "\r\n");
}

TEST_F(EntryFile, ReplacesALongerOne) {
    std::ofstream(entry) << "something longer";
    EXPECT_TRUE(writeEntryFile(entry, "x"));
    EXPECT_EQ(bytesOf(entry), "x\r\n");
}

// So that a disk that is full or cannot be written to does no harm to what is there.
TEST_F(EntryFile, IsNotTouchedIfItHoldsTheLineAlready) {
    EXPECT_TRUE(writeEntryFile(entry, "x32010"));
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time(entry, longAgo);
    EXPECT_TRUE(writeEntryFile(entry, "x32010"));
    EXPECT_EQ(fs::last_write_time(entry), longAgo);
    EXPECT_TRUE(writeEntryFile(entry, "x3201"));
    EXPECT_NE(fs::last_write_time(entry), longAgo);
}

TEST_F(EntryFile, CannotBeWrittenWhereSomethingElseStands) {
    fs::create_directory(entry);
    EXPECT_FALSE(writeEntryFile(entry, "x"));
    EXPECT_TRUE(fs::is_directory(entry));
    const fs::path pipe = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(writeEntryFile(pipe, "x"));
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_FALSE(writeEntryFile(folder.path() / "missing" / "entry", "x"));
    EXPECT_FALSE(writeEntryFile(folder.path() / std::string(300, 'n'), "x"));
}

TEST_F(EntryFile, TakesThePlaceOfALinkAndLeavesWhatItLeadsTo) {
    const fs::path outside = folder.path() / "outside";
    std::ofstream(outside) << "dear";
    fs::create_symlink(outside, entry);
    EXPECT_TRUE(writeEntryFile(entry, "x"));
    EXPECT_FALSE(fs::is_symlink(entry));
    EXPECT_EQ(bytesOf(entry), "x\r\n");
    EXPECT_EQ(bytesOf(outside), "dear");
    const fs::path astray = folder.path() / "astray";
    fs::create_symlink(folder.path() / "nowhere", astray);
    EXPECT_TRUE(writeEntryFile(astray, "x"));
    EXPECT_FALSE(fs::exists(folder.path() / "nowhere"));
}

TEST_F(EntryFile, OfWhichOnlyAPartFitsIsNotLeft) {
    {
        const testing::FileSizeLimit full(3);
        EXPECT_FALSE(writeEntryFile(entry, "x32010"));
    }
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(EntryFile, IsRemovedAndNothingElseIs) {
    EXPECT_TRUE(writeEntryFile(entry, "x"));
    removeEntryFile(entry);
    EXPECT_FALSE(fs::exists(entry));
    removeEntryFile(entry);
    fs::create_directory(entry);
    removeEntryFile(entry);
    EXPECT_TRUE(fs::is_directory(entry));
    const fs::path link = folder.path() / "link";
    fs::create_directory_symlink(entry, link);
    removeEntryFile(link);
    EXPECT_FALSE(fs::is_symlink(link));
    EXPECT_TRUE(fs::is_directory(entry));
}

} // namespace
} // namespace tabrova
