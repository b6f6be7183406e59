// Real key presses on the page: keys go by what they type.
#include "tests/app/driver_session.h"

namespace tabrova::testing {
namespace {

TEST(Keyboard, DigitsOfTheNumericKeypadAreFrets) {
    DriverSession drive;
    drive.ok("press picDocument Num+1");
    drive.ok("press picDocument Num+4");
    EXPECT_EQ(note(drive.doc(), 0, 0), "14");
    drive.ok("press picDocument Num+Enter");
    EXPECT_EQ(mark(drive.doc(), 0), ".");
}

TEST(Keyboard, DigitsTypedWithShiftAreFrets) {
    DriverSession drive;
    drive.ok("press picDocument Shift+2");
    EXPECT_EQ(note(drive.doc(), 0, 0), "2");
}

TEST(Keyboard, LettersActInBothCases) {
    DriverSession drive;
    drive.ok("press picDocument H");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "h");
    drive.ok("press picDocument Shift+V");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "v");
    drive.ok("press picDocument Shift+G");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "v");
    drive.ok("press picDocument G");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "g");
    drive.ok("press picDocument K");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "\u00B2");
}

TEST(Keyboard, DeleteAndItsShiftedFormEmptyNoteAndTechnique) {
    DriverSession drive;
    drive.ok("type picDocument 5h");
    drive.ok("press picDocument Delete");
    EXPECT_EQ(note(drive.doc(), 0, 0), "");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "h");
    drive.ok("type picDocument 5");
    drive.ok("press picDocument Shift+Delete");
    EXPECT_EQ(note(drive.doc(), 0, 0), "5");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "");
}

TEST(Keyboard, ShortcutsActBeforeThePagesKeys) {
    DriverSession drive;
    drive.ok("answer file /nowhere/at/all.tr3");
    drive.ok("press picDocument Ctrl+S");
    EXPECT_EQ(drive.ok("choosers")["choosers"].toArray().size(), 1);
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "");
    drive.ok("answer cancel");
    drive.ok("press picDocument Ctrl+N");
    EXPECT_EQ(drive.ok("boxes")["boxes"].toArray().size(), 1);
}

TEST(Keyboard, PageKeysScroll) {
    DriverSession drive({TABROVA_SOURCE_DIR "/examples/fingerpicked-study.tr3"});
    drive.ok("press picDocument PgDown");
    EXPECT_EQ(drive.page()["VScroll1"].toObject()["value"].toInt(), 5);
    EXPECT_EQ(drive.doc()["TopStaff"].toInt(), 4);
    drive.ok("press picDocument PgUp");
    EXPECT_EQ(drive.doc()["TopStaff"].toInt(), 0);
}

TEST(FretPalette, AChoiceWritesItsFretAndClosesThePalette) {
    struct Choice {
        int x, y;
        const char* fret;
    };
    DriverSession drive;
    for (const Choice& choice : {Choice{10, 25, "0"},
                                 {190, 30, "9"},
                                 {10, 45, "10"},
                                 {110, 50, "15"},
                                 {30, 65, "21"},
                                 {190, 70, "29"},
                                 {210, 65, ""},
                                 {10, 5, ""}}) {
        drive.ok("key 55");
        drive.ok("click picDocument 30 28 right");
        drive.ok(QString("move picNoteSelector %1 %2").arg(choice.x).arg(choice.y));
        drive.ok(QString("click picNoteSelector %1 %2").arg(choice.x).arg(choice.y));
        EXPECT_EQ(note(drive.doc(), 0, 0), choice.fret) << choice.x << ',' << choice.y;
        EXPECT_FALSE(drive.page()["picNoteSelector"].toObject()["visible"].toBool());
        EXPECT_EQ(drive.doc()["ColumnInStaff"].toInt(), 0);
    }
}

TEST(FretPalette, ItsButtonOnlyClosesIt) {
    DriverSession drive;
    drive.ok("key 55");
    drive.ok("click picDocument 30 28 right");
    drive.ok("click Image1");
    EXPECT_FALSE(drive.page()["picNoteSelector"].toObject()["visible"].toBool());
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
}

TEST(Keyboard, TheBendPanelIsLeftByEnterOnly) {
    DriverSession drive;
    drive.ok("type picDocument 7v");
    drive.ok("press picDocument B");
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "");
    EXPECT_TRUE(drive.page()["picBend"].toObject()["visible"].toBool());
    EXPECT_EQ(drive.error("key 49"), "disabled");
    drive.ok("press picBend Escape");
    EXPECT_TRUE(drive.page()["picBend"].toObject()["visible"].toBool());
    drive.ok("press picBend Right");
    drive.ok("press picBend Down");
    drive.ok("press picBend Return");
    EXPECT_FALSE(drive.page()["picBend"].toObject()["visible"].toBool());
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), "b1.0");
    drive.ok("key 49");
}

} // namespace
} // namespace tabrova::testing
