// The options in the real program: what they change on the page, and what the settings keep.
#include "driver_session.h"

#include <QImage>

namespace tabrova::testing {
namespace {

class ProgramOptions : public ::testing::Test {
  protected:
    QImage shot(const char* surface) {
        const QString file = folder.filePath("shot.png");
        drive.ok(QString("shot %1 %2").arg(surface, file));
        return QImage(file);
    }
    QTemporaryDir folder;
    DriverSession drive;
};

TEST_F(ProgramOptions, AreLoadedAtTheStartAndShownByTheirCommand) {
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
    drive.ok("do mnuToolsOptions");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmMain", "frmOptions"}));
    drive.ok("press frmOptions Escape");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
    EXPECT_EQ(drive.forms("forms"),
              (std::vector<std::string>{"frmInstrumentSelector", "frmMain", "frmOptions"}));
}

TEST_F(ProgramOptions, ColorTheCursorOnPageAndStrip) {
    const std::pair<int, const char*> rows[] = {
        {0, "#ff0000"}, {1, "#0000ff"}, {3, "#008000"}, {4, "#ff8000"}, {5, "#000000"}};
    for (const auto& [row, color] : rows) {
        drive.ok(QString("set frmOptions.lstColors %1").arg(row));
        EXPECT_EQ(DriverSession::text(drive.page()["nCursorColor"]), color);
        const int x = drive.page()["NoteLine"].toArray()[0].toInt();
        const QString file = folder.filePath("window.png");
        drive.ok("shot frmMain " + file);
        const QJsonArray strip = drive.page()["picStandardNotation"].toObject()["geometry"].toArray();
        const QJsonArray client = drive.get("clientArea geometry").toArray();
        EXPECT_EQ(
            QImage(file).pixelColor(strip[0].toInt() + x, client[1].toInt() + strip[1].toInt() + 60).name(),
            color);
    }
}

TEST_F(ProgramOptions, MakeTheCursorStandOut) {
    drive.ok("click frmOptions.chkEyeBall");
    EXPECT_EQ(drive.page()["nCursorWidth"].toInt(), 2);
    drive.ok("click frmOptions.chkEyeBall");
    EXPECT_EQ(drive.page()["nCursorWidth"].toInt(), 1);
}

TEST_F(ProgramOptions, MakeTheTabOneColor) {
    EXPECT_EQ(shot("picDocument").pixelColor(4, 4), QColor(255, 254, 242));
    drive.ok("click frmOptions.chkTABOUT");
    EXPECT_EQ(shot("picDocument").pixelColor(4, 4), QColor(255, 255, 255));
    drive.ok("click frmOptions.chkTABOUT");
    EXPECT_EQ(shot("picDocument").pixelColor(4, 4), QColor(255, 254, 242));
}

TEST_F(ProgramOptions, ShowTheStatisticsAndTheirDebugForm) {
    EXPECT_FALSE(drive.get("lbldebug visible").toBool());
    drive.ok("click frmOptions.chkStats");
    EXPECT_TRUE(drive.get("lbldebug visible").toBool());
    EXPECT_EQ(DriverSession::text(drive.get("lbldebug")), "Track 1 of 1, Staff 1 of 1");
    for (int click = 1; click <= 199; ++click)
        drive.ok("set frmOptions.lst_Devices 0");
    EXPECT_FALSE(drive.get("frmOptions.Check2 visible").toBool());
    drive.ok("set frmOptions.lst_Devices 0");
    EXPECT_TRUE(drive.get("frmOptions.Check2 visible").toBool());
    drive.ok("set frmOptions.Check2 1");
    EXPECT_TRUE(drive.get("lbldebug").toString().startsWith("horizontal spacing: "));
    drive.ok("set frmOptions.Check2 0");
    EXPECT_EQ(DriverSession::text(drive.get("lbldebug")), "Track 1 of 1, Staff 1 of 1");
}

TEST_F(ProgramOptions, SetWhatNoteEntryPlays) {
    drive.ok("set frmOptions.PlayNone 1");
    EXPECT_EQ(drive.doc()["RealtimeMode"].toInt(), 1);
    drive.ok("midi");
    drive.ok("press picDocument 7");
    EXPECT_EQ(drive.ok("midi")["midi"].toArray().size(), 18); // all notes off alone
    drive.ok("set frmOptions.PlayCurrentTrack 1");
    EXPECT_EQ(drive.doc()["RealtimeMode"].toInt(), 2);
}

TEST_F(ProgramOptions, EndTheProgramIfTheChosenDeviceDoesNotOpen) {
    drive.ok("device fail-open on");
    EXPECT_TRUE(drive.run("set frmOptions.lst_Devices 1")["ended"].toBool());
}

TEST(StoredOptions, KeepDeviceAndSplashInTheSettings) {
    QTemporaryDir folder;
    const QStringList arguments = {"--settings", folder.filePath("settings.ini")};
    {
        DriverSession drive(arguments);
        drive.ok("set frmOptions.lst_Devices 1");
        drive.ok("set frmOptions.chkSplash 0");
        drive.ok("answer no");
        drive.ok("quit");
    }
    DriverSession drive(arguments + QStringList{"--splash"});
    EXPECT_EQ(drive.get("frmOptions.lst_Devices row").toInt(), 1);
    EXPECT_FALSE(drive.get("frmOptions.chkSplash checked").toBool());
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
}

TEST(StoredOptions, ThatNameADeviceThatIsGoneDoNotLockThePlayerOut) {
    QTemporaryDir folder;
    QFile ini(folder.filePath("settings.ini"));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Options]\nDeviceIndex=7\n");
    ini.close();
    DriverSession drive({"--settings", ini.fileName()});
    EXPECT_EQ(drive.get("frmOptions.lst_Devices row").toInt(), -1);
    EXPECT_TRUE(drive.get("frmOptions.lblDeviceGone visible").toBool());
    drive.ok("press picDocument 7");
    EXPECT_TRUE(drive.ok("midi")["midi"].toArray().isEmpty());
    drive.ok("set frmOptions.lst_Devices 0");
    EXPECT_FALSE(drive.get("frmOptions.lblDeviceGone visible").toBool());
    EXPECT_EQ(drive.ok("midi")["midi"].toArray().size(), 2);
}

} // namespace
} // namespace tabrova::testing
