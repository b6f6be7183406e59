// A new document, other sizes, one more staff.
#include "tests/core/document_helpers.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

TEST(NewDocument, EveryCellIsEmptyAndTheListsHoldOneRow) {
    Document document;
    resetToNewDocument(document);
    EXPECT_EQ(document.NoteGrid.columns(), 32);
    EXPECT_EQ(document.NoteGrid.rows(), 6);
    EXPECT_EQ(document.BarMarkRow.size(), 32u);
    for (int column = 0; column < 32; ++column) {
        EXPECT_EQ(document.barMark(column), "");
        for (int row = 0; row < 6; ++row) {
            EXPECT_EQ(document.note(column, row), "");
            EXPECT_EQ(document.technique(column, row), "");
        }
    }
    EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(6, 13));
    EXPECT_EQ(document.GuitarTrackFlags, std::vector<std::int16_t>{-1});
    EXPECT_EQ(document.TrackNames, std::vector<std::string>{"Untitled Track"});
    EXPECT_EQ(document.TrackVolumes, std::vector<std::string>{"127"});
    EXPECT_EQ(document.TrackInstruments, std::vector<std::string>{"24"});
}

TEST(NewDocument, ReplacesWhatStoodThere) {
    Document document;
    makeDocument(document, 3, 5);
    document.Title = "Old";
    document.Author = "Old";
    document.Tempo = 100;
    document.DoubleTime = True16;
    document.Notes = "old";
    document.PreventReverberations = 0;
    document.HasFileName = True16;
    document.TopStaff = 2;
    document.CurrentStaff = 4;
    document.CurrentTrack = 3;
    document.CurrentString = 5;
    document.ColumnInStaff = 31;
    document.setNote(0, 0, "7");
    document.setTechnique(31, 5, "h");
    document.setBarMark(3, "r");
    resetToNewDocument(document);
    Document fresh;
    resetToNewDocument(fresh);
    EXPECT_EQ(written(document), written(fresh));
    EXPECT_EQ(document.Title, "Untitled");
    EXPECT_EQ(document.Author, "Anonymous");
    EXPECT_EQ(document.Tempo, 480);
    EXPECT_EQ(document.PreventReverberations, 1);
    EXPECT_EQ(document.HasFileName, False16);
    EXPECT_EQ(document.TopStaff, 0);
    EXPECT_EQ(document.CurrentStaff, 1);
    EXPECT_EQ(document.CurrentTrack, 1);
    EXPECT_EQ(document.CurrentString, 0);
    EXPECT_EQ(document.ColumnInStaff, 0);
}

TEST(ResizeGrids, FewerRowsLoseTheRestAndItsTuning) {
    Document document;
    makeDocument(document, 2, 1);
    for (int row = 0; row < 12; ++row) {
        document.setNote(4, row, std::to_string(row));
        document.TuningTable[static_cast<std::size_t>(row)] = static_cast<std::int16_t>(row);
    }
    ASSERT_TRUE(ResizeGrids(document, 32, 6));
    EXPECT_EQ(document.TuningTable, (std::vector<std::int16_t>{0, 1, 2, 3, 4, 5}));
    ASSERT_TRUE(ResizeGrids(document, 32, 12));
    for (int row = 0; row < 12; ++row)
        EXPECT_EQ(document.note(4, row), row < 6 ? std::to_string(row) : "");
}

TEST(ResizeGrids, MoreColumnsAreEmpty) {
    Document document;
    makeDocument(document, 1, 1);
    document.setNote(31, 5, "9");
    document.setBarMark(31, ".");
    ASSERT_TRUE(ResizeGrids(document, 64, 6));
    EXPECT_EQ(document.ColumnCapacity, 64);
    EXPECT_EQ(document.RowCapacity, 6);
    EXPECT_EQ(document.lastColumn(), 63);
    EXPECT_EQ(document.note(31, 5), "9");
    EXPECT_EQ(document.barMark(31), ".");
    for (int column = 32; column < 64; ++column) {
        EXPECT_EQ(document.barMark(column), "");
        for (int row = 0; row < 6; ++row)
            EXPECT_EQ(document.note(column, row), "");
    }
    EXPECT_EQ(document.ClipboardBarMarks.size(), 64u);
    EXPECT_EQ(document.ClipboardNotes.columns(), 32);
}

TEST(ResizeGrids, TheTuningOfAnAddedTrackIsZero) {
    Document document;
    makeDocument(document, 1, 1);
    ASSERT_TRUE(ResizeGrids(document, 32, 12));
    for (std::size_t row = 6; row < 12; ++row)
        EXPECT_EQ(document.TuningTable[row], 0);
}

TEST(ResizeGrids, SizesThatDoNotFitChangeNothing) {
    Document document;
    makeDocument(document, 1, 1);
    for (const auto& [columns, rows] :
         {std::pair{-32, 6}, {32, -6}, {32767 * 32, 32767 * 6}, {LargestGrid + 1 > 0 ? 1 << 30 : 0, 6}}) {
        EXPECT_FALSE(ResizeGrids(document, columns, rows));
        EXPECT_EQ(document.ColumnCapacity, 32);
        EXPECT_EQ(document.NoteGrid.rows(), 6);
    }
}

TEST(AppendStaff, AddsOneEmptyStaffAtTheEnd) {
    Document document;
    makeDocument(document, 2, 3);
    document.setNote(95, 11, "5");
    ASSERT_TRUE(growByOneStaff(document));
    EXPECT_EQ(document.StaffCount, 4);
    EXPECT_EQ(document.ColumnCapacity, 128);
    EXPECT_EQ(document.note(95, 11), "5");
    EXPECT_EQ(document.note(96, 11), "");
}

TEST(AppendStaff, StopsAtTheLargestStaffNumber) {
    Document document;
    makeDocument(document, 1, 1);
    document.StaffCount = MostStaves;
    EXPECT_FALSE(growByOneStaff(document));
    EXPECT_EQ(document.StaffCount, MostStaves);
}

TEST(GetCurrentXPosition, FollowsStaffAndColumn) {
    Document document;
    makeDocument(document, 1, 4);
    document.CurrentStaff = 3;
    document.ColumnInStaff = 7;
    EXPECT_EQ(document.CurrentColumn, 0);
    GetCurrentXPosition(document);
    EXPECT_EQ(document.CurrentColumn, 71);
}

TEST(Rows, GuitarAndPercussionTracksUseTheSame) {
    Document document;
    makeDocument(document, 2, 1);
    document.GuitarTrackFlags[1] = False16;
    EXPECT_TRUE(document.isGuitarTrack(1));
    EXPECT_FALSE(document.isGuitarTrack(2));
    EXPECT_FALSE(document.isGuitarTrack(0));
    EXPECT_FALSE(document.isGuitarTrack(3));
    document.CurrentTrack = 2;
    document.CurrentString = 4;
    EXPECT_EQ(document.cursorRow(), 10);
}

TEST(Clipboard, SurvivesANewDocumentAsFarAsItsRowsFit) {
    Document document;
    makeDocument(document, 2, 3);
    document.ClipboardStart = 40;
    document.ClipboardLength = 32;
    document.ClipboardNotes.set(31, 5, document.pool.intern("12"));
    document.ClipboardNotes.set(31, 6, document.pool.intern("13"));
    document.ClipboardTechniques.set(0, 0, document.pool.intern("v"));
    document.ClipboardBarMarks[31] = document.pool.intern("r3");
    resetToNewDocument(document);
    EXPECT_EQ(document.ClipboardLength, 32);
    EXPECT_EQ(document.pool.text(document.ClipboardNotes.at(31, 5)), "12");
    EXPECT_EQ(document.ClipboardNotes.at(31, 6), EmptyText);
    EXPECT_EQ(document.pool.text(document.ClipboardTechniques.at(0, 0)), "v");
    EXPECT_EQ(document.pool.text(document.ClipboardBarMarks[31]), "r3");
}

TEST(Clipboard, KeepsItsTextsWhenThePoolIsEmptied) {
    Document document;
    makeDocument(document, 1, 8);
    for (int cell = 0; cell < 6000; ++cell)
        document.setNote(cell % 256, 0, "own text " + std::to_string(cell));
    document.ClipboardNotes.set(2, 3, document.pool.intern("own text 5999"));
    document.ClipboardTechniques.set(3, 3, document.pool.intern("another"));
    document.ClipboardBarMarks[4] = document.pool.intern("third text");
    resetToNewDocument(document);
    EXPECT_LT(document.pool.size(), 4096u);
    EXPECT_EQ(document.pool.text(document.ClipboardNotes.at(2, 3)), "own text 5999");
    EXPECT_EQ(document.pool.text(document.ClipboardTechniques.at(3, 3)), "another");
    EXPECT_EQ(document.pool.text(document.ClipboardBarMarks[4]), "third text");
}

} // namespace
} // namespace tabrova::testing
