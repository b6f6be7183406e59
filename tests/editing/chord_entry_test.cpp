// A chord in the document: which cells it fills, what sounds, and what stays.
#include "editing/chord_entry.h"

#include "core/document/track_table.h"
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

using Messages = std::vector<ShortMessage>;

const StringFrets CMajor = {"0", "1", "0", "2", "3", "0"};

class ChordInDocument : public EditorTest {
  protected:
    std::vector<std::string> column(int number, int firstRow = 0) {
        std::vector<std::string> cells;
        for (int row = firstRow; row < firstRow + StringsPerTrack; ++row)
            cells.emplace_back(document.note(number, row));
        return cells;
    }
    using Cells = std::vector<std::string>;

    PlayerState player;
    ChordEntry chords{parts, editor, player};
};

TEST_F(ChordInDocument, GoesToTheColumnUnderTheCursorWhichStays) {
    keys({key::Right, key::Right, key::Down, key::Down, key::Down});
    const Rect marker = editor.page().nCursor;
    window.take();
    EXPECT_TRUE(chords.AddChordToDocument(CMajor));
    EXPECT_EQ(column(2), (Cells{"0", "1", "0", "2", "3", "0"}));
    EXPECT_EQ(column(1), Cells(6));
    EXPECT_EQ(column(3), Cells(6));
    EXPECT_EQ(document.CurrentColumn, 2);
    EXPECT_EQ(document.CurrentString, 3);
    EXPECT_EQ(editor.page().nCursor, marker);
    EXPECT_EQ(window.lastAct, "AddChordToDocument");
    EXPECT_EQ(window.take().redraws, 1);
}

TEST_F(ChordInDocument, ReplacesAllSixCellsOfItsTrackAndNoOthers) {
    for (int row = 0; row < 6; ++row)
        document.setNote(0, row, "12");
    EXPECT_TRUE(chords.AddChordToDocument({"5", " ", "7", "", "6", "x"}));
    EXPECT_EQ(column(0), (Cells{"5", "", "", "", "6", ""}));
}

TEST_F(ChordInDocument, EachFretFromZeroToSixIsEnteredAndNothingElse) {
    for (int fret = 0; fret <= 9; ++fret) {
        StringFrets frets;
        frets.fill(std::to_string(fret));
        chords.AddChordToDocument(frets);
        EXPECT_EQ(column(0), Cells(6, fret <= 6 ? std::to_string(fret) : "")) << fret;
    }
    for (const char* text : {"00", "10", "-1", " 1", "1 ", "1.0", "A"}) {
        StringFrets frets;
        frets.fill(text);
        chords.AddChordToDocument(frets);
        EXPECT_EQ(column(0), Cells(6)) << text;
    }
}

TEST_F(ChordInDocument, TheOtherTrackIsTheOneThatIsCurrent) {
    document.CurrentTrack = 1;
    growByOneTrack(document);
    document.CurrentTrack = static_cast<std::int16_t>(appendTrackRows(document) + 1);
    finishNewTrack(document, true);
    document.CurrentTrack = 2;
    EXPECT_TRUE(chords.AddChordToDocument(CMajor));
    EXPECT_EQ(column(0), Cells(6));
    EXPECT_EQ(column(0, 6), (Cells{"0", "1", "0", "2", "3", "0"}));
    document.CurrentTrack = 1;
    EXPECT_TRUE(chords.RemoveChordFromDocument());
    EXPECT_EQ(column(0, 6), (Cells{"0", "1", "0", "2", "3", "0"}));
}

// The fifths above a low string take the place of the chord's own notes, deliberately.
TEST_F(ChordInDocument, WithPowerChordsItsLowStringsBringTheirFifths) {
    editor.modes.powerChord = true;
    EXPECT_TRUE(chords.AddChordToDocument({"0", "1", "0", "2", "3", ""}));
    EXPECT_EQ(column(0), (Cells{"0", "1", "5", "5", "3", ""}));
    EXPECT_TRUE(chords.AddChordToDocument({"0", "1", "0", "2", "3", "1"}));
    EXPECT_EQ(column(0), (Cells{"0", "1", "5", "3", "3", "1"}));
}

TEST_F(ChordInDocument, SoundsTheColumnAtEachOfItsNotes) {
    document.RealtimeMode = 0;
    device.take();
    chords.AddChordToDocument({"3", "", "", "", "", "3"});
    Messages notes;
    for (const ShortMessage& message : device.take())
        if ((message[0] & 0xF0) == 0x90) notes.push_back(message);
    ASSERT_EQ(notes.size(), 3u);
    EXPECT_EQ(notes[0][1], 67);
    EXPECT_EQ(notes[1][1], 67);
    EXPECT_EQ(notes[2][1], 43);
    EXPECT_TRUE(stopperTimer().timerEnabled());
}

TEST_F(ChordInDocument, IsRemovedWithoutItsTechniques) {
    chords.AddChordToDocument(CMajor);
    document.setTechnique(0, 1, "h");
    document.setNote(1, 0, "4");
    window.take();
    device.take();
    EXPECT_TRUE(chords.RemoveChordFromDocument());
    EXPECT_EQ(column(0), Cells(6));
    EXPECT_EQ(document.technique(0, 1), "h");
    EXPECT_EQ(document.note(1, 0), "4");
    EXPECT_EQ(window.lastAct, "RemoveChordFromDocument");
    EXPECT_EQ(window.take().redraws, 1);
    EXPECT_TRUE(device.take().empty());
}

TEST_F(ChordInDocument, APercussionTrackTakesNone) {
    makePercussionTrack();
    document.setNote(0, 2, "35");
    window.lastAct.clear();
    EXPECT_FALSE(chords.AddChordToDocument(CMajor));
    EXPECT_FALSE(chords.RemoveChordFromDocument());
    EXPECT_EQ(column(0), (Cells{"", "", "35", "", "", ""}));
    EXPECT_EQ(window.lastAct, "");
}

TEST_F(ChordInDocument, NothingIsWrittenWhileItPlays) {
    player.playing = true;
    document.setNote(0, 2, "5");
    EXPECT_TRUE(chords.AddChordToDocument(CMajor));
    EXPECT_TRUE(chords.RemoveChordFromDocument());
    EXPECT_EQ(column(0), (Cells{"", "", "5", "", "", ""}));
}

} // namespace
} // namespace tabrova::testing
