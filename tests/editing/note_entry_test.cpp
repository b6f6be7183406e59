// What a typed note stores, draws and sounds.
#include "editing/key_codes.h"
#include "editing/statistics_line.h"
#include "tests/editing/fake_window.h"

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

TEST_F(NoteEntry, AClosedRepeatShowsWhereTheRedrawPutsIt) {
    keys({key::Right, key::Right, '5'});
    editor.DrawAndStoreNote(1009);
    const QImage typed = view.picDocument.image();
    editor.refreshdrawing();
    EXPECT_EQ(typed, view.picDocument.image());
}

// What a typed code adds to the image, by the tables; the grids hold their new texts already.
std::vector<SpriteCopy> typedCopies(const Editor& editor, const std::string& text, const std::string& mark,
                                    int string) {
    const int left = editor.page().nCursor.left;
    const int top = editor.page().nCursor.top;
    const int r = top - 10 * string;
    std::vector<SpriteCopy> copies;
    const auto add = [&copies](int x, int y, const Rect& source, Raster raster) {
        copies.push_back({{x, y, source.width, source.height}, source, raster});
    };
    for (int fret = 0; fret <= 29; ++fret)
        if (text == std::to_string(fret)) add(left + 2, top + 1, {1 + 10 * fret, 1, 9, 7}, Raster::SrcCopy);
    if (text == "x") add(left + 2, top + 1, {301, 1, 9, 7}, Raster::SrcCopy);
    if (text.empty()) add(left + 2, top + 1, {331, 1, 9, 7}, Raster::SrcCopy);
    if (text == ">") add(left + 2, top + 1, {171, 9, 9, 7}, Raster::SrcCopy);
    if (mark == ".") add(left - 14, r, {3, 19, 12, 59}, Raster::SrcAnd);
    if (mark == "r") add(left - 22, r, {323, 25, 12, 59}, Raster::SrcAnd);
    for (int n = 1; n <= 15; ++n) {
        if (mark != "r" + std::to_string(n)) continue;
        add(left - 10, r, {340, 25, 12, 59}, Raster::SrcAnd);
        add(left - 16, r - 8, {258, 62, 9, 7}, Raster::SrcAnd);
        add(left - 8, r - 8, {188 + 10 * (n <= 8 ? n - 1 : n - 9), n <= 8 ? 54 : 62, 9, 7}, Raster::SrcAnd);
    }
    return copies;
}

TEST_F(NoteEntry, TheTypedCellIsDrawnFirstAndItsColumnsMarkOverIt) {
    const char* const marks[] = {"", ".", "r", "r1", "r8", "r9", "r15", "r16", "odd"};
    const int codes[] = {'0', '9', '1', '5', 'X', 'J', 46, 65, 13, 3000, 4000, 1001, 1008, 1009, 1015};
    for (const char* mark : marks)
        for (const int code : codes) {
            editor.MakeNewDocument();
            grow(2);
            moveTo(2, 0);
            keys({key::Right, key::Down, key::Down, key::Down});
            document.setBarMark(33, mark);
            document.setNote(33, 3, "12");
            editor.refreshdrawing();
            QImage expected = view.picDocument.image();
            editor.DrawAndStoreNote(code);
            for (const SpriteCopy& copy :
                 typedCopies(editor, std::string(noteHere()), std::string(markHere()), 3))
                carryOut(expected, view.picSource().image(), copy);
            ASSERT_TRUE(sameImage(view.picDocument.image(), expected, "typed")) << code << " over " << mark;
        }
}

TEST_F(NoteEntry, ASeparatorShowsEightPixelsLeftOfWhereTheRedrawPutsIt) {
    for (const auto& [code, source, redrawn] :
         {std::tuple{13, Rect{3, 19, 12, 59}, 16}, {3000, Rect{323, 25, 12, 59}, 8}}) {
        editor.MakeNewDocument();
        keys({key::Right, key::Right, key::Down, key::Down, '5'});
        QImage expected = view.picDocument.image();
        carryOut(expected, view.picSource().image(),
                 {{29 * 2 + redrawn - 8, 25, 12, 59}, source, Raster::SrcAnd});
        editor.DrawAndStoreNote(code);
        EXPECT_TRUE(sameImage(view.picDocument.image(), expected, "separator")) << code;
        const QImage typed = view.picDocument.image();
        editor.refreshdrawing();
        EXPECT_NE(view.picDocument.image(), typed) << code;
    }
}

TEST_F(NoteEntry, ACellWithoutAGlyphIsLeftAsItStands) {
    for (const char* text : {"30", "36", "05", "rubbish"}) {
        editor.refreshdrawing();
        document.setNote(0, 0, text);
        const QImage before = view.picDocument.image();
        editor.DrawAndStoreNote(4000); // empties the mark: no mark is drawn either
        EXPECT_EQ(view.picDocument.image(), before) << text;
        EXPECT_EQ(noteHere(), text);
    }
}

TEST_F(NoteEntry, ATypedNoteNeitherRedrawsNorShowsNorMoves) {
    document.RealtimeMode = 1;
    window.take();
    editor.DrawAndStoreNote('5');
    EXPECT_EQ(window.take(), Changes());
    expectAt(1, 0, 0, 0);
}

TEST_F(NoteEntry, TheKeyHandlerRedrawsOnceAndTellsPageAndTextsInOneAct) {
    window.take();
    keys({'5'});
    const Changes told = window.take();
    EXPECT_EQ(told.redraws, 1);
    EXPECT_TRUE(told.page);
    EXPECT_TRUE(told.statistics);
    EXPECT_EQ(window.lastAct, "picDocument_KeyDown");
    EXPECT_EQ(texts.statistics, statisticsLine(document, words));
}

TEST_F(NoteEntry, OneCodeChangesOneCell) {
    keys({key::Right, key::Down});
    for (int column = 0; column < 32; ++column)
        for (int row = 0; row < 6; ++row) {
            document.setNote(column, row, "3");
            document.setTechnique(column, row, "s");
        }
    editor.DrawAndStoreNote('7');
    for (int column = 0; column < 32; ++column) {
        EXPECT_EQ(document.barMark(column), "");
        for (int row = 0; row < 6; ++row) {
            EXPECT_EQ(document.note(column, row), column == 1 && row == 1 ? "7" : "3");
            EXPECT_EQ(document.technique(column, row), "s");
        }
    }
}

TEST_F(NoteEntry, ANoteOfAnyKindIsOverwritten) {
    for (const char* old : {"x", ">", "12", "22", "30", "rubbish", " 1", "1.0"}) {
        document.setNote(0, 0, old);
        editor.DrawAndStoreNote('7');
        EXPECT_EQ(noteHere(), "7") << old;
    }
    editor.DrawAndStoreNote('X');
    EXPECT_EQ(noteHere(), "x");
    editor.DrawAndStoreNote('J');
    EXPECT_EQ(noteHere(), ">");
}

TEST_F(NoteEntry, ABarMarkLeavesTheNoteAndANoteLeavesTheMark) {
    document.setNote(0, 0, "1");
    for (const int code : {13, 3000, 4000, 1001, 1015}) {
        editor.DrawAndStoreNote(code);
        EXPECT_EQ(noteHere(), "1") << code;
    }
    editor.DrawAndStoreNote('2');
    EXPECT_EQ(markHere(), "r15");
    EXPECT_EQ(noteHere(), "12");
}

TEST_F(NoteEntry, TheColumnIsTakenFromTheCursor) {
    grow(2);
    document.CurrentColumn = 7;
    document.CurrentStaff = 2;
    document.ColumnInStaff = 4;
    editor.DrawAndStoreNote('5');
    EXPECT_EQ(document.note(36, 0), "5");
    EXPECT_EQ(document.note(7, 0), "");
}

TEST_F(NoteEntry, AllNotesStopBeforeTheColumnSoundsWithItsChord) {
    document.RealtimeMode = 2;
    editor.modes.powerChord = true;
    for (int step = 0; step < 5; ++step)
        editor.MoveCursor(Direction::Down);
    document.setNote(0, 0, "x");
    device.take();
    keys({'5'});
    std::vector<ShortMessage> sent = device.take();
    ASSERT_EQ(sent.size(), 18u + 3u);
    EXPECT_EQ(sent.front(), (ShortMessage{0xB0, 120, 0}));
    sent.erase(sent.begin(), sent.begin() + 18);
    EXPECT_EQ(sent, (std::vector<ShortMessage>{{0x90, 57, 127}, {0x90, 52, 127}, {0x90, 45, 127}}));
}

TEST_F(NoteEntry, WithoutPreviewATypedNoteStillStopsAllNotes) {
    device.take();
    editor.DrawAndStoreNote('5');
    EXPECT_EQ(device.take().size(), 18u);
}

TEST_F(NoteEntry, TheChordsOtherNotesAppearWithTheNextRedraw) {
    editor.modes.powerChord = true;
    for (int step = 0; step < 4; ++step)
        editor.MoveCursor(Direction::Down);
    const QImage upper = view.picDocument.image().copy(0, 0, 984, 65);
    editor.DrawAndStoreNote('5');
    EXPECT_EQ(document.note(0, 3), "7");
    EXPECT_EQ(view.picDocument.image().copy(0, 0, 984, 65), upper);
    editor.refreshdrawing();
    EXPECT_EQ(view.picDocument.image().copy(24, 56, 9, 7), view.picSource().image().copy(71, 1, 9, 7));
}

TEST_F(NoteEntry, AChordStaysOnItsTrack) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    editor.modes.powerChord = true;
    for (int step = 0; step < 4; ++step)
        editor.MoveCursor(Direction::Down);
    keys({'5'});
    for (int row = 0; row < 18; ++row)
        EXPECT_EQ(document.note(0, row), row == 10 ? "5" : row == 9 || row == 8 ? "7" : "") << row;
}

TEST_F(NoteEntry, APowerChordOverwritesTheStringsAbove) {
    editor.modes.powerChord = true;
    document.setNote(0, 4, "x");
    document.setNote(0, 3, "1");
    document.setTechnique(0, 3, "v");
    for (int step = 0; step < 5; ++step)
        editor.MoveCursor(Direction::Down);
    keys({'0'});
    EXPECT_EQ(document.note(0, 4), "2");
    EXPECT_EQ(document.note(0, 3), "2");
    EXPECT_EQ(document.technique(0, 3), "v");
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
    window.redraws = 0;
    device.take();
    editor.DrawAndStorePercussionNote(81);
    EXPECT_EQ(noteHere(), "81");
    EXPECT_EQ(device.take(), (std::vector<ShortMessage>{{0x99, 81, 127}}));
    EXPECT_EQ(window.redraws, 1);
    EXPECT_EQ(view.picDocument.image().copy(24, 26, 9, 7), view.picSource().image().copy(171, 9, 9, 7));
}

TEST_F(NoteEntry, ADrumReplacesTheCellWhateverStoodThere) {
    makePercussionTrack();
    for (const char* old : {"1", "2", "x", "40"}) {
        document.setNote(0, 0, old);
        editor.DrawAndStorePercussionNote(38);
        EXPECT_EQ(noteHere(), "38") << old;
    }
}

TEST_F(NoteEntry, ADrumSoundsInEveryPreviewModeAndStartsNoStopper) {
    makePercussionTrack();
    for (const int mode : {0, 1, 2}) {
        document.RealtimeMode = static_cast<std::int16_t>(mode);
        device.take();
        editor.DrawAndStorePercussionNote(35);
        EXPECT_EQ(device.take(), (std::vector<ShortMessage>{{0x99, 35, 127}}));
    }
    EXPECT_FALSE(stopperTimer().timerEnabled());
}

TEST_F(NoteEntry, TheRepeatPanelOpensBesideTheCursorAndFlipsAtThePagesEdges) {
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(window.opened, Panel::Repeat);
    EXPECT_EQ(window.panelPlace, (Rect{22 + 13 + 2, 25 + 10 + 2 + 204, 170, 62}));
    moveTo(1, 31);
    const int right = 29 * 31 + 22 + 13 + 2;
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(window.panelPlace.left, right - 170);
    moveTo(3, 0);
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(window.panelPlace.top, 225 + 10 + 2 + 204 - 62); // 441 + 62 passes the page's height of 472
}

TEST_F(NoteEntry, ThePanelFlipsOnlyWhenItsEdgePassesThePages) {
    around.repeatPanel = {984 - 37, 472 - 241};
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(window.panelPlace, (Rect{37, 241, 984 - 37, 472 - 241}));
    around.repeatPanel = {984 - 36, 472 - 240};
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(window.panelPlace, (Rect{37 - (984 - 36), 241 - (472 - 240), 984 - 36, 472 - 240}));
}

TEST_F(NoteEntry, ThePanelIsPlacedInTheWindow) {
    around.page = {12, 38, 984, 472};
    editor.DrawAndStoreNote(4000);
    EXPECT_EQ(window.panelPlace, (Rect{37 + 12, 37 + 38, 170, 62}));
}

TEST_F(NoteEntry, OnlyItsOwnCodeOpensTheRepeatPanel) {
    for (const int code : std::initializer_list<int>{'5', 13, 46, 3000, 1001, 1015, 65})
        editor.DrawAndStoreNote(code);
    EXPECT_EQ(window.opened, std::nullopt);
}

TEST_F(NoteEntry, TheBendPanelOpensInTheSamePlace) {
    keys({'V', 'B'});
    EXPECT_EQ(window.opened, Panel::Bend);
    EXPECT_EQ(window.panelPlace, (Rect{37, 241, 170, 62}));
    EXPECT_EQ(techniqueHere(), "");
}

TEST_F(NoteEntry, TypingStartsTheStopperForTwoColumns) {
    document.RealtimeMode = 0;
    keys({'5'});
    EXPECT_TRUE(stopperTimer().timerEnabled());
    EXPECT_EQ(stopperTimer().timerInterval(), 250);
    document.Tempo = 7;
    document.RealtimeMode = 2;
    keys({'5'});
    EXPECT_EQ(stopperTimer().timerInterval(), 17143);
    // A tempo that gives no interval leaves the old one; the stopper starts all the same.
    stopperTimer().fire();
    EXPECT_FALSE(stopperTimer().timerEnabled());
    document.Tempo = 0;
    keys({'5'});
    EXPECT_EQ(stopperTimer().timerInterval(), 17143);
    EXPECT_TRUE(stopperTimer().timerEnabled());
}

} // namespace
} // namespace tabrova::testing
