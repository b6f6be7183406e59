// Addresses go to the desktop's own programs, and its system information tool is found in the path.
#include "platform/address_opener.h"

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

// The path is a folder of the test's own.
class SystemInformation : public ::testing::Test {
  protected:
    SystemInformation() { qputenv("PATH", folder.path().toLocal8Bit()); }
    ~SystemInformation() override { qputenv("PATH", path); }

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

TEST_F(SystemInformation, StartsATool) {
    for (const char* tool : {"hardinfo2", "hardinfo", "kinfocenter", "msinfo32"}) {
        install(tool);
        EXPECT_TRUE(startSystemInformation());
        EXPECT_TRUE(starts(tool)) << tool;
        QFile::remove(folder.filePath(tool));
    }
}

TEST_F(SystemInformation, StartsTheFirstToolOfSeveral) {
    install("kinfocenter");
    install("hardinfo2");
    EXPECT_TRUE(startSystemInformation());
    EXPECT_TRUE(starts("hardinfo2"));
    EXPECT_FALSE(QFile::exists(started("kinfocenter")));
}

TEST_F(SystemInformation, TellsThatThereIsNoTool) { EXPECT_FALSE(startSystemInformation()); }

TEST_F(SystemInformation, TellsThatAToolDoesNotStart) {
    install("hardinfo", "/nowhere/at-all");
    EXPECT_FALSE(startSystemInformation());
}

TEST(Addresses, GoToTheDesktop) {
    QTextBrowser desktop;
    QList<QUrl> opened;
    QObject::connect(&desktop, &QTextBrowser::anchorClicked, [&](const QUrl& url) { opened.append(url); });
    QDesktopServices::setUrlHandler("x-tabrova", &desktop, "anchorClicked");
    DesktopAddressOpener().open("x-tabrova:somebody@example.org");
    QDesktopServices::unsetUrlHandler("x-tabrova");
    EXPECT_EQ(opened, QList<QUrl>{QUrl("x-tabrova:somebody@example.org")});
}

TEST(Addresses, AreKeptByTheRecordingOpenerUntilTheyAreTaken) {
    RecordingAddressOpener addresses;
    addresses.open("https://example.org");
    addresses.open("mailto:somebody@example.org");
    EXPECT_EQ(addresses.take(), QStringList({"https://example.org", "mailto:somebody@example.org"}));
    EXPECT_TRUE(addresses.take().isEmpty());
}

} // namespace
} // namespace tabrova
