#include "core/program_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class ProgramFolder : public ::testing::Test {
  protected:
    ProgramFolder() : root_(fs::temp_directory_path() / "tabrova_program_folder_test") {
        fs::remove_all(root_);
        sources_ = {std::nullopt, root_ / "bin", root_ / "user", root_ / "shared"};
        fs::create_directories(root_ / "bin");
        fs::create_directories(root_ / "shared" / "languages" / "Deutsch");
        std::ofstream(root_ / "shared" / "genmidi.txt") << "Piano";
        std::ofstream(root_ / "shared" / "languages" / "Deutsch" / "lang.trl") << "Datei";
    }
    ~ProgramFolder() override { fs::remove_all(root_); }

    fs::path root_;
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

} // namespace
} // namespace tabrova
