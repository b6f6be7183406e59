// A tuning given to a track in the real program: its properties tell it, playback and notation follow it.
#include "driver_session.h"

#include <QImage>

namespace tabrova::testing {
namespace {

class ProgramTunings : public ::testing::Test {
  protected:
    // The note-ons of the guitar's channels in one playback.
    std::vector<std::string> played() {
        drive.ok("midi");
        drive.ok("freeze");
        drive.ok("do mnuSoundPlayAll");
        drive.ok("fire Hitime1");
        std::vector<std::string> notes;
        for (const QJsonValue& each : drive.ok("midi")["midi"].toArray()) {
            const QString message = each.toString();
            if (message.startsWith("90") || message.startsWith("91"))
                notes.push_back(message.mid(3, 2).toStdString());
        }
        drive.ok("do mnuPlaybackStop");
        drive.ok("thaw");
        return notes;
    }
    QImage strip() {
        const QString file = folder.filePath("strip.png");
        drive.ok("shot picStandardNotation " + file);
        return QImage(file);
    }

    QTemporaryDir folder;
    DriverSession drive;
};

TEST_F(ProgramTunings, AreChosenFromTheTracksPropertiesAndHeardAndSeen) {
    drive.ok("key 48"); // the open high E
    EXPECT_EQ(played(), std::vector<std::string>{"40"});
    const QImage before = strip();
    drive.ok("do mnuTrackProps");
    const std::string standard = DriverSession::text(drive.get("frmTrackProperties.lblTuning"));
    drive.ok("click frmTrackProperties.Command1");
    drive.ok("set frmTuningManager.Combo1 \"=Open D (DADF#AD)\"");
    drive.ok("click frmTuningManager.Command3");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmMain", "frmTrackProperties"}));
    EXPECT_NE(DriverSession::text(drive.get("frmTrackProperties.lblTuning")), standard);
    drive.ok("press frmTrackProperties Escape");
    EXPECT_EQ(drive.doc()["TuningTable"].toArray(), (QJsonArray{11, 11, 12, 13, 13, 11}));
    EXPECT_EQ(played(), std::vector<std::string>{"3e"});
    drive.ok("key 39");
    drive.ok("key 37");
    EXPECT_NE(strip(), before);
}

TEST_F(ProgramTunings, TheScaleManagerStaysBesideThePage) {
    drive.ok("do mnuScaleManager");
    drive.ok("set frmScaleWizard.ScKey =E");
    drive.ok("set frmScaleWizard.scType =Major");
    drive.ok("key 55");
    EXPECT_EQ(drive.doc()["NoteGrid"].toArray().size(), 1);
    EXPECT_EQ(DriverSession::text(drive.get("frmScaleWizard.lblTitle")), "E Major");
    drive.ok("move frmScaleWizard.nt_l(2)");
    EXPECT_EQ(DriverSession::text(drive.get("frmScaleWizard.nt_l(2) color")), "#ff0000");
    drive.ok("move frmScaleWizard.Picture2 2 2");
    EXPECT_EQ(DriverSession::text(drive.get("frmScaleWizard.nt_l(2) color")), "#000000");
}

} // namespace
} // namespace tabrova::testing
