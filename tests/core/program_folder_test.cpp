#include "core/program_folder.h"

#include "tests/core/temporary_folder.h"

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
    std::ifstream file(root_ / "user" / "languages" / "Deutsch" / "lang.trl");
    std::string text;
    file >> text;
    EXPECT_EQ(text, "Mine");
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

TEST_F(ProgramFolder, AUsersFolderThatIsThereIsNotFilledAgain) {
    fs::create_directories(root_ / "user");
    EXPECT_EQ(programFolder(sources_), root_ / "user");
    EXPECT_TRUE(fs::is_empty(root_ / "user"));
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
