// The one item of a file that holds a document of the previous generation.
#include "core/document/old_document.h"
#include "tests/core/document/document_helpers.h"
#include "tests/core/document/old_file_writer.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class OldDocumentItem : public ::testing::Test {
  protected:
    std::string item(const std::string& bytes) {
        write(bytes);
        return readOldDocumentItem(path).value_or("nothing");
    }
    void write(const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }
    bool read(const std::string& bytes) {
        resetToNewDocument(document);
        return readOldDocument(document, item(bytes));
    }

    TemporaryFolder folder;
    fs::path path = folder.path() / "song.trx";
    Document document;
    OldFile file;
};

TEST_F(OldDocumentItem, EndsAtALineEnd) {
    EXPECT_EQ(item("one"), "one");
    EXPECT_EQ(item("one\r\ntwo"), "one");
    EXPECT_EQ(item("one\rtwo"), "one");
    EXPECT_EQ(item("one\ntwo"), "one");
    EXPECT_EQ(item("\r\none"), "");
}

TEST_F(OldDocumentItem, EndsAtACommaOutsideQuotes) {
    EXPECT_EQ(item("one,two"), "one");
    EXPECT_EQ(item(",one"), "");
    EXPECT_EQ(item("\"one,two\",three"), "one,two");
    EXPECT_EQ(item("o\"n,e\"two,three"), "o\"n,e\"two");
    EXPECT_EQ(item("\"one,two\nthree"), "one,two");
}

TEST_F(OldDocumentItem, KeepsItsBlanksAndAnyOtherByte) {
    EXPECT_EQ(item("  24 \t "), "  24 \t ");
    EXPECT_EQ(item(std::string("\0\xFF\x1A#;", 5)), std::string("\0\xFF\x1A#;", 5));
}

TEST_F(OldDocumentItem, OfAFileWithALineEndBehindItIsAWholeDocument) {
    for (const char* end : {"", "\r\n", "\n", "\r\n\x1A", ",", "\r\nmore"}) {
        ASSERT_TRUE(read(file.bytes() + end));
        EXPECT_EQ(document.TrackInstruments.front(), " 24");
        EXPECT_EQ(document.Title, "Old song");
    }
}

TEST_F(OldDocumentItem, WithACommaLosesEverythingBehindIt) {
    file.author = "Ann, Bob";
    EXPECT_FALSE(read(file.bytes()));
    EXPECT_EQ(document.Author, "Ann");
    EXPECT_EQ(document.Title, "Untitled");
    file.author = "Ann";
    file.title = "Slow, old song";
    EXPECT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.Title, "Slow");
}

TEST_F(OldDocumentItem, WithALineEndOrACommaInACellEndsThere) {
    file.cells = {{{0, 1, 6}, " 7"}};
    for (const char* end : {",", "\r", "\n"}) {
        EXPECT_FALSE(read(withText(file.bytes(), oldCellAt(0, 1, 7), end)));
        EXPECT_EQ(document.note(6, 1), "7");
        EXPECT_EQ(document.ColumnInStaff, 7);
        EXPECT_EQ(document.Author, "Anonymous");
    }
}

TEST_F(OldDocumentItem, InQuotesKeepsItsCommas) {
    file.author = "Ann, Bob";
    file.title = "Slow, old song";
    ASSERT_TRUE(read("\"" + file.bytes() + "\"\r\n"));
    EXPECT_EQ(document.Author, "Ann, Bob");
    EXPECT_EQ(document.Title, "Slow, old song");
}

TEST_F(OldDocumentItem, KeepsTheCommasThatAFieldHasInQuotes) {
    file.author = "\"Ann, Bob\"";
    file.title = "Slow, old song";
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.Author, "\"Ann, Bob\"");
    EXPECT_EQ(document.Title, "Slow");
}

TEST_F(OldDocumentItem, OfAnEmptyFileIsEmptyAndNoDocument) {
    EXPECT_EQ(item(""), "");
    EXPECT_FALSE(read(""));
    EXPECT_EQ(document.Tempo, 480);
    EXPECT_EQ(document.StaffCount, 1);
    EXPECT_EQ(document.Title, "Untitled");
    EXPECT_EQ(document.ColumnInStaff, 0);
}

TEST_F(OldDocumentItem, IsNothingIfThereIsNoFileToRead) {
    EXPECT_EQ(readOldDocumentItem(path), std::nullopt);
    EXPECT_EQ(readOldDocumentItem(fs::path()), std::nullopt);
    EXPECT_EQ(readOldDocumentItem(folder.path()), std::nullopt);
    EXPECT_EQ(readOldDocumentItem(path / "below"), std::nullopt);
    fs::create_symlink(folder.path() / "nowhere", path);
    EXPECT_EQ(readOldDocumentItem(path), std::nullopt);
}

// A pipe would wait for its writer for ever.
TEST_F(OldDocumentItem, IsNothingOfAPipe) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(readOldDocumentItem(path), std::nullopt);
}

TEST_F(OldDocumentItem, IsNothingOfALinkToADeviceWithoutAnEnd) {
    fs::create_symlink("/dev/zero", path);
    ASSERT_TRUE(fs::is_character_file(path));
    EXPECT_EQ(readOldDocumentItem(path), std::nullopt);
}

TEST_F(OldDocumentItem, IsNothingOfADevice) {
    constexpr unsigned Memory = 1, Zero = 5;
    if (mknod(path.c_str(), S_IFCHR | 0600, makedev(Memory, Zero)) != 0)
        GTEST_SKIP() << "this user may make no device";
    // Some systems make it, but do not let it be opened.
    if (!std::ifstream(path)) GTEST_SKIP() << "this user may open no device here";
    EXPECT_EQ(readOldDocumentItem(path), std::nullopt);
}

TEST_F(OldDocumentItem, OfALinkIsThatOfTheFile) {
    const fs::path link = folder.path() / "link.trx";
    write("one\r\n");
    fs::create_symlink(path, link);
    EXPECT_EQ(readOldDocumentItem(link), "one");
}

TEST_F(OldDocumentItem, OfAHugeFileIsItsFirstLine) {
    write(file.bytes() + "\r\n");
    fs::resize_file(path, 100'000'000);
    EXPECT_EQ(readOldDocumentItem(path), file.bytes());
}

TEST_F(OldDocumentItem, OfAHugeFileWithoutALineEndIsItsBeginning) {
    write("one");
    fs::resize_file(path, 100'000'000);
    const auto beginning = readOldDocumentItem(path);
    ASSERT_TRUE(beginning);
    EXPECT_TRUE(beginning->starts_with(std::string("one\0\0", 5)));
    EXPECT_LT(beginning->size(), 20'000'000u);
}

TEST_F(OldDocumentItem, OfTheLongestDocumentIsWhole) {
    file.author = file.title = std::string(99, ',');
    std::string bytes = file.bytes();
    const std::string staff = bytes.substr(OldCellsAt, 577);
    bytes.replace(OldStavesAt, 5, "32767");
    std::string staves;
    for (int each = 0; each < 32767; ++each)
        staves += staff;
    bytes.replace(OldCellsAt, 577, staves);
    ASSERT_TRUE(read("\"" + bytes + "\"\r\n"));
    EXPECT_EQ(document.StaffCount, 32767);
    EXPECT_EQ(document.Title, file.title);
}

} // namespace
} // namespace tabrova::testing
