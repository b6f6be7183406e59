// What a folder holds: files or folders, by what they are and not by what they are called.
#include "core/files/folder_entries.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

class FolderEntries : public ::testing::Test {
  protected:
    void file(const std::string& name) { std::ofstream(folder.path() / name) << "x"; }
    std::vector<std::string> listed(EntryKind kind, std::string_view ending = {}) {
        std::vector<std::string> names;
        for (const fs::path& name : listEntries(folder.path(), kind, ending))
            names.push_back(name.string());
        return names;
    }
    using Names = std::vector<std::string>;

    testing::TemporaryFolder folder;
};

TEST_F(FolderEntries, AreTheFilesOrTheFolders) {
    file("b");
    file("a.txt");
    fs::create_directory(folder.path() / "d");
    fs::create_directory(folder.path() / "c.txt");
    file("d/inside");
    EXPECT_EQ(listed(EntryKind::Files), (Names{"a.txt", "b"}));
    EXPECT_EQ(listed(EntryKind::Folders), (Names{"c.txt", "d"}));
}

TEST_F(FolderEntries, AreOnlyThoseThatEndSo) {
    for (const char* name : {"one.chd", "TWO.CHD", "three.chd.bak", ".chd", "chd", "fourchd", "d.Chd"})
        file(name);
    fs::create_directory(folder.path() / "folder.chd");
    EXPECT_EQ(listed(EntryKind::Files, ".chd"), (Names{".chd", "TWO.CHD", "d.Chd", "one.chd"}));
    EXPECT_EQ(listed(EntryKind::Files, ".CHD"), (Names{".chd", "TWO.CHD", "d.Chd", "one.chd"}));
    EXPECT_EQ(listed(EntryKind::Folders, ".chd"), Names{"folder.chd"});
    EXPECT_EQ(listed(EntryKind::Files, "a longer one than any name.chd"), Names{});
}

TEST_F(FolderEntries, EndWithTheSameLettersAndNoOthers) {
    file("x[");
    file("x{");
    file("x@");
    file("x`");
    EXPECT_EQ(listed(EntryKind::Files, "["), Names{"x["});
    EXPECT_EQ(listed(EntryKind::Files, "`"), Names{"x`"});
    file("yA");
    file("yz");
    EXPECT_EQ(listed(EntryKind::Files, "a"), Names{"yA"});
    EXPECT_EQ(listed(EntryKind::Files, "Z"), Names{"yz"});
}

TEST_F(FolderEntries, AreBytes) {
    const Names names = {"caf\xC3\xA9", "caf\xE9", "\xFF\xFE"};
    for (const std::string& name : names)
        file(name);
    EXPECT_EQ(listed(EntryKind::Files), names);
    EXPECT_EQ(listed(EntryKind::Files, "\xE9"), Names{"caf\xE9"});
}

TEST_F(FolderEntries, AreNoPipesDevicesAndDeadLinks) {
    ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", folder.path() / "device");
    fs::create_symlink("pipe", folder.path() / "link to a pipe");
    fs::create_symlink("nowhere", folder.path() / "dead");
    fs::create_symlink("round", folder.path() / "round");
    EXPECT_EQ(listed(EntryKind::Files), Names{});
    EXPECT_EQ(listed(EntryKind::Folders), Names{});
}

TEST_F(FolderEntries, CountALinkAsWhatItLeadsTo) {
    testing::TemporaryFolder other;
    std::ofstream(other.path() / "file") << "x";
    fs::create_symlink(other.path() / "file", folder.path() / "to a file");
    fs::create_symlink(other.path(), folder.path() / "to a folder");
    EXPECT_EQ(listed(EntryKind::Files), Names{"to a file"});
    EXPECT_EQ(listed(EntryKind::Folders), Names{"to a folder"});
    fs::create_symlink(folder.path(), other.path() / "link");
    EXPECT_EQ(listEntries(other.path() / "link", EntryKind::Files), std::vector<fs::path>{"to a file"});
}

TEST_F(FolderEntries, AreNoneWhereThereIsNoFolder) {
    file("plain");
    ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    for (const char* name : {"missing", "plain", "pipe", "missing/below"})
        EXPECT_TRUE(listEntries(folder.path() / name, EntryKind::Files).empty()) << name;
    EXPECT_TRUE(listEntries({}, EntryKind::Files).empty());
    EXPECT_TRUE(listEntries(folder.path() / std::string(5000, 'x'), EntryKind::Files).empty());
}

TEST_F(FolderEntries, AreAllOfALargeFolder) {
    for (int number = 0; number < 10000; ++number)
        file(std::to_string(number));
    const auto start = std::chrono::steady_clock::now();
    const Names names = listed(EntryKind::Files);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(names.size(), 10000U);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
}

} // namespace
} // namespace tabrova
