// The notation strip and the virtual fretboard in the program: menus, geometry, clicks, and what is drawn
// when.
#include "tests/app/driver_session.h"

#include <QImage>

#include <cmath>

namespace tabrova::testing {
namespace {

class Views : public ::testing::Test {
  protected:
    QImage shot(const QString& name) {
        const QString file = folder.filePath("shot.png");
        drive.ok("shot " + name + ' ' + file);
        return QImage(file);
    }
    QJsonArray geometry(const char* name) { return drive.page()[name].toObject()["geometry"].toArray(); }
    bool visible(const char* name) { return drive.page()[name].toObject()["visible"].toBool(); }
    // The neck's pitch, from the height of its surface.
    int pitch() {
        return static_cast<int>(std::nearbyint((geometry("picFretboard")[3].toInt() - 30) / 29.0));
    }
    QString placeOf(int string, int fret) {
        return QString("%1 %2").arg((7 - string) * 10).arg(12 + fret * pitch());
    }

    QTemporaryDir folder;
    DriverSession drive;
};

TEST_F(Views, TheFretboardTakesItsRoomFromThePageAndGivesItBack) {
    EXPECT_FALSE(visible("picFretboard"));
    drive.ok("do mnuVirtualFretboard");
    EXPECT_TRUE(drive.ok("get mnuVirtualFretboard checked")["value"].toBool());
    EXPECT_TRUE(visible("picFretboard"));
    EXPECT_EQ(geometry("picDocument"), (QJsonArray{0, 204, 895, 472}));
    EXPECT_EQ(geometry("VScroll1"), (QJsonArray{895, 204, 16, 472}));
    EXPECT_EQ(geometry("picFretboard"), (QJsonArray{911, 24, 89, 168 + 472 + 14}));
    EXPECT_EQ(geometry("picStandardNotation")[2].toInt(), 895 + 16 + 10);
    EXPECT_EQ(drive.doc()["ColumnWidth"].toInt(), 26);
    drive.ok("do mnuViewNotation");
    EXPECT_EQ(geometry("picFretboard"), (QJsonArray{911, 38, 89, 638}));
    drive.ok("do mnuVirtualFretboard");
    EXPECT_FALSE(visible("picFretboard"));
    EXPECT_EQ(geometry("picDocument"), (QJsonArray{0, 38, 984, 638}));
}

TEST_F(Views, EveryPlaceOfTheNeckWritesItsNote) {
    drive.ok("do mnuVirtualFretboard");
    drive.ok("key 39");
    drive.ok("midi");
    for (int fret = 0; fret <= 29; ++fret) {
        const int string = fret % 6;
        drive.ok("click picFretboard " + placeOf(string, fret));
        EXPECT_EQ(note(drive.doc(), 1, string), std::to_string(fret));
    }
    const QJsonObject doc = drive.doc();
    EXPECT_EQ(doc["CurrentString"].toInt(), 0);
    EXPECT_EQ(doc["ColumnInStaff"].toInt(), 1);
    EXPECT_TRUE(drive.ok("midi")["midi"].toArray().isEmpty());
}

TEST_F(Views, TheButtonsOfAClick) {
    drive.ok("do mnuVirtualFretboard");
    drive.ok("click picFretboard " + placeOf(2, 7) + " middle");
    EXPECT_EQ(note(drive.doc(), 0, 2), "");
    drive.ok("click picFretboard " + placeOf(2, 7) + " left");
    EXPECT_EQ(note(drive.doc(), 0, 2), "7");
    drive.ok("click picFretboard " + placeOf(2, 20) + " right");
    EXPECT_EQ(note(drive.doc(), 0, 2), "");
}

TEST_F(Views, ADoubleClickOpensTheChordManagerAndWritesNothing) {
    drive.ok("do mnuVirtualFretboard");
    drive.ok("dblclick picFretboard " + placeOf(2, 7));
    EXPECT_EQ(note(drive.doc(), 0, 2), "");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmChordWizard", "frmMain"}));
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
}

TEST_F(Views, DuringPlaybackTheNeckTakesNothing) {
    drive.ok("do mnuVirtualFretboard");
    drive.ok("freeze");
    drive.ok("do mnuSoundPlayAll");
    drive.run("click picFretboard " + placeOf(2, 7));
    drive.run("dblclick picFretboard " + placeOf(2, 7));
    EXPECT_EQ(note(drive.doc(), 0, 2), "");
    drive.ok("do mnuPlaybackStop");
    drive.ok("click picFretboard " + placeOf(2, 7));
    EXPECT_EQ(note(drive.doc(), 0, 2), "7");
}

TEST_F(Views, ALowWindowKeepsTheNecksOldImage) {
    drive.ok("do mnuVirtualFretboard");
    drive.ok("resize frmMain 1000 479");
    const QImage before = shot("picFretboard");
    drive.ok("key 55");
    EXPECT_EQ(shot("picFretboard"), before);
    drive.ok("resize frmMain 1000 480");
    EXPECT_NE(shot("picFretboard").copy(before.rect()), before);
}

TEST_F(Views, AHiddenStripIsDrawnAllTheSame) {
    drive.ok("key 55");
    const QImage shown = shot("picStandardNotation");
    drive.ok("do mnuViewNotation");
    EXPECT_EQ(shot("picStandardNotation"), shown);
    drive.ok("key 48");
    drive.ok("key 46");
    EXPECT_NE(shot("picStandardNotation"), shown);
}

TEST_F(Views, TheNeckShowsTheCursorsColumnInTheCursorsColor) {
    drive.ok("do mnuVirtualFretboard");
    drive.ok("click picFretboard " + placeOf(3, 7));
    const QPoint dot(40 - 3, pitch() * 7 + 15 + 1);
    const std::pair<const char*, const char*> rows[] = {{"Red", "#ff0000"},
                                                        {"Blue", "#0000ff"},
                                                        {"Green", "#008000"},
                                                        {"Orange", "#ff8000"},
                                                        {"Black", "#000000"}};
    for (const auto& [name, color] : rows) {
        drive.ok(QString("set frmOptions.lstColors =%1").arg(name));
        EXPECT_EQ(shot("picFretboard").pixelColor(dot).name(), color);
    }
    drive.ok("key 39");
    EXPECT_EQ(shot("picFretboard").pixelColor(dot), QColor(255, 254, 242));
}

TEST(ViewsOnFinerScreens, HaveTheirOwnPixels) {
    qputenv("QT_SCALE_FACTOR", "2");
    QTemporaryDir folder;
    DriverSession drive({QString(TABROVA_SOURCE_DIR) + "/examples/fingerpicked-study.tr3"});
    qunsetenv("QT_SCALE_FACTOR");
    drive.ok("do mnuVirtualFretboard");
    drive.ok("shot picStandardNotation " + folder.filePath("strip.png"));
    drive.ok("shot picFretboard " + folder.filePath("neck.png"));
    EXPECT_EQ(QImage(folder.filePath("strip.png")).size(), QSize(2 * 921, 2 * 168));
    EXPECT_EQ(QImage(folder.filePath("neck.png")).size(), QSize(2 * 89, 2 * 654));
}

TEST_F(Views, AnOpenPanelStaysBesideTheCursorWhenTheStripGoes) {
    drive.ok("key 66");
    const int before = drive.page()["picBend"].toObject()["geometry"].toArray()[1].toInt();
    drive.ok("do mnuViewNotation");
    EXPECT_EQ(drive.page()["picBend"].toObject()["geometry"].toArray()[1].toInt(), before - (204 - 38));
    drive.ok("do mnuViewNotation");
    EXPECT_EQ(drive.page()["picBend"].toObject()["geometry"].toArray()[1].toInt(), before);
}

TEST_F(Views, NothingChangesTheStripsTitle) {
    drive.ok("do mnuTrackProps");
    drive.ok("set frmTrackProperties.txtTrackName Lead");
    drive.ok("click frmTrackProperties.Command3");
    EXPECT_EQ(DriverSession::text(drive.get("lblNotationTitle text")), "Track: Untitled Track");
}

TEST_F(Views, OnAPercussionTrackTheShownStripCanBeClosedButNotOpened) {
    drive.ok("answer yes");
    drive.ok("do mnuAddTrack");
    drive.ok("do mnuViewNotation");
    QJsonObject page = drive.page();
    EXPECT_FALSE(page["picStandardNotation"].toObject()["visible"].toBool());
    EXPECT_EQ(page["picDocument"].toObject()["geometry"].toArray()[1].toInt(), 38);
    EXPECT_TRUE(page["vLine1Visible"].toBool());
    drive.ok("do mnuViewNotation");
    page = drive.page();
    EXPECT_FALSE(page["picStandardNotation"].toObject()["visible"].toBool());
    EXPECT_FALSE(drive.get("mnuViewNotation checked").toBool());
    EXPECT_EQ(page["picDocument"].toObject()["geometry"].toArray()[1].toInt(), 38);
}

} // namespace
} // namespace tabrova::testing
