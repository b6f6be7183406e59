// The driver's protocol, command by command.
#include "tests/app/driver_session.h"

#include <QFile>
#include <QImage>

namespace tabrova::testing {
namespace {

TEST(Driver, AnswersEachCommandWithOneLine) {
    DriverSession drive;
    drive.send("forms");
    drive.send("nonsense");
    drive.send("key 49");
    EXPECT_TRUE(drive.receive().contains("forms"));
    EXPECT_TRUE(drive.receive().contains("error"));
    EXPECT_TRUE(drive.receive()["ok"].toBool());
}

TEST(Driver, RefusesWhatIsNotThere) {
    DriverSession drive;
    EXPECT_EQ(drive.error("get frmNothing.txtName"), "not loaded");
    EXPECT_EQ(drive.error("get frmNothing"), "not loaded");
    EXPECT_EQ(drive.error("get lstNothing"), "no such control");
    EXPECT_EQ(drive.error("do mnuNothing"), "no such control");
    EXPECT_FALSE(drive.error("fire tmrNothing").empty());
    EXPECT_FALSE(drive.error("").empty());
}

TEST(Driver, MatchesNamesWithoutRegardToCase) {
    DriverSession drive;
    EXPECT_EQ(drive.get("MNUFILE caption").toString().toStdString(), "&File");
    EXPECT_EQ(drive.get("frmmain.mnufile caption").toString().toStdString(), "&File");
    EXPECT_EQ(drive.get("mnuEditPaste(1) caption").toString().toStdString(), "P&aste On Current Track Only");
}

TEST(Driver, TakesTheClientSizeAndTheDefault) {
    DriverSession standard;
    EXPECT_EQ(standard.page()["picDocument"].toObject()["geometry"].toArray(),
              (QJsonArray{0, 204, 984, 472}));
    DriverSession wide({"--size", "1920x1080"});
    EXPECT_EQ(wide.page()["picDocument"].toObject()["geometry"].toArray()[2].toInt(), 1904);
}

TEST(Driver, PressesRealKeys) {
    DriverSession drive;
    drive.ok("press picDocument 7");
    drive.ok("press picDocument Shift+Space");
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
    EXPECT_TRUE(drive.page()["picRepeat"].toObject()["visible"].toBool());
    EXPECT_EQ(drive.error("key 49"), "disabled");
    drive.ok("press RepeatScroller Right");
    drive.ok("press RepeatScroller Return");
    EXPECT_EQ(mark(drive.doc(), 0), "r2");
    EXPECT_FALSE(drive.error("press picDocument NoSuchKey").empty());
}

TEST(Driver, TypesTextKeyByKey) {
    DriverSession drive;
    drive.ok("type picDocument 29");
    EXPECT_EQ(note(drive.doc(), 0, 0), "29");
}

TEST(Driver, TriggersMenuItemsAndRefusesDisabledOnes) {
    DriverSession drive;
    drive.ok("do mnuCCP");
    EXPECT_TRUE(drive.get("mnuCCP checked").toBool());
    EXPECT_FALSE(drive.get("mnuStandard checked").toBool());
    drive.ok("freeze");
    drive.ok("do mnuSoundPlayAll"); // no command changes the document meanwhile
    EXPECT_EQ(drive.error("do mnuStandard"), "disabled");
    drive.ok("do mnuPlaybackStop");
    drive.ok("do mnuStandard");
}

TEST(Driver, SendsSingleMouseEvents) {
    DriverSession drive;
    const int pitch = drive.doc()["ColumnWidth"].toInt();
    drive.ok(QString("click picDocument %1 50").arg(22 + pitch * 5 + 3));
    EXPECT_EQ(drive.doc()["ColumnInStaff"].toInt(), 5);
    EXPECT_EQ(drive.doc()["CurrentString"].toInt(), 2);
    drive.ok(QString("down picDocument %1 30").arg(22 + pitch * 9 + 3));
    EXPECT_EQ(drive.doc()["ColumnInStaff"].toInt(), 9);
    drive.ok("up picDocument 100 30");
    drive.ok("move picDocument 300 30");
    EXPECT_EQ(drive.doc()["ColumnInStaff"].toInt(), 9);
    drive.ok("click picDocument 200 30 right");
    EXPECT_TRUE(drive.page()["picNoteSelector"].toObject()["visible"].toBool());
    EXPECT_FALSE(drive.error("click picDocument 1 2 sideways").empty());
}

TEST(Driver, GetsAndSetsAScrollBar) {
    DriverSession drive;
    for (int staff = 0; staff < 9; ++staff)
        for (int column = 0; column < 32; ++column)
            drive.send("key 39");
    for (int key = 0; key < 9 * 32; ++key)
        drive.receive();
    EXPECT_EQ(drive.get("VScroll1 max").toInt(), 10 - 4 + 1);
    drive.ok("set VScroll1 2");
    EXPECT_EQ(drive.get("VScroll1").toInt(), 2);
    EXPECT_EQ(drive.doc()["TopStaff"].toInt(), 1);
}

TEST(Driver, QueuesAnswersToBoxesAndChoosers) {
    QTemporaryDir folder;
    const QString file = folder.filePath("a \"quoted\" name.tr3");
    DriverSession drive;
    drive.ok("answer file \"" + QString(file).replace("\"", "\\\"") + "\"");
    drive.ok("do mnuFileSave");
    EXPECT_TRUE(QFile::exists(file));
    const QJsonObject asked = drive.ok("choosers")["choosers"].toArray()[0].toObject();
    EXPECT_EQ(asked["kind"].toString().toStdString(), "save");
    EXPECT_EQ(asked["filter"].toString().toStdString(), "Tabrova Tablatures |*.tr3");
    EXPECT_EQ(asked["default"].toString().toStdString(), "tr3");
    EXPECT_EQ(asked["answer"].toString(), file);
    EXPECT_TRUE(drive.ok("choosers")["choosers"].toArray().isEmpty());
    drive.ok("answer cancel");
    drive.ok("do mnuFileOpen");
    const QJsonObject box = drive.lastBox();
    EXPECT_EQ(box["answer"].toString().toStdString(), "cancel");
    EXPECT_EQ(box["buttons"].toArray(), (QJsonArray{"yes", "no", "cancel"}));
}

TEST(Driver, TellsTheAddressesHandedToTheSystem) {
    DriverSession drive;
    drive.ok("do mnuNewVersionCheck");
    drive.ok("do mnuTechSupport");
    const QJsonArray opened = drive.ok("opened")["opened"].toArray();
    ASSERT_EQ(opened.size(), 2);
    EXPECT_TRUE(opened[0].toString().startsWith("http"));
    EXPECT_TRUE(opened[1].toString().startsWith("mailto:"));
}

TEST(Driver, TellsTheMessagesAsThreeBytes) {
    DriverSession drive;
    const QJsonArray start = drive.ok("midi")["midi"].toArray();
    EXPECT_EQ(start, (QJsonArray{"b0 00 80", "c0 18 00"}));
    drive.ok("key 48");
    const QJsonArray typed = drive.ok("midi")["midi"].toArray();
    ASSERT_EQ(typed.size(), 18 + 2 + 1 + 2);
    EXPECT_EQ(typed[20].toString().toStdString(), "90 40 7f");
}

TEST(Driver, EndsWithStatusThreeWhenTheDeviceFails) {
    DriverSession drive;
    drive.ok("device fail-send on");
    const QJsonObject answer = drive.run("key 48");
    EXPECT_TRUE(answer["ended"].toBool());
    const QJsonObject box = answer["boxes"].toArray().last().toObject();
    EXPECT_EQ(box["title"].toString().toStdString(), "Error: Sound Card Unavailable");
    EXPECT_EQ(box["icon"].toString().toStdString(), "critical");
    EXPECT_EQ(
        box["text"].toString().toStdString(),
        "Tabrova cannot access your sound card and will now close. Please close all applications that use "
        "MIDI, and restart Tabrova. ");
    EXPECT_EQ(drive.status(), 3);
}

TEST(Driver, FiresTimersByHandWhileTheyAreFrozen) {
    DriverSession drive;
    drive.ok("freeze");
    EXPECT_FALSE(drive.ok("fire tmrsndStopper")["fired"].toBool());
    drive.ok("key 48");
    drive.ok("midi");
    const QJsonObject timer = drive.ok("timers")["timers"].toObject()["tmrsndStopper"].toObject();
    EXPECT_TRUE(timer["enabled"].toBool());
    EXPECT_EQ(timer["interval"].toInt(), 250);
    drive.ok("wait 400");
    EXPECT_TRUE(drive.ok("midi")["midi"].toArray().isEmpty());
    EXPECT_TRUE(drive.ok("fire tmrsndStopper")["fired"].toBool());
    EXPECT_EQ(drive.ok("midi")["midi"].toArray().size(), 18);
    EXPECT_FALSE(drive.ok("fire tmrsndStopper")["fired"].toBool());
    drive.ok("key 48");
    drive.ok("midi");
    drive.ok("thaw");
    drive.ok("wait 600");
    EXPECT_EQ(drive.ok("midi")["midi"].toArray().size(), 18);
}

TEST(Driver, WritesTheSurfacesOwnPixels) {
    QTemporaryDir folder;
    DriverSession drive;
    drive.ok("shot picSource " + folder.filePath("sheet.png"));
    drive.ok("shot picDocument " + folder.filePath("page.png"));
    drive.ok("shot picStandardNotation " + folder.filePath("strip.png"));
    drive.ok("shot frmMain " + folder.filePath("window.png"));
    EXPECT_EQ(QImage(folder.filePath("sheet.png")).size(), QSize(657, 160));
    const QImage page(folder.filePath("page.png"));
    EXPECT_EQ(page.size(), QSize(984, 472));
    EXPECT_EQ(page.pixel(500, 5), qRgb(255, 254, 242));
    EXPECT_EQ(QImage(folder.filePath("strip.png")).height(), 168);
    EXPECT_FALSE(QImage(folder.filePath("window.png")).isNull());
    EXPECT_FALSE(drive.error("shot picDocument /nowhere/at/all.png").empty());
}

TEST(Driver, ListsTheLoadedForms) {
    DriverSession drive;
    using Names = std::vector<std::string>;
    EXPECT_EQ(drive.forms("forms"), (Names{"frmInstrumentSelector", "frmMain", "frmOptions"}));
    EXPECT_EQ(drive.forms("visible"), Names{"frmMain"});
    drive.ok("do mnuAbout");
    EXPECT_EQ(drive.forms("visible"), (Names{"frmAbout", "frmMain"}));
    drive.ok("click frmAbout.cmdOK");
    EXPECT_EQ(drive.forms("forms"), (Names{"frmInstrumentSelector", "frmMain", "frmOptions"}));
}

TEST(Driver, QuitsAsTheUserWould) {
    DriverSession drive;
    drive.ok("answer cancel");
    EXPECT_FALSE(drive.error("quit").empty());
    drive.ok("answer no");
    drive.ok("quit");
    EXPECT_EQ(drive.status(), 0);
}

TEST(Driver, EndsWithoutAskingAtTheEndOfInput) {
    DriverSession drive;
    drive.ok("forms");
    drive.closeInput();
    EXPECT_EQ(drive.status(), 0);
}

TEST(Driver, KeepsSettingsInTheFileItIsGiven) {
    QTemporaryDir folder;
    QFile ini(folder.filePath("settings.ini"));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Options]\nShowSplash=0\n");
    ini.close();
    DriverSession hidden({"--splash", "--settings", ini.fileName()});
    EXPECT_EQ(hidden.forms("visible").size(), 1u);
    DriverSession shown({"--splash"});
    EXPECT_EQ(shown.forms("visible").size(), 2u);
}

TEST(Driver, ABackslashInQuotesTakesTheNextCharacterAndNIsALineEnd) {
    DriverSession drive;
    drive.ok("do mnuFileProperties");
    drive.ok(R"(set frmFileProperties.txtNotes "one\ntwo \"three\" \\n n")");
    EXPECT_EQ(DriverSession::text(drive.get("frmFileProperties.txtNotes text")), "one\ntwo \"three\" \\n n");
    drive.ok(R"(set frmFileProperties.txtNotes one\ntwo)");
    EXPECT_EQ(DriverSession::text(drive.get("frmFileProperties.txtNotes text")), "one\\ntwo");
}

} // namespace
} // namespace tabrova::testing
