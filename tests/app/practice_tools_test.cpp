// Metronome, drum machine and percussion editor in the real program, beside the page.
#include "driver_session.h"

#include <QFile>

namespace tabrova::testing {
namespace {

class PracticeTools : public ::testing::Test {
  protected:
    QStringList sent() {
        QStringList messages;
        for (const QJsonValue& each : drive.ok("midi")["midi"].toArray())
            messages.append(each.toString());
        return messages;
    }
    bool fires(const QString& timer) { return drive.ok("fire " + timer)["fired"].toBool(); }
    QJsonObject timer(const QString& name) {
        return drive.ok("timers")["timers"].toObject()[name].toObject();
    }
    void addPercussionTrack() {
        drive.ok("answer yes");
        drive.ok("do mnuAddTrack");
        drive.ok("boxes");
    }
    std::string notes() {
        return QJsonDocument(drive.doc()["NoteGrid"].toArray()).toJson(QJsonDocument::Compact).toStdString();
    }

    QTemporaryDir folder;
    DriverSession drive;
};

TEST_F(PracticeTools, OpenFromTheirMenuBesideThePage) {
    drive.ok("do mnuToolsMetronome");
    drive.ok("do mnuToolsDrumMachine");
    EXPECT_EQ(drive.forms("visible"),
              (std::vector<std::string>{"frmDrumMachine", "frmMain", "frmMetronome"}));
    EXPECT_EQ(drive.get("frmMetronome title"), "Tabrova - Metronome");
    EXPECT_EQ(drive.get("frmDrumMachine title"), "Tabrova - Drum Machine");
    drive.ok("press picDocument 7");
    EXPECT_EQ(notes(), "[[0,0,\"7\"]]");
    drive.ok("press frmMetronome Escape");
    drive.ok("press frmDrumMachine Escape");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
    EXPECT_EQ(drive.error("get frmDrumMachine title"), "not loaded");
}

TEST_F(PracticeTools, TheMetronomeClicksBesideThePlayback) {
    drive.ok("freeze");
    drive.ok("do mnuToolsMetronome");
    drive.ok("set frmMetronome.lst_Metronome_speed \"=60 BPM\"");
    drive.ok("set frmMetronome.txt_BTp 1");
    drive.ok("click frmMetronome.Command1");
    EXPECT_EQ(timer("tmr_Metronome"), (QJsonObject{{"enabled", true}, {"interval", 1000}}));
    drive.ok("do mnuSoundPlayAll");
    sent();
    EXPECT_TRUE(fires("tmr_Metronome"));
    EXPECT_EQ(sent(), (QStringList{"9e 3c 00", "9e 3c 7f"}));
    EXPECT_TRUE(fires("Hitime1"));
    for (int beat = 0; beat < 4; ++beat)
        EXPECT_TRUE(fires("tmr_Metronome"));
    EXPECT_FALSE(fires("tmr_Metronome"));
    EXPECT_EQ(drive.get("frmMetronome.Command1 caption"), "Start");
    EXPECT_TRUE(timer("Hitime1")["enabled"].toBool());
}

TEST_F(PracticeTools, TheMetronomesClockTicksByItself) {
    drive.ok("do mnuToolsMetronome");
    drive.ok("set frmMetronome.lst_Metronome_speed \"=1920 BPM\"");
    drive.ok("set frmMetronome.txt_BTp 2");
    drive.ok("midi");
    drive.ok("click frmMetronome.Command1");
    QStringList clicks;
    for (int wait = 0; wait < 500 && drive.get("frmMetronome.Command1 caption") == "Stop"; ++wait)
        drive.ok("wait 20");
    for (const QString& message : sent())
        if (message == "9e 3c 7f") clicks.append(message);
    EXPECT_EQ(clicks.size(), 8);
}

TEST_F(PracticeTools, ASongOfTheDrumMachineGoesThroughItsFile) {
    const QString song = folder.filePath("song");
    drive.ok("freeze");
    drive.ok("do mnuToolsDrumMachine");
    drive.ok("click frmDrumMachine.cmdTrack0(0)");
    drive.ok("click frmDrumMachine.cmdtrack15(15)");
    EXPECT_EQ(drive.get("frmDrumMachine.cmdTrack0(0) color"), "#12378f");
    EXPECT_EQ(drive.get("frmDrumMachine.cmdTrack0(1) color"), "#ffffff");
    drive.ok("set frmDrumMachine.sldSpeed 240");
    drive.ok("answer file " + song);
    drive.ok("click frmDrumMachine.Command2");
    drive.ok("press frmDrumMachine Escape");
    QFile file(song);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_EQ(bytes.count("\r\n"), 25633);
    EXPECT_EQ(bytes.count("True"), 2);
    drive.ok("do mnuToolsDrumMachine");
    EXPECT_EQ(drive.get("frmDrumMachine.cmdTrack0(0) color"), "#ffffff");
    drive.ok("answer file " + song);
    drive.ok("click frmDrumMachine.Command3");
    EXPECT_EQ(drive.get("frmDrumMachine.cmdTrack0(0) color"), "#12378f");
    EXPECT_EQ(drive.get("frmDrumMachine.sldSpeed"), 240);
    drive.ok("midi");
    drive.ok("click frmDrumMachine.Command1");
    EXPECT_EQ(timer("tmrplayback"), (QJsonObject{{"enabled", true}, {"interval", 250}}));
    EXPECT_EQ(timer("tmrplaysong")["enabled"], false);
    for (int step = 0; step < 17; ++step)
        EXPECT_TRUE(fires("tmrplayback"));
    EXPECT_EQ(sent(), (QStringList{"99 23 64", "99 32 64", "99 23 64"}));
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
}

TEST_F(PracticeTools, ADoubleClickOnAPercussionTracksPageOpensItsEditor) {
    drive.ok("dblclick picDocument 200 60");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
    addPercussionTrack();
    drive.ok("dblclick picDocument 200 60");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmMain", "frmPercussion"}));
}

TEST_F(PracticeTools, ThePercussionEditorsItemIsThatOfPercussionTracks) {
    const auto usable = [this] { return drive.get("mnuPercussionEditor enabled").toBool(); };
    EXPECT_FALSE(usable());
    addPercussionTrack();
    EXPECT_TRUE(usable());
    drive.ok("do mnuPreviousTrack");
    EXPECT_FALSE(usable());
    drive.ok("do mnuNextTrack");
    EXPECT_TRUE(usable());
    drive.ok("do mnuPercussionEditor");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmMain", "frmPercussion"}));
    drive.ok("press frmPercussion Escape");
    drive.ok("do mnuFileNew");
    EXPECT_FALSE(usable());
}

TEST_F(PracticeTools, DrumsAreWrittenUnderTheCursorAndSound) {
    addPercussionTrack();
    drive.ok("dblclick picDocument 60 60");
    const QJsonObject before = drive.doc();
    const int column = before["ColumnInStaff"].toInt();
    const int row = 6 + before["CurrentString"].toInt();
    const auto cell = [&](int at, const char* text) {
        return "[" + std::to_string(column + at) + "," + std::to_string(row) + ",\"" + text + "\"]";
    };
    drive.ok("midi");
    drive.ok("set frmPercussion.List1 0");
    EXPECT_EQ(sent(), QStringList{"99 23 7f"});
    drive.ok("set frmPercussion.List1 \"=34. Cabasa\"");
    EXPECT_EQ(sent().last(), "99 44 7f");
    EXPECT_EQ(notes(), "[" + cell(0, "68") + "]");
    drive.ok("set frmPercussion.chkAuto 1");
    drive.ok("set frmPercussion.List1 45");
    EXPECT_EQ(notes(), "[" + cell(0, "80") + "]");
    EXPECT_EQ(drive.doc()["ColumnInStaff"], column + 1);
    drive.ok("set frmPercussion.List1 1");
    EXPECT_EQ(notes(), "[" + cell(0, "80") + "," + cell(1, "36") + "]");
    drive.ok("down frmPercussion.Image3");
    drive.ok("up frmPercussion.Image3");
    drive.ok("click frmPercussion.Image3");
    EXPECT_EQ(drive.doc()["ColumnInStaff"], column);
    drive.ok("click frmPercussion.Image6");
    EXPECT_EQ(notes(), "[" + cell(1, "36") + "]");
    drive.ok("press frmPercussion Escape");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
}

TEST_F(PracticeTools, PercussionKeysActOnBothKindsOfTrack) {
    addPercussionTrack();
    drive.ok("dblclick picDocument 60 60");
    for (const int track : {2, 1}) {
        drive.ok(QString("set TrackNames %1").arg(track - 1));
        ASSERT_EQ(drive.doc()["CurrentTrack"], track);
        const QJsonObject before = drive.doc();
        drive.ok("click frmPercussion.Image1");
        drive.ok("click frmPercussion.Image2");
        EXPECT_EQ(drive.doc()["ColumnInStaff"], before["ColumnInStaff"].toInt() + 1);
        EXPECT_EQ(drive.doc()["CurrentString"], before["CurrentString"].toInt() + 1);
        drive.ok("set frmPercussion.List1 3");
        EXPECT_NE(notes().find("\"38\""), std::string::npos);
        drive.ok("click frmPercussion.Image6");
        EXPECT_EQ(notes(), "[]");
        drive.ok("click frmPercussion.Image3");
        drive.ok("click frmPercussion.Image4");
        EXPECT_EQ(drive.doc()["ColumnInStaff"], before["ColumnInStaff"]);
        EXPECT_EQ(drive.doc()["CurrentString"], before["CurrentString"]);
    }
}

} // namespace
} // namespace tabrova::testing
