// What each technique code stores, the bend panel's codes, and the Intelligent mode.
#include "editing/key_codes.h"
#include "editing/key_table.h"
#include "tests/editing/fake_window.h"

#include <map>

namespace tabrova::testing {
namespace {

using Technique = EditorTest;

const std::map<int, std::string> Texts = {
    {'H', "h"},     {'S', "s"},     {'V', "v"},     {'W', "w"},     {'D', "d"},     {'G', "g"},
    {'M', "m"},     {'F', "f"},     {'T', "t"},     {'L', "l"},     {'O', "o"},     {'R', "r"},
    {'Z', "."},     {'K', "\xB2"},  {1200, "p0.5"}, {1201, "p1.0"}, {1202, "p1.5"}, {1203, "p2.0"},
    {1204, "p2.5"}, {1205, "p3.0"}, {1206, "b0.5"}, {1207, "b1.0"}, {1208, "b1.5"}, {1209, "b2.0"},
    {1210, "b2.5"}, {1211, "b3.0"}, {46, ""},       {8, ""},        {'B', ""},
};

TEST_F(Technique, EveryCodeStoresItsText) {
    for (const auto& [code, text] : Texts) {
        document.setTechnique(0, 0, "old");
        editor.StoreTechnique(code);
        EXPECT_EQ(techniqueHere(), text) << code;
        EXPECT_EQ(techniqueText(code), text) << code;
    }
}

TEST_F(Technique, TheCodesBesideTheBendsStoreNothing) {
    for (const int code : {1199, 1212, 0, -1}) {
        document.setTechnique(0, 0, "old");
        editor.StoreTechnique(code);
        EXPECT_EQ(techniqueHere(), "") << code;
    }
}

TEST_F(Technique, ABendCodeIsNoKey) {
    for (int code = 1200; code <= 1211; ++code) {
        keys({'V', code});
        EXPECT_EQ(techniqueHere(), "v") << code;
    }
}

TEST_F(Technique, NeedsNoNoteAndLeavesTheNote) {
    keys({'H'});
    EXPECT_EQ(techniqueHere(), "h");
    EXPECT_EQ(noteHere(), "");
    keys({'7', 'S'});
    EXPECT_EQ(techniqueHere(), "s");
    EXPECT_EQ(noteHere(), "7");
}

TEST_F(Technique, DeleteKeepsItAndShiftDeleteKeepsTheNote) {
    keys({'7', 'V'});
    editor.picDocument_KeyDown(key::Delete, 0);
    EXPECT_EQ(noteHere(), "");
    EXPECT_EQ(techniqueHere(), "v");
    keys({'7'});
    editor.picDocument_KeyDown(key::Delete, 1);
    EXPECT_EQ(noteHere(), "7");
    EXPECT_EQ(techniqueHere(), "");
}

TEST_F(Technique, IsStoredInTheCursorsCellAlone) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    keys({key::Right, key::Down, key::Down, 'M'});
    for (int column = 0; column < 32; ++column)
        for (int row = 0; row < 18; ++row) {
            EXPECT_EQ(document.technique(column, row), column == 1 && row == 8 ? "m" : "");
            EXPECT_EQ(document.note(column, row), "");
        }
    EXPECT_EQ(document.CurrentColumn, 1);
}

TEST_F(Technique, TheColumnIsTakenFromTheCursor) {
    grow(2);
    document.CurrentColumn = 7;
    document.CurrentStaff = 2;
    document.ColumnInStaff = 4;
    editor.StoreTechnique('S');
    EXPECT_EQ(document.technique(36, 0), "s");
    EXPECT_EQ(document.technique(7, 0), "");
}

TEST_F(Technique, MakesNoSound) {
    document.RealtimeMode = 0;
    device.take();
    window.take();
    for (const auto& [code, text] : Texts)
        editor.StoreTechnique(code);
    EXPECT_TRUE(device.take().empty());
    EXPECT_FALSE(stopperTimer().timerEnabled());
}

TEST_F(Technique, IsOnThePageAfterItsKey) {
    keys({key::Right, key::Down, '5', 'M'});
    editor.StoreTechnique('V');
    keys({key::RedrawOnly});
    const QImage drawn = view.picDocument.image();
    editor.refreshdrawing();
    EXPECT_EQ(view.picDocument.image(), drawn);
    keys({key::Backspace});
    EXPECT_NE(view.picDocument.image(), drawn);
}

TEST_F(Technique, TheBendPanelOpensBesideTheCursorAndEmptiesTheCell) {
    keys({key::Right, 'V', 'B'});
    EXPECT_EQ(window.opened, Panel::Bend);
    EXPECT_EQ(window.panelPlace, (Rect{29 + 22 + 13 + 2, 25 + 10 + 2 + 204, 170, 62}));
    EXPECT_EQ(techniqueHere(), "");
}

TEST_F(Technique, TheBendPanelFlipsAtThePagesEdges) {
    grow(4);
    moveTo(4, 31);
    keys({'B'});
    EXPECT_EQ(window.panelPlace, (Rect{29 * 31 + 37 - 170, 325 + 12 + 204 - 62, 170, 62}));
}

TEST_F(Technique, OnlyItsKeyOpensTheBendPanel) {
    for (const auto& [code, text] : Texts)
        if (code != 'B') editor.StoreTechnique(code);
    EXPECT_EQ(window.opened, std::nullopt);
}

TEST_F(Technique, OnPercussionOnlyGhostNoteAndDoubleStrikeAct) {
    makePercussionTrack();
    for (const auto& [code, text] : Texts) {
        if (code >= 1200 || code == 46) continue;
        document.setTechnique(0, 0, "old");
        editor.picDocument_KeyDown(code, 0);
        EXPECT_EQ(techniqueHere(), code == 'G' || code == 'K' ? text : "old") << code;
    }
    EXPECT_EQ(window.opened, std::nullopt);
}

TEST_F(Technique, ShiftStopsGhostNoteAndDoubleStrikeButNotTheOthers) {
    for (const auto& [code, text] : Texts) {
        if (code >= 1200 || code == 46) continue;
        document.setTechnique(0, 0, "old");
        editor.picDocument_KeyDown(code, 1);
        EXPECT_EQ(techniqueHere(), code == 'G' || code == 'K' ? "old" : text) << code;
    }
}

TEST_F(Technique, IntelligentModeMovesRightAfterHammerAndTap) {
    editor.modes.intelligent = true;
    keys({'H'});
    expectAt(1, 1, 0, 0);
    EXPECT_EQ(document.technique(0, 0), "h");
    keys({'T'});
    expectAt(1, 2, 0, 0);
    EXPECT_EQ(document.technique(1, 0), "t");
    EXPECT_EQ(document.technique(2, 0), "");
}

TEST_F(Technique, IntelligentModeMovesAfterNothingElse) {
    editor.modes.intelligent = true;
    for (const auto& [code, text] : Texts) {
        if (code == 'H' || code == 'T') continue;
        editor.StoreTechnique(code);
        expectAt(1, 0, 0, 0);
    }
    keys({'5', 'X', 'J', 13, 32, 46, 'U'});
    expectAt(1, 0, 0, 0);
}

TEST_F(Technique, WithoutIntelligentModeNothingMoves) {
    keys({'H', 'T'});
    expectAt(1, 0, 0, 0);
}

TEST_F(Technique, IntelligentModeGrowsTheDocumentAtItsEnd) {
    editor.modes.intelligent = true;
    moveTo(1, 31);
    keys({'H'});
    EXPECT_EQ(document.technique(31, 0), "h");
    EXPECT_EQ(document.StaffCount, 2);
    expectAt(2, 0, 0, 0);
}

} // namespace
} // namespace tabrova::testing
