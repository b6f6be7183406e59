// A list that shows what a folder holds and follows it.
#include "platform/paths.h"
#include "tests/forms/folder_lists.h"

#include <QApplication>
#include <QElapsedTimer>

namespace tabrova {
namespace {

namespace fs = std::filesystem;

using FolderLists = testing::FolderListTest;

TEST_F(FolderLists, ShowTheFilesInOrderWithoutRegardToCase) {
    files({"b", "C", "a", "D.txt", "Ä", "ä", "B"});
    fs::create_directory(folder() / "e");
    EXPECT_EQ(list.objectName(), "lst");
    EXPECT_EQ(list.count(), 0);
    list.showFolder(folder());
    EXPECT_EQ(rows(), (QStringList{"a", "B", "b", "C", "D.txt", "Ä", "ä"}));
}

TEST_F(FolderLists, ShowTheFoldersOrOnlyWhatEndsSo) {
    files({"one.chd", "two.txt", "three.CHD"});
    fs::create_directory(folder() / "inner");
    list.showFolder(folder(), ".chd");
    EXPECT_EQ(rows(), (QStringList{"one.chd", "three.CHD"}));
    FolderList folders("lst", EntryKind::Folders, nullptr);
    folders.showFolder(folder());
    ASSERT_EQ(folders.count(), 1);
    EXPECT_EQ(folders.item(0)->text(), "inner");
}

TEST_F(FolderLists, NameTheChosenEntryByItsBytes) {
    fs::create_directory(folder());
    file("caf\xE9");
    file("caf\xC3\xA9");
    list.showFolder(folder());
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.chosenName(), fs::path());
    for (const char* name : {"caf\xE9", "caf\xC3\xA9"}) {
        list.chooseName(name);
        EXPECT_EQ(list.chosenName(), fs::path(name));
        EXPECT_EQ(list.currentItem()->text(), textOf(name));
    }
    list.chooseName("nobody");
    EXPECT_EQ(list.chosenName(), fs::path());
    EXPECT_EQ(list.chosenRow(), -1);
    for (const char* name : {"caf", "zebra", ""}) {
        list.chooseName(name);
        EXPECT_EQ(list.chosenRow(), -1);
    }
    file("A");
    file("a");
    list.readAgain();
    for (const char* name : {"A", "a"}) {
        list.chooseName(name);
        EXPECT_EQ(list.chosenName(), fs::path(name));
    }
}

TEST_F(FolderLists, TakeTheUsersClicksAsEveryListDoes) {
    files({"a", "b"});
    list.showFolder(folder());
    present();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list.chosenName(), "b");
    FolderList ending("lst", EntryKind::Files, nullptr, ListBox::KeyClick::AtEnter);
    ending.showFolder(folder());
    ending.chooseName("a");
    int chosen = 0;
    ending.Click = [&chosen] { ++chosen; };
    QTest::keyClick(&ending, Qt::Key_Down);
    EXPECT_EQ(chosen, 0);
    QTest::keyClick(&ending, Qt::Key_Return);
    EXPECT_EQ(chosen, 1);
}

TEST_F(FolderLists, FollowWhatIsMadeRenamedAndRemoved) {
    files({"a", "b"});
    list.showFolder(folder());
    present();
    file("C");
    EXPECT_TRUE(shows({"a", "b", "C"}));
    fs::rename(folder() / "a", folder() / "z");
    EXPECT_TRUE(shows({"b", "C", "z"}));
    fs::remove(folder() / "b");
    EXPECT_TRUE(shows({"C", "z"}));
    fs::remove(folder() / "C");
    fs::create_directory(folder() / "C");
    EXPECT_TRUE(shows({"z"}));
}

TEST_F(FolderLists, FollowAlsoWhenTheyAreNotShown) {
    files({"a"});
    list.showFolder(folder());
    file("b");
    EXPECT_TRUE(shows({"a", "b"}));
}

TEST_F(FolderLists, FollowAFolderThatComesLater) {
    list.showFolder(home.path() / "folder" / "inner" / "inmost");
    EXPECT_EQ(list.count(), 0);
    fs::create_directories(folder() / "inner" / "inmost");
    std::ofstream(folder() / "inner" / "inmost" / "a") << "x";
    EXPECT_TRUE(shows({"a"}));
    std::ofstream(folder() / "inner" / "inmost" / "b") << "x";
    EXPECT_TRUE(shows({"a", "b"}));
}

TEST_F(FolderLists, FollowAFolderThatComesStepByStep) {
    list.showFolder(home.path() / "folder" / "inner");
    fs::create_directory(folder());
    QTest::qWait(250);
    fs::create_directory(folder() / "inner");
    QTest::qWait(250);
    std::ofstream(folder() / "inner" / "a") << "x";
    EXPECT_TRUE(shows({"a"}));
}

TEST_F(FolderLists, FollowAFolderThatIsRemovedAndComesAgain) {
    files({"a"});
    list.showFolder(folder());
    for (int time = 0; time < 3; ++time) {
        fs::remove_all(folder());
        EXPECT_TRUE(shows({}));
        files({"b"});
        EXPECT_TRUE(shows({"b"}));
        file("c");
        EXPECT_TRUE(shows({"b", "c"}));
    }
}

TEST_F(FolderLists, FollowAFolderThatTakesThePlaceOfAnother) {
    files({"a"});
    list.showFolder(folder());
    fs::create_directory(home.path() / "other");
    std::ofstream(home.path() / "other" / "b") << "x";
    fs::rename(folder(), home.path() / "old");
    fs::rename(home.path() / "other", folder());
    EXPECT_TRUE(shows({"b"}));
    file("c");
    EXPECT_TRUE(shows({"b", "c"}));
    std::ofstream(home.path() / "old" / "d") << "x";
    QTest::qWait(250);
    EXPECT_EQ(rows(), (QStringList{"b", "c"}));
}

TEST_F(FolderLists, FollowALinkToAFolder) {
    files({"a"});
    fs::create_directory_symlink(folder(), home.path() / "link");
    list.showFolder(home.path() / "link");
    EXPECT_EQ(rows(), QStringList{"a"});
    file("b");
    EXPECT_TRUE(shows({"a", "b"}));
    fs::create_directory(home.path() / "other");
    fs::create_directory_symlink(home.path() / "other", home.path() / "new");
    fs::rename(home.path() / "new", home.path() / "link");
    EXPECT_TRUE(shows({}));
    std::ofstream(home.path() / "other" / "c") << "x";
    EXPECT_TRUE(shows({"c"}));
}

TEST_F(FolderLists, FollowAFolderWhoseNameIsNoText) {
    const fs::path bytes = home.path() / "caf\xE9";
    fs::create_directory(bytes);
    std::ofstream(bytes / "a") << "x";
    list.showFolder(bytes);
    present();
    EXPECT_EQ(rows(), QStringList{"a"});
    std::ofstream(bytes / "b") << "x";
    EXPECT_TRUE(shows({"a", "b"}));
    std::ofstream(bytes / "c") << "x";
    EXPECT_TRUE(shows({"a", "b", "c"}));
}

TEST_F(FolderLists, FollowAnotherFolderWhenTheyAreTold) {
    files({"a", "b.txt"});
    fs::create_directory(home.path() / "other");
    std::ofstream(home.path() / "other" / "a") << "x";
    list.showFolder(folder());
    list.chooseName("a");
    list.showFolder(folder());
    EXPECT_EQ(list.chosenName(), "a");
    list.showFolder(home.path() / "other");
    EXPECT_EQ(rows(), QStringList{"a"});
    EXPECT_EQ(list.chosenRow(), -1); // it is not that file
    list.chooseName("a");
    file("c");
    std::ofstream(home.path() / "other" / "d") << "x";
    EXPECT_TRUE(shows({"a", "d"}));
    list.showFolder(folder(), ".txt");
    EXPECT_EQ(rows(), QStringList{"b.txt"});
    list.showFolder({});
    EXPECT_EQ(list.count(), 0);
}

TEST_F(FolderLists, TakeAPathAsItIsWritten) {
    files({"a"});
    const fs::path before = fs::current_path();
    fs::current_path(home.path());
    list.showFolder("folder/");
    fs::current_path(before);
    EXPECT_EQ(rows(), QStringList{"a"});
    fs::rename(folder(), home.path() / "old");
    EXPECT_TRUE(shows({}));
    files({"b"});
    EXPECT_TRUE(shows({"b"}));
    list.showFolder("/");
    EXPECT_EQ(list.findItems("b", Qt::MatchExactly).size(), 0);
}

TEST_F(FolderLists, ReadAgainWheneverTheyAreShown) {
    const fs::path target = home.path() / "target";
    fs::create_directory(folder());
    fs::create_symlink(target, folder() / "link"); // what it leads to is not watched
    list.showFolder(folder());
    present();
    EXPECT_EQ(list.count(), 0);
    std::ofstream(target.string()) << "x";
    list.hide();
    list.show();
    EXPECT_EQ(rows(), QStringList{"link"}); // at once
}

TEST_F(FolderLists, ReadAgainAtOnceWhenTheyAreTold) {
    files({"a"});
    list.showFolder(folder());
    file("b");
    list.readAgain();
    EXPECT_EQ(rows(), (QStringList{"a", "b"}));
    QTest::qWait(250);
    EXPECT_EQ(fillings, 2); // and not once more
}

TEST_F(FolderLists, ReadSeldomWhileALotHappens) {
    files({});
    list.showFolder(folder());
    QElapsedTimer time;
    time.start();
    for (int number = 0; number < 1000; ++number) {
        file(std::to_string(number));
        QApplication::processEvents();
    }
    const qint64 passed = time.elapsed();
    EXPECT_TRUE(QTest::qWaitFor([this] { return list.count() == 1000; }));
    EXPECT_LE(fillings, passed / 100 + 2);
}

TEST_F(FolderLists, DoNotPutOffTheReadingWhileAlwaysSomethingHappens) {
    files({});
    list.showFolder(folder());
    QElapsedTimer time;
    time.start();
    for (int number = 0; list.count() == 0 && time.elapsed() < 5000; ++number) {
        file(std::to_string(number));
        QTest::qWait(5);
    }
    EXPECT_GT(list.count(), 0);
}

TEST_F(FolderLists, ShowTenThousandEntriesWithoutAPause) {
    fs::create_directory(folder());
    for (int number = 0; number < 10000; ++number)
        file("Name " + std::to_string(number));
    EXPECT_TRUE(list.uniformItemSizes());
    present();
    QElapsedTimer time;
    time.start();
    list.showFolder(folder());
    list.chooseName("Name 9999");
    list.grab();
    EXPECT_EQ(list.count(), 10000);
    EXPECT_EQ(fillings, 1); // in one go
    file("Name 10000");
    list.readAgain();
    list.grab();
    EXPECT_EQ(list.chosenName(), "Name 9999");
    EXPECT_LT(time.elapsed(), 1000);
    std::printf("10,000 entries, twice: %lld ms\n", static_cast<long long>(time.elapsed()));
}

} // namespace
} // namespace tabrova
