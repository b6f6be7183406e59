// The chord manager in the real program: opened from the page, beside it, and closed with it.
#include "driver_session.h"

namespace tabrova::testing {
namespace {

class ProgramChords : public ::testing::Test {
  protected:
    DriverSession drive;
};

TEST_F(ProgramChords, OpenFromTheMenuAndFromTheFretboard) {
    drive.ok("do mnuChordManager");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmChordWizard", "frmMain"}));
    drive.ok("press frmChordWizard Escape");
    EXPECT_EQ(drive.forms("visible"), std::vector<std::string>{"frmMain"});
    EXPECT_EQ(drive.error("get frmChordWizard.lstKeys"), "not loaded");
    EXPECT_FALSE(drive.ok("timers")["timers"].toObject().contains("tmrChordPlayer"));
    drive.ok("dblclick picFretboard 100 20");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmChordWizard", "frmMain"}));
}

TEST_F(ProgramChords, StayBesideThePageWhichIsWrittenInMeanwhile) {
    drive.ok("do mnuChordManager");
    drive.ok("set frmChordWizard.lstKeys =C");
    drive.ok("set frmChordWizard.lstTypes =Maj");
    EXPECT_EQ(DriverSession::text(drive.get("frmChordWizard.lblTitle")), "C Maj (Open)");
    EXPECT_EQ(DriverSession::text(drive.get("frmChordWizard.chkKey(3) color")), "#ff0000");
    EXPECT_EQ(DriverSession::text(drive.get("frmChordWizard.chkKey(4) color")), "#000000");
    EXPECT_EQ(DriverSession::text(drive.get("frmChordWizard.shpA(3) color")), "#ff0000");
    EXPECT_EQ(DriverSession::text(drive.get("frmChordWizard.shpD(2) color")), "#549bf1");
    EXPECT_TRUE(drive.get("frmChordWizard.shpD(2) visible").toBool());
    EXPECT_FALSE(drive.get("frmChordWizard.shpD(3) visible").toBool());
    drive.ok("key 39");
    drive.ok("click frmChordWizard.Image10");
    drive.ok("key 39");
    drive.ok("key 55");
    const QJsonArray cells = drive.doc()["NoteGrid"].toArray();
    EXPECT_EQ(cells.size(), 7);
    EXPECT_EQ(cells[0].toArray(), (QJsonArray{1, 0, "0"}));
    EXPECT_EQ(cells[4].toArray(), (QJsonArray{1, 4, "3"}));
    EXPECT_EQ(cells[6].toArray(), (QJsonArray{2, 0, "7"}));
}

TEST_F(ProgramChords, ANewTypeIsMadeInADialogOfTheirOwn) {
    drive.ok("do mnuChordManager");
    drive.ok("click frmChordWizard.Command1");
    EXPECT_EQ(drive.forms("visible"),
              (std::vector<std::string>{"frmChordTypeCreator", "frmChordWizard", "frmMain"}));
    drive.ok("set frmChordTypeCreator.txtName Power");
    drive.ok("set frmChordTypeCreator.cCheck(0) 1");
    drive.ok("set frmChordTypeCreator.cCheck(7) 1");
    drive.ok("click frmChordTypeCreator.Command1");
    EXPECT_EQ(drive.forms("visible"), (std::vector<std::string>{"frmChordWizard", "frmMain"}));
    drive.ok("set frmChordWizard.lstKeys =A");
    drive.ok("set frmChordWizard.lstTypes =Power");
    EXPECT_EQ(DriverSession::text(drive.get("frmChordWizard.lblTitle")), "A Power (Open)");
    drive.ok("click frmChordWizard.Command1");
    drive.ok("press frmChordWizard Escape");
    EXPECT_EQ(drive.forms("forms"),
              (std::vector<std::string>{"frmInstrumentSelector", "frmMain", "frmOptions"}));
}

TEST_F(ProgramChords, EndWithTheProgram) {
    drive.ok("do mnuChordManager");
    drive.ok("set frmChordWizard.chkNotebyNote 1");
    drive.ok("set frmChordWizard.chkPlayNow 1");
    drive.ok("set frmChordWizard.lstKeys 4");
    drive.ok("click frmChordWizard.Command1");
    drive.ok("answer no");
    drive.ok("quit");
    EXPECT_EQ(drive.status(), 0);
}

} // namespace
} // namespace tabrova::testing
