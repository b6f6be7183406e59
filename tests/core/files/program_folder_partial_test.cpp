// One entry that cannot be copied is passed over alone: what stands beside it still comes, in whatever order
// the folder is listed.
#include "core/files/program_folder.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFolderFilling, AFileInTheWayOfAFolderKeepsNothingElseBack) {
    const testing::TemporaryFolder temporary;
    const fs::path from = temporary.path() / "shared", to = temporary.path() / "user";
    for (const char* name : {"a", "b", "c", "d", "e"}) {
        fs::create_directories(from / name);
        std::ofstream(from / name / "inside.txt") << name;
        std::ofstream(from / (std::string(name) + ".txt")) << name;
    }
    fs::create_directories(to);
    std::ofstream(to / "c") << "the user's";
    fillFromSharedData(from, to);
    for (const char* name : {"a", "b", "d", "e"})
        EXPECT_TRUE(fs::exists(to / name / "inside.txt")) << name;
    for (const char* name : {"a", "b", "c", "d", "e"})
        EXPECT_TRUE(fs::exists(to / (std::string(name) + ".txt"))) << name;
    EXPECT_TRUE(fs::is_regular_file(to / "c"));
}

// A disk that is full at the first start and has room at the second.
TEST(ProgramFolderFilling, WhatAFullDiskKeptBackComesAtTheNextStart) {
    const testing::TemporaryFolder temporary;
    const fs::path shared = temporary.path() / "shared", user = temporary.path() / "user";
    fs::create_directories(shared / "languages" / "Deutsch");
    std::ofstream(shared / "languages" / "Deutsch" / "lang.trl") << std::string(3000, 'd');
    std::ofstream(shared / "genmidi.txt") << std::string(100, 'g');
    const ProgramFolderSources sources = {std::nullopt, temporary.path() / "bin", user, shared};
    for (const rlim_t room : {0u, 50u, 1000u}) {
        fs::remove_all(user);
        {
            const testing::FileSizeLimit full(room);
            programFolder(sources);
        }
        EXPECT_FALSE(fs::exists(user / "languages" / "Deutsch" / "lang.trl")) << room;
        EXPECT_EQ(fs::exists(user / "genmidi.txt"), room >= 100) << room;
        if (room >= 100) continue; // what came is used from now on
        programFolder(sources);
        EXPECT_EQ(fs::file_size(user / "languages" / "Deutsch" / "lang.trl"), 3000u) << room;
        EXPECT_EQ(fs::file_size(user / "genmidi.txt"), 100u) << room;
    }
}

} // namespace
} // namespace tabrova
