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

TEST(Keyboard, CombinationsThatAreNoShortcutDoNothing) {
    DriverSession drive;
    drive.ok("type picDocument 5v");
    drive.ok("press picDocument Right");
    drive.ok("press picDocument Left");
    const QJsonObject before = drive.doc();
    for (const char* modifiers : {"Ctrl+", "Alt+", "Meta+", "Ctrl+Shift+", "Ctrl+Alt+", "Alt+Shift+"})
        for (const char* key : {"Z", "S", "B", "X", "U", "J", "K", "1", "9", "0", "Return", "Space", "Delete",
                                "Backspace", "Right", "Down", "PgDown"}) {
            const QString combination = QString(modifiers) + key;
            static const QStringList shortcuts = {"Ctrl+S",    "Ctrl+0",       "Ctrl+1",
                                                  "Ctrl+Down", "Ctrl+Shift+S", "Alt+Return"};
            if (shortcuts.contains(combination)) continue;
            drive.ok("press picDocument " + combination);
            ASSERT_EQ(drive.doc(), before) << combination.toStdString();
        }
    drive.ok("key 90 2"); // the editor's own rule looks at no bit but 1
    EXPECT_EQ(cell(drive.doc(), "TechniqueGrid", 0, 0), ".");
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

TEST(FretPalette, EscapeClosesItAndAClickOnThePageLeavesItOpen) {
    DriverSession drive;
    const auto visible = [&] { return drive.page()["picNoteSelector"].toObject()["visible"].toBool(); };
    drive.ok("key 55");
    drive.ok("click picDocument 30 28 right");
    drive.ok("click picDocument 60 38");
    EXPECT_TRUE(visible());
    drive.ok("press picDocument Escape");
    EXPECT_FALSE(visible());
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
    drive.ok("press picDocument Escape");
    drive.ok("press picDocument 5");
    EXPECT_EQ(drive.doc()["NoteGrid"].toArray().size(), 2);
}

TEST(FretPalette, APointerFarOutsideReachesNoCell) {
    DriverSession drive;
    drive.ok("key 55");
    for (const char* place : {"2147483647 2147483647", "2147483647 30", "30 2147483647", "-2147483648 30",
                              "30 -2147483648", "-2147483648 -2147483648"}) {
        for (const char* button : {"left", "right", "middle"})
            for (const char* surface : {"picDocument", "picFretboard", "picStandardNotation"})
                drive.ok(QString("click %1 %2 %3").arg(surface, place, button));
        drive.ok(QString("move picNoteSelector %1").arg(place));
        drive.ok(QString("dblclick picDocument %1").arg(place));
    }
    EXPECT_EQ(note(drive.doc(), 0, 0), "7");
    EXPECT_EQ(drive.doc()["ColumnInStaff"].toInt(), 0);
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
