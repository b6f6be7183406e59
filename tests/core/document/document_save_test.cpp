// Saving to a disk that takes it, and to one that does not.
#include "tests/core/document/document_helpers.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tabrova::testing {
namespace {

class SavedFile : public ::testing::Test {
  protected:
    SavedFile() { resetToNewDocument(document_); }

    static std::string content(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TemporaryFolder temporary_;
    const std::filesystem::path folder_ = temporary_.path();
    Document document_;
};

TEST_F(SavedFile, ReplacesALongerAndAShorterOldContent) {
    const auto path = folder_ / "song.tr3";
    for (const std::size_t old : {0u, 10u, 5000u, 700000u}) {
        std::ofstream(path, std::ios::binary) << std::string(old, 'z');
        ASSERT_TRUE(saveDocument(document_, path));
        EXPECT_EQ(content(path), written(document_));
    }
}

TEST_F(SavedFile, AMissingFolderLeavesTheDocumentWithoutAName) {
    EXPECT_FALSE(saveDocument(document_, folder_ / "missing" / "song.tr3"));
    EXPECT_EQ(document_.HasFileName, False16);
    EXPECT_FALSE(saveDocument(document_, folder_));
    EXPECT_EQ(document_.HasFileName, False16);
}

TEST_F(SavedFile, AFailingWriteKeepsTheName) {
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "this system has no device that is always full";
    EXPECT_FALSE(saveDocument(document_, "/dev/full"));
    EXPECT_EQ(document_.HasFileName, True16);
}

TEST_F(SavedFile, LeavesNoOtherFileBehind) {
    ASSERT_TRUE(saveDocument(document_, folder_ / "song.tr3"));
    int files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder_))
        ++files;
    EXPECT_EQ(files, 1);
}

TEST_F(SavedFile, OpeningBringsBackWhatWasSaved) {
    const auto path = folder_ / "song.tr3";
    makeDocument(document_, 2, 3);
    document_.setNote(95, 11, "12");
    document_.setTechnique(95, 11, "\xB2");
    document_.setBarMark(95, "r2");
    ASSERT_TRUE(saveDocument(document_, path));
    std::ifstream file(path, std::ios::binary);
    Document opened;
    resetToNewDocument(opened);
    ASSERT_TRUE(readDocument(opened, file));
    EXPECT_EQ(written(opened), written(document_));
    EXPECT_EQ(opened.HasFileName, False16);
}

TEST_F(SavedFile, SavingNamesTheDocumentAndChangesNothingElse) {
    makeDocument(document_, 2, 2);
    document_.CurrentTrack = 2;
    const std::string before = written(document_);
    ASSERT_TRUE(saveDocument(document_, folder_ / "song.tr3"));
    EXPECT_EQ(document_.HasFileName, True16);
    EXPECT_EQ(written(document_), before);
}

TEST_F(SavedFile, ANameOnceGivenStaysThoughALaterFileCannotBeOpened) {
    ASSERT_TRUE(saveDocument(document_, folder_ / "song.tr3"));
    EXPECT_FALSE(saveDocument(document_, folder_ / "missing" / "song.tr3"));
    EXPECT_EQ(document_.HasFileName, True16);
}

TEST_F(SavedFile, AFileThatCannotBeOpenedIsNotMade) {
    saveDocument(document_, folder_ / "missing" / "song.tr3");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "missing"));
}

TEST_F(SavedFile, ALinkIsWrittenThroughToItsFile) {
    const auto path = folder_ / "song.tr3";
    std::ofstream(path) << "old";
    std::filesystem::create_symlink(path, folder_ / "link.tr3");
    ASSERT_TRUE(saveDocument(document_, folder_ / "link.tr3"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "link.tr3"));
    EXPECT_EQ(content(path), written(document_));
}

TEST_F(SavedFile, AFileKeepsItsPermissions) {
    const auto path = folder_ / "song.tr3";
    std::ofstream(path) << "old";
    const auto permissions = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(path, permissions);
    ASSERT_TRUE(saveDocument(document_, path));
    EXPECT_EQ(std::filesystem::status(path).permissions(), permissions);
}

TEST_F(SavedFile, CountsBeyondTheArraysAreSavedUpToThere) {
    document_.TrackCount = 5;
    ASSERT_TRUE(saveDocument(document_, folder_ / "song.tr3"));
    EXPECT_EQ(lines(content(folder_ / "song.tr3")).size(), 14u);
}

TEST_F(SavedFile, AfterAFailedWriteTheDocumentCanBeSavedElsewhere) {
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "this system has no device that is always full";
    makeDocument(document_, 3, 200);
    EXPECT_FALSE(saveDocument(document_, "/dev/full"));
    ASSERT_TRUE(saveDocument(document_, folder_ / "song.tr3"));
    EXPECT_EQ(content(folder_ / "song.tr3"), written(document_));
}

TEST_F(SavedFile, AWriteThatFailsOnTheWayLeavesTheLinesWrittenSoFar) {
    makeDocument(document_, 1, 200);
    for (int column = 0; column < document_.ColumnCapacity; ++column)
        document_.setNote(column, 0, "12");
    const std::string whole = written(document_);
    ASSERT_GT(whole.size(), 100'000u);
    for (const std::size_t old : {0u, 5000u, 700'000u}) {
        const auto path = folder_ / ("old" + std::to_string(old));
        if (old > 0) std::ofstream(path, std::ios::binary) << std::string(old, 'z');
        document_.HasFileName = False16;
        {
            const FileSizeLimit limit(20'000);
            EXPECT_FALSE(saveDocument(document_, path));
        }
        EXPECT_EQ(document_.HasFileName, True16);
        EXPECT_EQ(content(path), whole.substr(0, 20'000)) << old;
    }
}

} // namespace
} // namespace tabrova::testing
