// The system information tool is found in the path.
#include "platform/system_information.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

// The path is a folder of the test's own.
class SystemTools : public ::testing::Test {
  protected:
    SystemTools() { qputenv("PATH", folder.path().toLocal8Bit()); }
    ~SystemTools() override { qputenv("PATH", path); }

    // A tool that writes its own name into the folder.
    void install(const QString& tool, const QByteArray& interpreter = "/bin/sh") {
        QFile file(folder.filePath(tool));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!" + interpreter + "\necho started >'" + started(tool).toLocal8Bit() + "'\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString started(const QString& tool) const { return folder.filePath(tool + ".started"); }
    bool starts(const QString& tool) const {
        return QTest::qWaitFor([&] { return QFile(started(tool)).size() > 0; }, 20000);
    }

    QTemporaryDir folder;
    const QByteArray path = qgetenv("PATH");
};

TEST_F(SystemTools, StartsATool) {
    for (const char* tool : {"hardinfo2", "hardinfo", "kinfocenter", "msinfo32"}) {
        install(tool);
        EXPECT_TRUE(DesktopSystemInformation().start());
        EXPECT_TRUE(starts(tool)) << tool;
        QFile::remove(folder.filePath(tool));
    }
}

TEST_F(SystemTools, StartsTheFirstToolOfSeveral) {
    install("kinfocenter");
    install("hardinfo2");
    EXPECT_TRUE(DesktopSystemInformation().start());
    EXPECT_TRUE(starts("hardinfo2"));
    EXPECT_FALSE(QFile::exists(started("kinfocenter")));
}

TEST_F(SystemTools, TellsThatThereIsNoTool) { EXPECT_FALSE(DesktopSystemInformation().start()); }

TEST_F(SystemTools, TellsThatAToolDoesNotStart) {
    install("hardinfo", "/nowhere/at-all");
    EXPECT_FALSE(DesktopSystemInformation().start());
}

TEST(RecordingSystemInformation, HasNoToolUnlessToldOtherwiseAndCountsHowOftenItWasAsked) {
    RecordingSystemInformation tool;
    EXPECT_FALSE(tool.start());
    tool.starts = true;
    EXPECT_TRUE(tool.start());
    EXPECT_EQ(tool.take(), 2);
    EXPECT_EQ(tool.take(), 0);
}

} // namespace
} // namespace tabrova
