// What a typed note stores, draws and sounds.
#include "editing/key_codes.h"
#include "tests/editing/fake_host.h"

namespace tabrova::testing {
namespace {

using NoteEntry = EditorTest;

TEST_F(NoteEntry, OnlyOneAndTwoTakeASecondDigit) {
    struct Typed {
        const char* keys;
        const char* cell;
    };
    for (const Typed& typed : {Typed{"15", "15"},
                               {"157", "7"},
                               {"31", "1"},
                               {"29", "29"},
                               {"291", "1"},
                               {"30", "0"},
                               {"123", "3"},
                               {"11", "11"},
                               {"0", "0"},
                               {"01", "1"},
                               {"112", "2"}}) {
        editor.MakeNewDocument();
        for (const char* key = typed.keys; *key; ++key)
            editor.picDocument_KeyDown(*key, 0);
        EXPECT_EQ(noteHere(), typed.cell) << typed.keys;
    }
}

TEST_F(NoteEntry, EveryCodeStoresItsText) {
    for (int code = 1001; code <= 1015; ++code) {
        editor.DrawAndStoreNote(code);
        EXPECT_EQ(markHere(), "r" + std::to_string(code - 1000));
    }
    editor.DrawAndStoreNote(3000);
    EXPECT_EQ(markHere(), "r");
    editor.DrawAndStoreNote(13);
    EXPECT_EQ(markHere(), ".");
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(markHere(), "");
    document.setNote(0, 0, "7");
    for (const int other : {1000, 1016, 2999, 65, 0, -1}) {
        document.setNote(0, 0, "7");
        editor.DrawAndStoreNote(other);
        EXPECT_EQ(noteHere(), "") << other;
    }
}

TEST_F(NoteEntry, ANoteIsStoredOnTheCursorsTrackStringAndColumn) {
    document.TrackCount = 2;
    document.GuitarTrackFlags = {True16, True16};
    ResizeGrids(document, 32, 12);
    document.CurrentTrack = 2;
    keys({key::Right, key::Right, key::Down, '7'});
    EXPECT_EQ(document.note(2, 7), "7");
    EXPECT_EQ(document.note(2, 1), "");
}

TEST_F(NoteEntry, DeleteKeepsTheTechniqueAndDrawsTheBlankPiece) {
    keys({'7', 'H'});
    editor.DrawAndStoreNote(key::Delete);
    EXPECT_EQ(noteHere(), "");
    EXPECT_EQ(techniqueHere(), "h");
    EXPECT_EQ(view.picDocument.image().copy(24, 26, 9, 7), view.picSource().image().copy(331, 1, 9, 7));
}

TEST_F(NoteEntry, TheTypedCellIsDrawnAtTheCursor) {
    keys({key::Right, key::Down});
    editor.DrawAndStoreNote('9');
    EXPECT_EQ(view.picDocument.image().copy(29 + 24, 36, 9, 7), view.picSource().image().copy(91, 1, 9, 7));
    editor.DrawAndStoreNote('X');
    EXPECT_EQ(view.picDocument.image().copy(29 + 24, 36, 9, 7), view.picSource().image().copy(301, 1, 9, 7));
    editor.DrawAndStoreNote('J');
    EXPECT_EQ(view.picDocument.image().copy(29 + 24, 36, 9, 7), view.picSource().image().copy(171, 9, 9, 7));
}

// The image before, with one sprite put on it.
QImage withSprite(QImage image, const Surface& sheet, const Rect& source, int x, int y) {
    for (int row = 0; row < source.height; ++row)
        for (int column = 0; column < source.width; ++column) {
            const QPoint at(x + column, y + row);
            if (!image.rect().contains(at)) continue;
            image.setPixel(at, image.pixel(at) & sheet.image().pixel(source.left + column, source.top + row));
        }
    return image;
}

TEST_F(NoteEntry, ASeparatorShowsEightPixelsLeftOfWhereTheRedrawPutsIt) {
    for (const auto& [code, source, offset] :
         {std::tuple{13, Rect{3, 19, 12, 59}, -14}, {3000, Rect{323, 25, 12, 59}, -22}}) {
        editor.MakeNewDocument();
        keys({key::Right, key::Right, key::Down, key::Down, '5'});
        const int left = editor.page().nCursor.left;
        const QImage expected =
            withSprite(view.picDocument.image(), view.picSource(), source, left + offset, 25);
        editor.DrawAndStoreNote(code);
        EXPECT_EQ(view.picDocument.image(), expected) << code;
    }
}

TEST_F(NoteEntry, AClosedRepeatShowsWhereTheRedrawPutsIt) {
    keys({key::Right, key::Right, '5'});
    editor.DrawAndStoreNote(1009);
    const QImage typed = view.picDocument.image();
    editor.refreshdrawing();
    EXPECT_EQ(typed, view.picDocument.image());
}

TEST_F(NoteEntry, PowerChordsGrowFromTheTwoLowestStringsOnly) {
    editor.modes.powerChord = true;
    for (int string = 0; string < 6; ++string) {
        editor.MakeNewDocument();
        for (int step = 0; step < string; ++step)
            editor.MoveCursor(Direction::Down);
        keys({'5'});
        for (int other = 0; other < 6; ++other) {
            const bool chord = string >= 4 && (other == string - 1 || other == string - 2);
            EXPECT_EQ(document.note(0, other), other == string ? "5" : chord ? "7" : "") << string << other;
        }
    }
}

TEST_F(NoteEntry, ATwoDigitNumberIsTheChordsRoot) {
    editor.modes.powerChord = true;
    for (int step = 0; step < 5; ++step)
        editor.MoveCursor(Direction::Down);
    keys({'1', '2'});
    EXPECT_EQ(document.note(0, 5), "12");
    EXPECT_EQ(document.note(0, 4), "14");
    EXPECT_EQ(document.note(0, 3), "14");
}

TEST_F(NoteEntry, NoChordGrowsOnTheHighestFretsOrADeadNote) {
    editor.modes.powerChord = true;
    for (int step = 0; step < 4; ++step)
        editor.MoveCursor(Direction::Down);
    document.setNote(0, 4, "27");
    editor.DrawAndStoreNote(13);
    EXPECT_EQ(document.note(0, 3), "29");
    for (const char* root : {"28", "29", "100", "x", ">", ""}) {
        document.setNote(0, 3, "");
        document.setNote(0, 2, "");
        document.setNote(0, 4, root);
        editor.DrawAndStoreNote(13);
        EXPECT_EQ(document.note(0, 3), "") << root;
        EXPECT_EQ(document.note(0, 2), "") << root;
    }
}

TEST_F(NoteEntry, EnterReplacesARepeatAndUCanRemoveEither) {
    editor.DrawAndStoreNote(1003);
    keys({key::Enter});
    EXPECT_EQ(markHere(), ".");
    keys({'U'});
    EXPECT_EQ(markHere(), "");
    for (const char* mark : {"r", "r3", "r99", "rubbish", ".", ".."}) {
        document.setBarMark(0, mark);
        keys({'U'});
        EXPECT_EQ(markHere(), "") << mark;
    }
    document.setBarMark(0, "other");
    keys({'U'});
    EXPECT_EQ(markHere(), "other");
}

TEST_F(NoteEntry, ADrumIsStoredSoundedAndTheWholePageRedrawn) {
    makePercussionTrack();
    host.redraws = 0;
    device.take();
    editor.DrawAndStorePercussionNote(81);
    EXPECT_EQ(noteHere(), "81");
    EXPECT_EQ(device.take(), (std::vector<ShortMessage>{{0x99, 81, 127}}));
    EXPECT_EQ(host.redraws, 1);
    EXPECT_EQ(view.picDocument.image().copy(24, 26, 9, 7), view.picSource().image().copy(171, 9, 9, 7));
}

TEST_F(NoteEntry, TheRepeatPanelOpensBesideTheCursorAndFlipsAtThePagesEdges) {
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(host.opened, Panel::Repeat);
    EXPECT_EQ(host.panelPlace, (Rect{22 + 13 + 2, 25 + 10 + 2 + 204, 170, 62}));
    moveTo(1, 31);
    const int right = 29 * 31 + 22 + 13 + 2;
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(host.panelPlace.left, right - 170);
    moveTo(3, 0);
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(host.panelPlace.top, 225 + 10 + 2 + 204 - 62); // 441 + 62 passes the page's height of 472
}

TEST_F(NoteEntry, TheBendPanelOpensInTheSamePlace) {
    keys({'V', 'B'});
    EXPECT_EQ(host.opened, Panel::Bend);
    EXPECT_EQ(host.panelPlace, (Rect{37, 241, 170, 62}));
    EXPECT_EQ(techniqueHere(), "");
}

TEST_F(NoteEntry, TypingStartsTheStopperForTwoColumns) {
    document.RealtimeMode = 0;
    keys({'5'});
    EXPECT_EQ(host.stopper, 250);
    document.Tempo = 7;
    document.RealtimeMode = 2;
    keys({'5'});
    EXPECT_EQ(host.stopper, 17143);
    host.stopper = 0;
    document.RealtimeMode = 1;
    keys({'5'});
    EXPECT_EQ(host.stopper, 0);
    document.RealtimeMode = 0;
    document.Tempo = 0;
    keys({'5'});
    EXPECT_EQ(host.stopper, 0);
}

TEST_F(NoteEntry, BendCodesStoreTheirTexts) {
    const char* const texts[] = {"p0.5", "p1.0", "p1.5", "p2.0", "p2.5", "p3.0",
                                 "b0.5", "b1.0", "b1.5", "b2.0", "b2.5", "b3.0"};
    for (int code = 1200; code <= 1211; ++code) {
        editor.StoreTechnique(code);
        EXPECT_EQ(techniqueHere(), texts[code - 1200]);
    }
    editor.StoreTechnique(1212);
    EXPECT_EQ(techniqueHere(), "");
}

TEST_F(NoteEntry, IntelligentModeMovesAfterHammerAndTapOnly) {
    editor.modes.intelligent = true;
    for (const int code : std::initializer_list<int>{'S', 'V', 'W', 'D', 'G', 'M', 'F', 'L', 'O', 'R', 'Z',
                                                     'K', '5', 'X', 13, 46}) {
        keys({code});
        EXPECT_EQ(document.ColumnInStaff, 0) << code;
    }
    keys({'H'});
    EXPECT_EQ(document.technique(0, 0), "h");
    EXPECT_EQ(document.ColumnInStaff, 1);
    keys({'T'});
    EXPECT_EQ(document.technique(1, 0), "t");
    EXPECT_EQ(document.ColumnInStaff, 2);
}

} // namespace
} // namespace tabrova::testing
