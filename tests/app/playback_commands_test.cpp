// Playing in the real program: the commands, what stands still meanwhile, and that nothing hangs afterwards.
#include "driver_session.h"

namespace tabrova::testing {
namespace {

std::vector<std::string> allNotesOff() {
    std::vector<std::string> messages;
    for (char channel = '0'; channel <= '8'; ++channel)
        for (const char* controller : {" 78 00", " 7b 00"})
            messages.push_back(std::string("b") + channel + controller);
    return messages;
}

std::vector<std::string> takeMidi(DriverSession& drive) {
    std::vector<std::string> messages;
    for (const QJsonValue& message : drive.ok("midi")["midi"].toArray())
        messages.push_back(DriverSession::text(message));
    return messages;
}

QJsonObject timer(DriverSession& drive, const char* name) {
    return drive.ok("timers")["timers"].toObject()[name].toObject();
}

bool fire(DriverSession& drive) { return drive.ok("fire Hitime1")["fired"].toBool(); }

class Playing : public ::testing::Test {
  protected:
    Playing() {
        drive.ok("freeze");
        drive.ok("press picDocument 7");
        drive.ok("press picDocument Right");
        drive.ok("press picDocument 5");
        takeMidi(drive);
    }
    bool enabled(const char* name) { return drive.get(QString(name) + " enabled").toBool(); }

    const std::vector<std::string> column(const char* note) const {
        return {"b0 78 00", "b0 7b 00", "b0 00 80", "c0 18 00", "b1 00 80", "c1 18 00", note};
    }
    DriverSession drive;
};

TEST_F(Playing, StartsAtTheBeginningOneIntervalAfterTheCommand) {
    EXPECT_EQ(timer(drive, "Hitime1")["interval"].toInt(), 0);
    drive.ok("do mnuSoundPlayAll");
    EXPECT_TRUE(timer(drive, "Hitime1")["enabled"].toBool());
    EXPECT_EQ(timer(drive, "Hitime1")["interval"].toInt(), 125);
    EXPECT_TRUE(takeMidi(drive).empty());
    EXPECT_TRUE(fire(drive));
    EXPECT_EQ(takeMidi(drive), column("90 47 7f"));
    EXPECT_TRUE(fire(drive));
    EXPECT_EQ(takeMidi(drive), column("90 45 7f"));
    EXPECT_EQ(drive.doc()["PlaybackPosition"].toInt(), 2);
}

TEST_F(Playing, StartsAtTheCursor) {
    drive.ok("do mnuPlayFromHere");
    EXPECT_EQ(drive.doc()["PlaybackPosition"].toInt(), 1);
    fire(drive);
    EXPECT_EQ(takeMidi(drive), column("90 45 7f"));
}

TEST_F(Playing, HoldsTheEditorClosedAndShowsNoMoves) {
    const QJsonObject before = drive.page();
    drive.ok("do mnuSoundPlayAll");
    for (const char* name :
         {"picDocument", "picFretboard", "VScroll1", "StatusBar1", "mnuFile", "mnuEdit", "mnuView",
          "mnuStaff", "mnuNote", "mnuTrack", "mnuTools", "mnuHelp", "mnuSoundPlayAll", "mnuPlayFromHere",
          "Toolbar1(playall)", "Toolbar1(playfromhere)", "Toolbar1(new)"})
        EXPECT_FALSE(enabled(name)) << name;
    for (const char* name : {"mnuSound", "mnuPlaybackStop", "Toolbar1(stop)"})
        EXPECT_TRUE(enabled(name)) << name;
    EXPECT_EQ(drive.error("key 55"), "disabled");
    EXPECT_EQ(drive.error("do mnuFileNew"), "disabled");
    fire(drive);
    EXPECT_EQ(drive.page(), before);
    drive.ok("resize frmMain 900 600");
    EXPECT_FALSE(enabled("Toolbar1(new)"));
    drive.ok("do mnuPlaybackStop");
    EXPECT_TRUE(enabled("picDocument"));
    EXPECT_TRUE(enabled("mnuPlayFromHere"));
}

TEST_F(Playing, StopsWithAllNotesOff) {
    drive.ok("do mnuSoundPlayAll");
    fire(drive);
    takeMidi(drive);
    drive.ok("do mnuPlaybackStop");
    EXPECT_EQ(takeMidi(drive), allNotesOff());
    EXPECT_FALSE(timer(drive, "Hitime1")["enabled"].toBool());
    EXPECT_EQ(drive.doc()["PlaybackPosition"].toInt(), 0);
    EXPECT_FALSE(fire(drive));
    // A tick that was posted before the stop comes late: nothing sounds.
    drive.ok("press Hitime1 Ctrl+J");
    EXPECT_TRUE(takeMidi(drive).empty());
    drive.ok("do mnuPlaybackStop");
    EXPECT_EQ(takeMidi(drive), allNotesOff());
}

TEST_F(Playing, EndsAfterTheLastColumn) {
    drive.ok("do mnuSoundPlayAll");
    for (int column = 0; column < 32; ++column)
        EXPECT_TRUE(fire(drive));
    takeMidi(drive);
    EXPECT_TRUE(fire(drive));
    EXPECT_EQ(takeMidi(drive), allNotesOff());
    EXPECT_FALSE(timer(drive, "Hitime1")["enabled"].toBool());
    EXPECT_TRUE(enabled("picDocument"));
    EXPECT_EQ(drive.doc()["PlaybackPosition"].toInt(), 0);
}

TEST_F(Playing, StopsWhenTheWindowCloses) {
    drive.ok("do mnuSoundPlayAll");
    fire(drive);
    takeMidi(drive);
    drive.ok("answer cancel");
    EXPECT_EQ(drive.error("quit"), "cancelled");
    EXPECT_TRUE(timer(drive, "Hitime1")["enabled"].toBool()); // the window stays, and plays on
    EXPECT_TRUE(takeMidi(drive).empty());
    drive.ok("answer no");
    drive.ok("quit");
}

TEST_F(Playing, RunsByItself) {
    drive.ok("thaw");
    drive.ok("do mnuSoundPlayAll");
    for (int tries = 0; tries < 100 && drive.doc()["PlaybackPosition"].toInt() < 3; ++tries)
        drive.ok("wait 50");
    EXPECT_GE(drive.doc()["PlaybackPosition"].toInt(), 3);
    drive.ok("do mnuPlaybackStop");
    takeMidi(drive);
    drive.ok("wait 300");
    EXPECT_TRUE(takeMidi(drive).empty());
}

TEST_F(Playing, PlaysByToolbarAndKeys) {
    drive.ok("click Toolbar1(playfromhere)");
    EXPECT_EQ(drive.doc()["PlaybackPosition"].toInt(), 1);
    drive.ok("click Toolbar1(stop)");
    EXPECT_FALSE(timer(drive, "Hitime1")["enabled"].toBool());
    drive.ok("click Toolbar1(playall)");
    EXPECT_TRUE(timer(drive, "Hitime1")["enabled"].toBool());
    drive.ok("press frmMain F9");
    EXPECT_FALSE(timer(drive, "Hitime1")["enabled"].toBool());
    drive.ok("press frmMain F7");
    EXPECT_TRUE(timer(drive, "Hitime1")["enabled"].toBool());
}

// A send that fails under a tick is fatal like any other.
TEST_F(Playing, EndsTheProgramIfTheDeviceFails) {
    drive.ok("do mnuSoundPlayAll");
    drive.ok("device fail-send on");
    const QJsonObject answer = drive.run("fire Hitime1");
    EXPECT_TRUE(answer["ended"].toBool());
    EXPECT_EQ(DriverSession::text(answer["boxes"].toArray()[0].toObject()["title"]),
              "Error: Sound Card Unavailable");
}

TEST(PlayingADocument, WithATempoThatGivesNoIntervalDoesNothing) {
    DriverSession drive;
    QTemporaryDir folder;
    drive.ok("answer file " + folder.filePath("slow.tr3"));
    drive.ok("do mnuSaveAs");
    QFile file(folder.filePath("slow.tr3"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray text = file.readAll();
    file.close();
    for (const char* tempo : {" 0 ", " 1 "}) {
        QByteArray changed = text;
        changed.replace(" 480 ", tempo);
        ASSERT_NE(changed, text);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(changed);
        file.close();
        DriverSession opened({file.fileName()});
        EXPECT_EQ(opened.doc()["Tempo"].toInt(), QByteArray(tempo).trimmed().toInt());
        opened.ok("do mnuSoundPlayAll");
        EXPECT_FALSE(timer(opened, "Hitime1")["enabled"].toBool());
        EXPECT_TRUE(opened.get("picDocument enabled").toBool());
    }
}

} // namespace
} // namespace tabrova::testing
