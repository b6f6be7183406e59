// One entry that cannot be copied is passed over alone: what stands beside it still comes, in whatever order
// the folder is listed.
#include "core/program_folder.h"
#include "tests/core/temporary_folder.h"

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

} // namespace
} // namespace tabrova
