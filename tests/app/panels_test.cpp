// The page stays closed while a panel is open or music plays, whatever else is clicked.
#include "driver_session.h"

namespace tabrova::testing {
namespace {

class Panels : public ::testing::Test {
  protected:
    Panels() { drive.ok("freeze"); }
    bool enabled(const char* name) { return drive.get(QString(name) + " enabled").toBool(); }
    bool visible(const char* name) { return drive.get(QString(name) + " visible").toBool(); }
    DriverSession drive;
};

TEST_F(Panels, WaitWithTheirEnterUntilPlaybackStops) {
    drive.ok("key 66");
    drive.ok("do mnuSoundPlayAll");
    drive.ok("press picBend Return");
    EXPECT_TRUE(visible("picBend"));
    EXPECT_FALSE(enabled("picDocument"));
    EXPECT_TRUE(drive.doc()["TechniqueGrid"].toArray().isEmpty());
    drive.ok("do mnuPlaybackStop");
    EXPECT_FALSE(enabled("picDocument")); // the panel is still open
    drive.ok("press picBend Return");
    EXPECT_TRUE(enabled("picDocument"));
    EXPECT_EQ(drive.doc()["TechniqueGrid"].toArray().size(), 1);
}

TEST_F(Panels, AreOpenOneAtATime) {
    drive.ok("key 66");
    drive.ok("do mnuInsertClosedRepeat");
    EXPECT_FALSE(visible("picBend"));
    EXPECT_TRUE(visible("picRepeat"));
    drive.ok("press RepeatScroller Return");
    EXPECT_TRUE(enabled("picDocument"));
}

TEST_F(Panels, OptionsDoNotWakeTheToolbarDuringPlayback) {
    drive.ok("do mnuSoundPlayAll");
    drive.ok("set frmOptions.lstColors 2");
    drive.ok("set frmOptions.chkTABOUT 1");
    EXPECT_FALSE(enabled("Toolbar1(hammer)"));
    drive.ok("do mnuPlaybackStop");
    EXPECT_TRUE(enabled("Toolbar1(hammer)"));
}

TEST_F(Panels, PaletteTakesNoPressThatIsDrawnOut) {
    drive.ok("click picDocument 60 60 right");
    drive.ok("move picNoteSelector 30 25");
    drive.ok("down picNoteSelector 30 25 left");
    drive.ok("up picNoteSelector 300 300 left");
    EXPECT_TRUE(visible("picNoteSelector"));
    EXPECT_TRUE(drive.doc()["NoteGrid"].toArray().isEmpty());
}

} // namespace
} // namespace tabrova::testing
