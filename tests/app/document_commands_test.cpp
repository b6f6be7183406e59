// New, open, save and save as through their boxes and choosers.
#include "tests/app/driver_session.h"

#include <QFile>

namespace tabrova::testing {
namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(DocumentCommands, SaveAsksForANameOnlyOnce) {
    QTemporaryDir folder;
    const QString path = folder.filePath("song.tr3");
    DriverSession drive;
    drive.ok("answer file " + path);
    drive.ok("do mnuFileSave");
    EXPECT_TRUE(drive.doc()["HasFileName"].toBool());
    EXPECT_EQ(contentOf(path).count("\r\n"), 436);
    drive.ok("key 53");
    drive.ok("do mnuFileSave");
    EXPECT_EQ(drive.ok("choosers")["choosers"].toArray().size(), 1);
    EXPECT_TRUE(contentOf(path).contains("\r\n5\r\n"));
}

TEST(DocumentCommands, CancellingTheSaveDialogSavesNothing) {
    DriverSession drive;
    drive.ok("answer file");
    drive.ok("do mnuFileSave");
    EXPECT_FALSE(drive.doc()["HasFileName"].toBool());
}

TEST(DocumentCommands, SaveAfterOpenShowsTheDialogWithTheOpenedName) {
    QTemporaryDir folder;
    const QString path = folder.filePath("copy.tr3");
    ASSERT_TRUE(QFile::copy(TABROVA_SOURCE_DIR "/examples/iron-kettle.tr3", path));
    DriverSession drive;
    drive.ok("answer no");
    drive.ok("answer file " + path);
    drive.ok("do mnuFileOpen");
    EXPECT_FALSE(drive.doc()["HasFileName"].toBool());
    drive.ok("choosers");
    drive.ok("answer file " + path);
    drive.ok("do mnuFileSave");
    const QJsonArray asked = drive.ok("choosers")["choosers"].toArray();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].toObject()["name"].toString(), path);
    drive.ok("do mnuFileSave");
    EXPECT_TRUE(drive.ok("choosers")["choosers"].toArray().isEmpty());
    EXPECT_EQ(contentOf(path), contentOf(TABROVA_SOURCE_DIR "/examples/iron-kettle.tr3"));
}

TEST(DocumentCommands, SaveAsAlwaysAsks) {
    QTemporaryDir folder;
    DriverSession drive;
    drive.ok("answer file " + folder.filePath("one.tr3"));
    drive.ok("do mnuFileSave");
    drive.ok("answer file " + folder.filePath("two.tr3"));
    drive.ok("do mnuSaveAs");
    EXPECT_EQ(contentOf(folder.filePath("one.tr3")), contentOf(folder.filePath("two.tr3")));
    drive.ok("answer file");
    drive.ok("do mnuSaveAs");
    EXPECT_FALSE(drive.doc()["HasFileName"].toBool());
}

TEST(DocumentCommands, OpenYesSavesAndGoesOnWhateverThatDid) {
    DriverSession drive;
    drive.ok("key 55");
    drive.ok("answer yes");
    drive.ok("answer file");
    drive.ok("answer file " TABROVA_SOURCE_DIR "/examples/iron-kettle.tr3");
    drive.ok("do mnuFileOpen");
    EXPECT_EQ(DriverSession::text(drive.doc()["Title"]), "Iron Kettle");
}

TEST(DocumentCommands, OpenCancelKeepsTheDocument) {
    DriverSession drive;
    drive.ok("key 55");
    drive.ok("answer cancel");
    drive.ok("do mnuFileOpen");
    EXPECT_TRUE(drive.ok("choosers")["choosers"].toArray().isEmpty());
    drive.ok("answer no");
    drive.ok("answer file");
    drive.ok("do mnuFileOpen");
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
}

TEST(DocumentCommands, OpeningSetsStatusTitleAndStatistics) {
    DriverSession drive;
    drive.ok("answer no");
    drive.ok("answer file " TABROVA_SOURCE_DIR "/examples/twelve-bar-blues.tr3");
    drive.ok("do mnuFileOpen");
    EXPECT_EQ(drive.get("StatusBar1(1)").toString().toStdString(),
              "Rhythm Guitar selected (Click here to change)");
    EXPECT_EQ(drive.get("lbldebug").toString().toStdString(), "Track 1 of 3, Staff 1 of 7");
    EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 1);
    EXPECT_EQ(drive.doc()["GuitarTrackFlags"].toArray(), (QJsonArray{true, true, false}));
}

TEST(DocumentCommands, AFailedReadChangesNoTitleAndNoStatus) {
    QTemporaryDir folder;
    QFile bad(folder.filePath("bad.tr3"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("Gone\r\nWho\r\n1\r\n 300 \r\n");
    bad.close();
    DriverSession drive({TABROVA_SOURCE_DIR "/examples/iron-kettle.tr3"});
    drive.ok("answer no");
    drive.ok("answer file " + bad.fileName());
    drive.ok("do mnuFileOpen");
    EXPECT_EQ(DriverSession::text(drive.doc()["Title"]), "Gone");
    EXPECT_EQ(drive.doc()["Tempo"].toInt(), 300);
    EXPECT_EQ(drive.get("frmMain title").toString().toStdString(),
              "Tabrova - Iron Kettle by The Tabrova developers");
    EXPECT_EQ(drive.ok("boxes")["boxes"].toArray().size(), 1);
}

TEST(DocumentCommands, NewKeepsTheDocumentOnCancelOnly) {
    DriverSession drive;
    drive.ok("key 55");
    drive.ok("answer cancel");
    drive.ok("do mnuFileNew");
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
    drive.ok("answer no");
    drive.ok("do mnuFileNew");
    EXPECT_EQ(note(drive.doc(), 0, 0), "");
}

TEST(DocumentCommands, HostileCountsLeaveAUsableProgram) {
    QTemporaryDir folder;
    for (const char* counts :
         {" -4 \r\n 1 \r\n 1 \r\n 1 ", " 0 \r\n 1 \r\n 1 \r\n 1 ", " 1 \r\n 1 \r\n 1 \r\n-7 ",
          " 32767 \r\n 1 \r\n 1 \r\n 32767 ", " 40000 \r\n 1 \r\n 1 \r\n 1 "}) {
        QFile file(folder.filePath("hostile.tr3"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("T\r\nA\r\n1\r\n 480 \r\n\r\nFalse\r\n") + counts +
                   "\r\nTrack\r\n127\r\nTrue\r\n24\r\n");
        file.close();
        DriverSession drive({file.fileName()});
        for (const char* act :
             {"key 55", "key 13", "key 39", "key 72", "key 40", "do mnuViewRefresh", "key 32 1"})
            drive.ok(act);
        drive.ok("resize frmMain 1100 800");
        drive.ok("answer file " + folder.filePath("out.tr3"));
        drive.ok("do mnuFileSave");
        drive.ok("doc");
    }
}

} // namespace
} // namespace tabrova::testing
