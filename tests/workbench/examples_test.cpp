// The documents that come with the program.
#include "workbench/examples.h"

#include "platform/paths.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

class Examples : public ::testing::Test {
  protected:
    std::filesystem::path folder() const { return home.path().toStdString(); }
    void add(const std::string& name) {
        std::filesystem::create_directories(folder() / "examples");
        std::ofstream(folder() / "examples" / name) << "0";
    }
    QStringList names() const {
        QStringList found;
        for (const ExampleDocument& example : exampleDocuments(folder()))
            found.append(example.name);
        return found;
    }

    QTemporaryDir home;
};

TEST_F(Examples, AFolderThatIsNotThereHoldsNone) { EXPECT_EQ(names(), QStringList()); }

TEST_F(Examples, AreNamedByTheirFiles) {
    for (const char* name : {"two-bar-blues.tr3", "iron--kettle.tr3", "Amazing.TR3", "-.tr3", "notes.txt"})
        add(name);
    std::filesystem::create_directories(folder() / "examples" / "folder.tr3");
    add("line\nend.tr3");
    EXPECT_EQ(names(), QStringList({"-", "Amazing", "Iron Kettle", "Line end", "Two Bar Blues"}));
    EXPECT_EQ(exampleDocuments(folder()).last().file, textOf(folder() / "examples" / "two-bar-blues.tr3"));
}

TEST_F(Examples, AreThirtyAtTheMost) {
    for (int number = 100; number < 140; ++number)
        add("piece-" + std::to_string(number) + ".tr3");
    EXPECT_EQ(names().size(), 30);
    EXPECT_EQ(names().last(), "Piece 129");
}

} // namespace
} // namespace tabrova
