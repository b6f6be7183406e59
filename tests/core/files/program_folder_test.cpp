#include "core/files/program_folder.h"

#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class ProgramFolder : public ::testing::Test {
  protected:
    ProgramFolder() {
        sources_ = {std::nullopt, root_ / "bin", root_ / "user", root_ / "shared"};
        fs::create_directories(root_ / "bin");
        fs::create_directories(root_ / "shared" / "languages" / "Deutsch");
        std::ofstream(root_ / "shared" / "genmidi.txt") << "Piano";
        std::ofstream(root_ / "shared" / "languages" / "Deutsch" / "lang.trl") << "Datei";
    }

    static std::string textOf(const fs::path& path) {
        std::string text;
        std::ifstream(path) >> text;
        return text;
    }

    testing::TemporaryFolder temporary_;
    const fs::path root_ = temporary_.path();
    ProgramFolderSources sources_;
};

TEST_F(ProgramFolder, TheEnvironmentDecidesFirst) {
    sources_.home = root_ / "home";
    std::ofstream(root_ / "bin" / "portable");
    EXPECT_EQ(programFolder(sources_), root_ / "home");
}

TEST_F(ProgramFolder, APortableProgramStaysBesideItself) {
    std::ofstream(root_ / "bin" / "portable");
    EXPECT_EQ(programFolder(sources_), root_ / "bin");
    EXPECT_FALSE(fs::exists(root_ / "user"));
}

TEST_F(ProgramFolder, TheUsersFolderIsFilledAtItsFirstUse) {
    EXPECT_EQ(programFolder(sources_), root_ / "user");
    EXPECT_TRUE(fs::exists(root_ / "user" / "genmidi.txt"));
    EXPECT_TRUE(fs::exists(root_ / "user" / "languages" / "Deutsch" / "lang.trl"));
}

TEST_F(ProgramFolder, WhatTheUserDeletedOrChangedStays) {
    programFolder(sources_);
    fs::remove(root_ / "user" / "genmidi.txt");
    std::ofstream(root_ / "user" / "languages" / "Deutsch" / "lang.trl") << "Mine";
    programFolder(sources_);
    EXPECT_FALSE(fs::exists(root_ / "user" / "genmidi.txt"));
    fillFromSharedData(sources_.sharedData, root_ / "user");
    EXPECT_EQ(textOf(root_ / "user" / "languages" / "Deutsch" / "lang.trl"), "Mine");
}

TEST_F(ProgramFolder, MissingSharedDataIsPassedOver) {
    sources_.sharedData = root_ / "nothing";
    EXPECT_EQ(programFolder(sources_), root_ / "user");
}

TEST_F(ProgramFolder, TheEnvironmentsFolderIsNeitherMadeNorFilled) {
    sources_.home = root_ / "home";
    programFolder(sources_);
    EXPECT_FALSE(fs::exists(root_ / "home"));
    EXPECT_FALSE(fs::exists(root_ / "user"));
}

TEST_F(ProgramFolder, AFolderCalledPortableDoesNotCount) {
    fs::create_directories(root_ / "bin" / "portable");
    EXPECT_EQ(programFolder(sources_), root_ / "user");
}

TEST_F(ProgramFolder, TheUsersFolderIsMadeWithItsParents) {
    sources_.userDataFolder = root_ / "a" / "b" / "c";
    EXPECT_EQ(programFolder(sources_), root_ / "a" / "b" / "c");
    EXPECT_TRUE(fs::is_regular_file(root_ / "a" / "b" / "c" / "genmidi.txt"));
}

TEST_F(ProgramFolder, AUsersFolderInWhichSomethingStandsIsNotFilledAgain) {
    fs::create_directories(root_ / "user" / "languages");
    fs::create_directories(root_ / "user" / "chords");
    std::ofstream(root_ / "user" / "chords" / "E major") << "022100";
    EXPECT_EQ(programFolder(sources_), root_ / "user");
    EXPECT_FALSE(fs::exists(root_ / "user" / "genmidi.txt"));
    EXPECT_FALSE(fs::exists(root_ / "user" / "languages" / "Deutsch"));
}

TEST_F(ProgramFolder, AFolderThatALaterVersionBringsComesAsAWhole) {
    programFolder(sources_);
    const fs::path lessons = root_ / "shared" / "lessons";
    fs::create_directories(lessons / "pictures");
    std::ofstream(lessons / "First chords.rtf") << "E-minor";
    std::ofstream(lessons / "pictures" / "neck") << "neck";
    std::ofstream(root_ / "shared" / "new.txt") << "new";
    fs::create_directories(root_ / "shared" / "linked");
    std::ofstream(root_ / "shared" / "linked" / "file") << "file";
    fs::create_symlink(root_ / "elsewhere", root_ / "user" / "linked");
    programFolder(sources_);
    EXPECT_EQ(textOf(root_ / "user" / "lessons" / "First chords.rtf"), "E-minor");
    EXPECT_EQ(textOf(root_ / "user" / "lessons" / "pictures" / "neck"), "neck");
    EXPECT_FALSE(fs::exists(root_ / "user" / "new.txt"));
    EXPECT_FALSE(fs::exists(root_ / "elsewhere")) << "a link in the folder's place";
    fs::remove(root_ / "user" / "lessons" / "First chords.rtf");
    programFolder(sources_);
    EXPECT_FALSE(fs::exists(root_ / "user" / "lessons" / "First chords.rtf")) << "the user took it out";
}

TEST_F(ProgramFolder, AnEmptyUsersFolderIsFilled) {
    fs::create_directories(root_ / "user" / "languages" / "Italiano");
    programFolder(sources_);
    EXPECT_TRUE(fs::is_regular_file(root_ / "user" / "genmidi.txt"));
    EXPECT_TRUE(fs::is_regular_file(root_ / "user" / "languages" / "Deutsch" / "lang.trl"));
}

TEST_F(ProgramFolder, FilesOfNoBytesFromAFullDiskAreReplacedAtTheNextStart) {
    programFolder(sources_);
    const fs::path language = root_ / "user" / "languages" / "Deutsch" / "lang.trl";
    fs::resize_file(language, 0);
    std::ofstream(root_ / "user" / "own.txt");
    programFolder(sources_);
    EXPECT_EQ(textOf(language), "Datei");
    EXPECT_EQ(fs::file_size(root_ / "user" / "own.txt"), 0u); // nothing to replace it by
    for (const char* name : {"genmidi.txt", "languages/Deutsch/lang.trl"})
        fs::resize_file(root_ / "user" / name, 0);
    fs::remove(root_ / "user" / "own.txt");
    programFolder(sources_);
    EXPECT_EQ(textOf(root_ / "user" / "genmidi.txt"), "Piano");
    EXPECT_EQ(textOf(language), "Datei");
}

// The file that a link leads to may be anybody's.
TEST_F(ProgramFolder, NothingIsWrittenThroughALink) {
    programFolder(sources_);
    std::ofstream(root_ / "elsewhere");
    fs::remove(root_ / "user" / "genmidi.txt");
    fs::create_symlink(root_ / "elsewhere", root_ / "user" / "genmidi.txt");
    programFolder(sources_);
    fs::remove(root_ / "elsewhere");
    programFolder(sources_);
    EXPECT_FALSE(fs::exists(root_ / "elsewhere"));
}

TEST_F(ProgramFolder, AUsersFolderThatCannotBeMadeIsPassedOver) {
    std::ofstream(root_ / "file") << "no folder";
    sources_.userDataFolder = root_ / "file" / "user";
    EXPECT_EQ(programFolder(sources_), root_ / "file" / "user");
    EXPECT_TRUE(fs::is_regular_file(root_ / "file"));
}

TEST_F(ProgramFolder, FillingAddsWhatIsMissingInFoldersThatAreThere) {
    fs::create_directories(root_ / "user" / "languages" / "Deutsch");
    std::ofstream(root_ / "user" / "languages" / "own.txt") << "own";
    fillFromSharedData(sources_.sharedData, root_ / "user");
    EXPECT_TRUE(fs::exists(root_ / "user" / "languages" / "Deutsch" / "lang.trl"));
    EXPECT_TRUE(fs::exists(root_ / "user" / "languages" / "own.txt"));
    EXPECT_TRUE(fs::exists(root_ / "user" / "genmidi.txt"));
}

TEST_F(ProgramFolder, FillingLeavesTheSharedDataAlone) {
    fillFromSharedData(sources_.sharedData, root_ / "user");
    EXPECT_TRUE(fs::exists(root_ / "shared" / "genmidi.txt"));
    EXPECT_TRUE(fs::exists(root_ / "shared" / "languages" / "Deutsch" / "lang.trl"));
}

} // namespace
} // namespace tabrova
