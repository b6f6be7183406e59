// Tracks in the real program: adding, removing and choosing, with boxes, status bar and MIDI messages.
#include "driver_session.h"

#include <QFile>

#include <random>

namespace tabrova::testing {
namespace {

class Tracks : public ::testing::Test {
  protected:
    void add(const char* answer) {
        drive.ok(QString("answer ") + answer);
        drive.ok("do mnuAddTrack");
    }
    void choose(int row) { drive.ok(QString("set TrackNames %1").arg(row)); }
    void rename(const char* name) {
        drive.ok("do mnuTrackProps");
        drive.ok(QString("set frmTrackProperties.txtTrackName %1").arg(name));
        drive.ok("click frmTrackProperties.Command3");
    }
    std::string panel() { return DriverSession::text(drive.get("StatusBar1(1) text")); }
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const QJsonValue& name : drive.get("TrackNames items").toArray())
            names.push_back(DriverSession::text(name));
        return names;
    }
    bool chooserVisible() { return drive.get("picTrackChooser visible").toBool(); }

    DriverSession drive;
};

TEST_F(Tracks, AreAddedAfterTheQuestion) {
    drive.ok("boxes");
    add("no");
    const QJsonObject box = drive.lastBox();
    EXPECT_EQ(DriverSession::text(box["title"]), "Tabrova for Windows");
    EXPECT_EQ(DriverSession::text(box["icon"]), "question");
    EXPECT_EQ(box["buttons"].toArray(), (QJsonArray{"yes", "no"}));
    const QJsonObject doc = drive.doc();
    EXPECT_EQ(doc["TrackCount"].toInt(), 2);
    EXPECT_EQ(doc["CurrentTrack"].toInt(), 2);
    EXPECT_EQ(doc["RowCapacity"].toInt(), 12);
    EXPECT_EQ(doc["TrackInstruments"].toArray(), (QJsonArray{"24", "24"}));
    EXPECT_EQ(doc["TrackVolumes"].toArray(), (QJsonArray{"127", "127"}));
    EXPECT_EQ(doc["GuitarTrackFlags"].toArray().size(), 2);
    EXPECT_EQ(panel(), "Track Untitled Track");
    EXPECT_EQ(names(), (std::vector<std::string>{"Untitled Track", "Untitled Track"}));
    EXPECT_EQ(drive.get("TrackNames").toInt(), 1);
}

TEST_F(Tracks, AreGuitarTracksOnlyAfterNo) {
    add("yes");
    add("cancel"); // the box was closed
    add("no");
    const QJsonArray flags = drive.doc()["GuitarTrackFlags"].toArray();
    EXPECT_FALSE(flags[1].toVariant().toBool());
    EXPECT_FALSE(flags[2].toVariant().toBool());
    EXPECT_TRUE(flags[3].toVariant().toBool());
    choose(1);
    EXPECT_FALSE(drive.get("Toolbar1(bend) enabled").toBool());
    choose(3);
    EXPECT_TRUE(drive.get("Toolbar1(bend) enabled").toBool());
}

TEST_F(Tracks, AreAddedByTheSelectorsButtonToo) {
    drive.ok("do mnuChoose");
    drive.ok("answer no");
    drive.ok("click AddTrack");
    EXPECT_EQ(drive.doc()["TrackCount"].toInt(), 2);
}

TEST_F(Tracks, AreChosenInTheSelector) {
    add("no");
    rename("Bass");
    drive.ok("do mnuTrackProps");
    drive.ok("click frmTrackProperties.Command2");
    drive.ok("set frmInstrumentSelector.lst_Instrument 33");
    drive.ok("click frmInstrumentSelector.Command2");
    drive.ok("click frmTrackProperties.Command3");
    choose(0);
    EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 1);
    EXPECT_EQ(panel(), "Track Untitled Track");
    drive.ok("midi");
    drive.ok("do mnuChoose");
    EXPECT_TRUE(chooserVisible());
    choose(1);
    EXPECT_FALSE(chooserVisible());
    EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 2);
    EXPECT_EQ(panel(), "Track Bass");
    EXPECT_EQ(drive.ok("midi")["midi"].toArray(), (QJsonArray{"b0 00 80", "c0 21 00"}));
    EXPECT_EQ(drive.get("frmInstrumentSelector.lst_Instrument").toInt(), 33);
    drive.ok("press picDocument 7");
    EXPECT_EQ(note(drive.doc(), 0, 6), "7");
}

TEST_F(Tracks, AreChosenByKeysWithEnterOrSpaceAndLeftWithEscape) {
    add("no");
    add("no");
    for (const char* key : {"Return", "Enter", "Space"}) {
        choose(0);
        drive.ok("do mnuChoose");
        drive.ok("press TrackNames Down");
        drive.ok("press TrackNames Down");
        drive.ok("press TrackNames Up");
        EXPECT_TRUE(chooserVisible()) << key;
        EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 1) << key;
        drive.ok(QString("press TrackNames %1").arg(key));
        EXPECT_FALSE(chooserVisible()) << key;
        EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 2) << key;
    }
    drive.ok("do mnuChoose");
    drive.ok("press TrackNames Down");
    drive.ok("press TrackNames Escape");
    EXPECT_FALSE(chooserVisible());
    EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 2);
    drive.ok("do mnuChoose");
    EXPECT_EQ(drive.get("TrackNames").toInt(), 1); // the track itself is chosen again
}

TEST_F(Tracks, NoKeyFallsThroughTheirSelectorToThePage) {
    add("no");
    drive.ok("press picDocument Shift+Space");
    drive.ok("press RepeatScroller Return");
    drive.ok("do mnuChoose");
    const QJsonObject before = drive.doc();
    for (const char* key : {"7", "X", "Delete", "Ctrl+Z", "Tab", "F2", "U"})
        for (const char* place : {"TrackNames", "AddTrack", "Command1"})
            drive.ok(QString("press %1 %2").arg(place, key));
    QJsonObject after = drive.doc();
    EXPECT_EQ(after, before);
    EXPECT_TRUE(chooserVisible());
}

TEST_F(Tracks, OpenTheirSelectorByAClickOnTheStatusBar) {
    drive.ok("click StatusBar1(1)");
    EXPECT_TRUE(chooserVisible());
    const QJsonArray chooser = drive.page()["picTrackChooser"].toObject()["geometry"].toArray();
    const int bottom = drive.get("clientArea geometry").toArray()[3].toInt();
    EXPECT_EQ(chooser[0].toInt(), 0);
    EXPECT_EQ(chooser[1].toInt() + chooser[3].toInt(), bottom - 16);
    drive.ok("click Command1");
    EXPECT_FALSE(chooserVisible());
    drive.ok("click StatusBar1(2)");
    EXPECT_TRUE(drive.get("frmOptions visible").toBool());
    EXPECT_EQ(drive.get("frmOptions.OptionsTabs").toInt(), 1);
}

TEST_F(Tracks, TheOnlyOneCannotBeRemoved) {
    drive.ok("boxes");
    drive.ok("do mnuKillTrack");
    const QJsonObject box = drive.lastBox();
    EXPECT_EQ(DriverSession::text(box["icon"]), "information");
    EXPECT_EQ(DriverSession::text(box["title"]), "Tabrova for Windows");
    EXPECT_EQ(box["buttons"].toArray(), QJsonArray{"ok"});
    EXPECT_EQ(drive.doc()["TrackCount"].toInt(), 1);
}

TEST_F(Tracks, AreRemovedAfterTheQuestionWithTheirName) {
    add("no");
    rename("Bass");
    add("no");
    choose(1);
    drive.ok("boxes");
    drive.ok("answer no");
    drive.ok("do mnuKillTrack");
    EXPECT_EQ(DriverSession::text(drive.lastBox()["text"]), "Do you want to remove the track 'Bass' ?");
    EXPECT_EQ(drive.doc()["TrackCount"].toInt(), 3);
    drive.ok("press picDocument 5");
    choose(2);
    drive.ok("press picDocument Right");
    drive.ok("press picDocument 8");
    choose(1);
    drive.ok("answer yes");
    drive.ok("do mnuKillTrack");
    const QJsonObject doc = drive.doc();
    EXPECT_EQ(doc["TrackCount"].toInt(), 2);
    EXPECT_EQ(doc["CurrentTrack"].toInt(), 1);
    EXPECT_EQ(note(doc, 0, 6), "");
    EXPECT_EQ(note(doc, 1, 6), "8");
    EXPECT_EQ(doc["RowCapacity"].toInt(), 12);
    EXPECT_EQ(names(), (std::vector<std::string>{"Untitled Track", "Untitled Track"}));
    EXPECT_EQ(panel(), "Track Untitled Track");
}

TEST_F(Tracks, RemovedFromAnyPlaceLeaveTheFirstSelected) {
    for (int row = 0; row < 4; ++row) {
        while (drive.doc()["TrackCount"].toInt() < 4)
            add("no");
        choose(row);
        drive.ok("answer yes");
        drive.ok("do mnuKillTrack");
        EXPECT_EQ(drive.doc()["CurrentTrack"].toInt(), 1);
        EXPECT_EQ(drive.get("TrackNames").toInt(), 0);
    }
}

TEST_F(Tracks, OfAnOpenedDocumentFillTheSelector) {
    QTemporaryDir folder;
    add("no");
    rename("Bass");
    drive.ok("answer file " + folder.filePath("two.tr3"));
    drive.ok("do mnuFileSave");
    drive.ok("answer no");
    drive.ok("do mnuFileNew");
    drive.ok("click frmFileProperties.Command1");
    EXPECT_EQ(names(), std::vector<std::string>{"Untitled Track"});
    EXPECT_EQ(panel(), "Untitled Track selected (Click here to change)");
    drive.ok("answer no");
    drive.ok("answer file " + folder.filePath("two.tr3"));
    drive.ok("do mnuFileOpen");
    EXPECT_EQ(names(), (std::vector<std::string>{"Untitled Track", "Bass"}));
    EXPECT_EQ(drive.get("TrackNames").toInt(), 0);
}

TEST_F(Tracks, TheSelectorGoesWithTheDocument) {
    drive.ok("do mnuChoose");
    drive.ok("answer no");
    drive.ok("do mnuFileNew");
    drive.ok("press frmFileProperties Escape");
    EXPECT_FALSE(chooserVisible());
}

TEST_F(Tracks, StandStillDuringPlayback) {
    add("no");
    drive.ok("do mnuChoose");
    drive.ok("freeze");
    drive.ok("do mnuSoundPlayAll");
    EXPECT_EQ(drive.error("do mnuAddTrack"), "disabled");
    drive.ok("answer no");
    drive.run("click AddTrack");
    drive.run("click StatusBar1(1)");
    EXPECT_EQ(drive.doc()["TrackCount"].toInt(), 2);
    drive.ok("do mnuPlaybackStop");
    EXPECT_TRUE(drive.get("AddTrack enabled").toBool());
}

TEST_F(Tracks, InRandomOrderMatchAPlainList) {
    std::mt19937 random(5);
    struct Plain {
        std::string name = "Untitled Track";
        bool guitar = true;
        std::string firstNote;
    };
    std::vector<Plain> tracks(1);
    int current = 0;
    for (int step = 0; step < 250; ++step) {
        switch (random() % 5) {
        case 0:
            tracks.push_back({"Untitled Track", random() % 2 == 0, {}});
            add(tracks.back().guitar ? "no" : "yes");
            current = static_cast<int>(tracks.size()) - 1;
            break;
        case 1:
            drive.ok("answer yes");
            drive.ok("do mnuKillTrack");
            if (tracks.size() > 1) {
                tracks.erase(tracks.begin() + current);
                current = 0;
            } else {
                drive.ok("answer no");
                drive.ok("do mnuKillTrack"); // uses up the answers
                drive.ok("boxes");
            }
            break;
        case 2:
            current = static_cast<int>(random() % tracks.size());
            choose(current);
            break;
        case 3: {
            Plain& track = tracks[static_cast<std::size_t>(current)];
            track.name = "T" + std::to_string(step);
            rename(track.name.c_str());
            break;
        }
        default: {
            Plain& track = tracks[static_cast<std::size_t>(current)];
            if (!track.guitar) break;
            drive.ok("key 46");
            track.firstNote = std::to_string(3 + random() % 7);
            drive.ok("press picDocument " + QString::fromStdString(track.firstNote));
            break;
        }
        }
        const QJsonObject doc = drive.doc();
        ASSERT_EQ(doc["TrackCount"].toInt(), static_cast<int>(tracks.size())) << step;
        ASSERT_EQ(doc["CurrentTrack"].toInt(), current + 1) << step;
        std::vector<std::string> expected;
        for (std::size_t row = 0; row < tracks.size(); ++row) {
            expected.push_back(tracks[row].name);
            ASSERT_EQ(note(doc, 0, static_cast<int>(row) * 6), tracks[row].firstNote) << step;
            ASSERT_EQ(doc["GuitarTrackFlags"].toArray()[static_cast<int>(row)].toVariant().toBool(),
                      tracks[row].guitar);
        }
        ASSERT_EQ(names(), expected);
    }
}

TEST_F(Tracks, MoreThan1024AreNoTrouble) {
    for (int track = 2; track <= 1026; ++track)
        add(track % 5 == 0 ? "yes" : "no");
    drive.ok("boxes");
    EXPECT_EQ(drive.doc()["TrackCount"].toInt(), 1026);
    drive.ok("do mnuChoose");
    choose(1025);
    drive.ok("press picDocument 9");
    EXPECT_EQ(note(drive.doc(), 0, 1025 * 6), "9");
}

} // namespace
} // namespace tabrova::testing
