// Start-up, welcome window, closing, the menus' states and the window-size rules, in the real program.
#include "tests/app/driver_session.h"

#include <QFile>

namespace tabrova::testing {
namespace {

QString fixture(const QString& folder, const QByteArray& bytes) {
    QFile file(folder + "/given.tr3");
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
}

QJsonArray geometry(const QJsonObject& page, const char* name) {
    return page[name].toObject()["geometry"].toArray();
}

TEST(Shell, StartsWithANewDocumentAndTheNotationOn) {
    DriverSession drive;
    EXPECT_EQ(drive.get("frmMain title").toString().toStdString(), "Tabrova - Untitled by Anonymous");
    EXPECT_TRUE(drive.get("mnuViewNotation checked").toBool());
    const QJsonObject doc = drive.doc();
    EXPECT_EQ(doc["Tempo"].toInt(), 480);
    EXPECT_EQ(doc["TuningTable"].toArray(), (QJsonArray{13, 13, 13, 13, 13, 13}));
    EXPECT_TRUE(drive.page()["picStandardNotation"].toObject()["visible"].toBool());
    EXPECT_FALSE(drive.page()["vLine1Visible"].toBool());
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
}

TEST(Shell, OpensTheSameFileWithAndWithoutQuotes) {
    const QString path = TABROVA_SOURCE_DIR "/examples/iron-kettle.tr3";
    DriverSession plain({path});
    DriverSession quoted({'"' + path + '"'});
    EXPECT_EQ(plain.doc(), quoted.doc());
    EXPECT_EQ(DriverSession::text(plain.doc()["Title"]), "Iron Kettle");
    EXPECT_EQ(plain.get("frmMain title").toString().toStdString(),
              "Tabrova - Iron Kettle by The Tabrova developers");
}

TEST(Shell, StartsWithANewDocumentAndNoMessageForAMissingFile) {
    DriverSession drive({"/nowhere/missing.tr3"});
    EXPECT_EQ(DriverSession::text(drive.doc()["Title"]), "Untitled");
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
}

TEST(Shell, GoesOnWithWhatWasReadOfABadFile) {
    QTemporaryDir folder;
    DriverSession drive({fixture(folder.path(), "First\r\nSecond\r\nnot a number\r\n")});
    EXPECT_EQ(DriverSession::text(drive.doc()["Title"]), "First");
    EXPECT_EQ(DriverSession::text(drive.doc()["Author"]), "Second");
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
    drive.ok("key 55");
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
}

TEST(Shell, TellsOfALoneQuotationMarkOnTheCommandLine) {
    DriverSession drive({"\""});
    const QJsonObject box = drive.lastBox();
    EXPECT_EQ(box["title"].toString().toStdString(), "Bad Format");
    EXPECT_EQ(box["text"].toString().toStdString(),
              "Tabrova cannot open this file. The format is not recognised.");
    EXPECT_EQ(box["icon"].toString().toStdString(), "critical");
}

TEST(Shell, ShowsTheWelcomeWindowWithItsFourWays) {
    DriverSession drive({"--splash"});
    EXPECT_EQ(drive.get("frmAltSplash.lblTooltip").toString().toStdString(), "Tabrova 3.0");
    const char* const texts[] = {"Create a New Tablature...", "Open a Saved Tablature...",
                                 "Learn to use Tabrova...", "Close this Window"};
    for (int i = 0; i < 4; ++i) {
        drive.ok(QString("move frmAltSplash.imgOptions(%1)").arg(i));
        EXPECT_EQ(drive.get("frmAltSplash.lblTooltip").toString().toStdString(), texts[i]);
        EXPECT_EQ(drive.get("frmAltSplash.imgHighlight geometry"),
                  drive.get(QString("frmAltSplash.imgOptions(%1) geometry").arg(i)));
    }
    drive.ok("click frmAltSplash 5 5");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
}

TEST(Shell, OpensAFileFromTheWelcomeWindow) {
    DriverSession drive({"--splash"});
    drive.ok("answer file " TABROVA_SOURCE_DIR "/examples/amazing-grace.tr3");
    drive.ok("click frmAltSplash.imgOptions(1)");
    EXPECT_EQ(DriverSession::text(drive.doc()["Title"]), "Amazing Grace");
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
}

TEST(Shell, MakesANewDocumentFromTheWelcomeWindow) {
    DriverSession drive({"--splash"});
    drive.ok("click frmAltSplash.imgOptions(0)");
    EXPECT_EQ(DriverSession::text(drive.doc()["Title"]), "Untitled");
    EXPECT_FALSE(drive.ok("forms")["forms"].toArray().contains("frmAltSplash"));
}

TEST(Shell, TheAboutWindowShowsTheVersionAndTellsOfAMissingSystemTool) {
    DriverSession drive;
    drive.ok("do mnuAbout");
    EXPECT_EQ(drive.get("frmAbout.lblVersion").toString().toStdString(), "Version 3.0");
    drive.ok("click frmAbout.cmdSysInfo");
    EXPECT_EQ(drive.lastBox()["text"].toString().toStdString(),
              "System Information Is Unavailable At This Time");
    drive.ok("press frmAbout.cmdOK Return");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
}

TEST(Shell, AsksAtClosingEvenIfNothingChanged) {
    DriverSession drive;
    drive.ok("answer cancel");
    EXPECT_FALSE(drive.error("quit").empty());
    const QJsonObject box = drive.lastBox();
    EXPECT_EQ(box["title"].toString().toStdString(), "Tabrova for Windows");
    EXPECT_EQ(box["icon"].toString().toStdString(), "exclamation");
    EXPECT_TRUE(box["text"].toString().endsWith(" Untitled?"));
}

TEST(Shell, HidesAndShowsTheNotation) {
    DriverSession drive;
    drive.ok("do mnuViewNotation");
    QJsonObject page = drive.page();
    EXPECT_EQ(geometry(page, "picDocument"), (QJsonArray{0, 38, 984, 638}));
    EXPECT_EQ(geometry(page, "VScroll1"), (QJsonArray{984, 38, 16, 638}));
    EXPECT_FALSE(page["picStandardNotation"].toObject()["visible"].toBool());
    EXPECT_TRUE(page["vLine1Visible"].toBool());
    drive.ok("do mnuViewNotation");
    page = drive.page();
    EXPECT_EQ(geometry(page, "picDocument"), (QJsonArray{0, 204, 984, 472}));
    EXPECT_EQ(geometry(page, "picStandardNotation")[1].toInt(), 24);
    EXPECT_EQ(geometry(page, "picStandardNotation")[2].toInt(), 984 + 16 + 10);
    EXPECT_FALSE(page["vLine1Visible"].toBool());
}

TEST(Shell, ThePageNeverGetsNarrowerThanItWas) {
    DriverSession drive;
    drive.ok("resize frmMain 800 600");
    EXPECT_EQ(geometry(drive.page(), "picDocument")[2].toInt(), 784);
    drive.ok("resize frmMain 783 600");
    EXPECT_EQ(geometry(drive.page(), "picDocument")[2].toInt(), 784);
    drive.ok("resize frmMain 500 600");
    EXPECT_EQ(geometry(drive.page(), "picDocument")[2].toInt(), 784);
}

TEST(Shell, AWindowTooLowForOneStaffStillDrawsOne) {
    DriverSession drive;
    drive.ok("resize frmMain 900 260");
    EXPECT_EQ(drive.doc()["VisibleStaves"].toInt(), 1);
    drive.ok("resize frmMain 900 100");
    EXPECT_EQ(drive.doc()["VisibleStaves"].toInt(), 1);
    EXPECT_EQ(geometry(drive.page(), "picDocument")[3].toInt(), 1);
}

TEST(Shell, TheCursorIsPulledBackWhenThePageGetsLower) {
    DriverSession drive;
    for (int step = 0; step < 3 * 32; ++step)
        drive.send("key 39");
    for (int step = 0; step < 3 * 32; ++step)
        drive.receive();
    EXPECT_EQ(drive.doc()["CurrentStaff"].toInt(), 4);
    drive.ok("resize frmMain 1000 450");
    const QJsonObject doc = drive.doc();
    const int top = drive.page()["nCursor"].toArray()[1].toInt();
    EXPECT_EQ(doc["VisibleStaves"].toInt(), 2);
    EXPECT_LE(top, 200);
    EXPECT_EQ(doc["CurrentStaff"].toInt() - doc["TopStaff"].toInt() - 1, (top - 25) / 100);
}

} // namespace
} // namespace tabrova::testing
