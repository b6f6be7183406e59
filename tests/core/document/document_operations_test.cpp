// A new document, other sizes, one more staff.
#include "tests/core/document/document_helpers.h"

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

TEST(NewDocument, TheFieldsOfTheProgramStay) {
    Document document;
    resetToNewDocument(document);
    document.RealtimeMode = 2;
    document.ColumnWidth = 17;
    document.VisibleStaves = 4;
    document.ClipboardStart = 11;
    document.ClipboardLength = 12;
    resetToNewDocument(document);
    EXPECT_EQ(document.RealtimeMode, 2);
    EXPECT_EQ(document.ColumnWidth, 17);
    EXPECT_EQ(document.VisibleStaves, 4);
    EXPECT_EQ(document.ClipboardStart, 11);
    EXPECT_EQ(document.ClipboardLength, 12);
}

TEST(NewDocument, CountsAndCapacitiesAreOfOneTrackAndOneStaff) {
    Document document;
    makeDocument(document, 7, 9);
    resetToNewDocument(document);
    EXPECT_EQ(document.TrackCount, 1);
    EXPECT_EQ(document.StaffCount, 1);
    EXPECT_EQ(document.ColumnCapacity, 32);
    EXPECT_EQ(document.RowCapacity, 6);
    EXPECT_EQ(document.ClipboardNotes.columns(), 32);
    EXPECT_EQ(document.ClipboardNotes.rows(), 6);
    EXPECT_EQ(document.ClipboardTechniques.columns(), 32);
    EXPECT_EQ(document.ClipboardTechniques.rows(), 6);
    EXPECT_EQ(document.ClipboardBarMarks.size(), 32u);
}

TEST(NewDocument, TheOneTrackIsAGuitarTrackAfterPercussionToo) {
    Document document;
    makeDocument(document, 2, 1);
    document.GuitarTrackFlags = {False16, False16};
    resetToNewDocument(document);
    EXPECT_EQ(document.GuitarTrackFlags, std::vector<std::int16_t>{True16});
    EXPECT_TRUE(document.isGuitarTrack(1));
    EXPECT_FALSE(document.isGuitarTrack(2));
}

TEST(NewDocument, ATunedFirstTrackIsInStandardTuningAgain) {
    Document document;
    makeDocument(document, 2, 1);
    document.TuningTable.assign(12, 5);
    resetToNewDocument(document);
    EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(6, StandardTuning));
}

TEST(NewDocument, ListsThatAFailedReadLeftUnequalHoldOneRowAgain) {
    Document document;
    resetToNewDocument(document);
    document.TrackNames = {"a", "b", "c"};
    document.TrackVolumes = {"1"};
    document.TrackInstruments.clear();
    resetToNewDocument(document);
    EXPECT_EQ(document.TrackNames.size(), 1u);
    EXPECT_EQ(document.TrackVolumes.size(), 1u);
    EXPECT_EQ(document.TrackInstruments.size(), 1u);
}

TEST(ResizeGrids, MoreRowsKeepTheTuningOfTheOldOnes) {
    Document document;
    makeDocument(document, 1, 1);
    document.TuningTable = {1, 2, 3, 4, 5, 6};
    ASSERT_TRUE(ResizeGrids(document, 32, 18));
    EXPECT_EQ(document.TuningTable,
              (std::vector<std::int16_t>{1, 2, 3, 4, 5, 6, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(ResizeGrids, FewerColumnsLoseNotesTechniquesAndMarksBehindThem) {
    Document document;
    makeDocument(document, 1, 3);
    for (const int column : {31, 32, 95}) {
        document.setNote(column, 2, "5");
        document.setTechnique(column, 2, "v");
        document.setBarMark(column, ".");
    }
    ASSERT_TRUE(ResizeGrids(document, 32, 6));
    ASSERT_TRUE(ResizeGrids(document, 96, 6));
    for (const int column : {31, 32, 95}) {
        EXPECT_EQ(document.note(column, 2), column == 31 ? "5" : "");
        EXPECT_EQ(document.technique(column, 2), column == 31 ? "v" : "");
        EXPECT_EQ(document.barMark(column), column == 31 ? "." : "");
    }
}

TEST(ResizeGrids, TheClipboardKeepsItsColumnsAndTakesTheNewRows) {
    Document document;
    makeDocument(document, 2, 2);
    document.ClipboardNotes.set(31, 11, document.pool.intern("12"));
    document.ClipboardTechniques.set(31, 5, document.pool.intern("h"));
    ASSERT_TRUE(ResizeGrids(document, 640, 24));
    EXPECT_EQ(document.ClipboardNotes.columns(), 32);
    EXPECT_EQ(document.ClipboardNotes.rows(), 24);
    EXPECT_EQ(document.pool.text(document.ClipboardNotes.at(31, 11)), "12");
    ASSERT_TRUE(ResizeGrids(document, 64, 6));
    ASSERT_TRUE(ResizeGrids(document, 64, 12));
    EXPECT_EQ(document.ClipboardNotes.at(31, 11), EmptyText);
    EXPECT_EQ(document.pool.text(document.ClipboardTechniques.at(31, 5)), "h");
}

TEST(ResizeGrids, TheClipboardsBarMarksFollowTheColumns) {
    Document document;
    makeDocument(document, 1, 2);
    document.ClipboardBarMarks[0] = document.pool.intern(".");
    document.ClipboardBarMarks[40] = document.pool.intern("r");
    ASSERT_TRUE(ResizeGrids(document, 32, 6));
    ASSERT_TRUE(ResizeGrids(document, 64, 6));
    EXPECT_EQ(document.pool.text(document.ClipboardBarMarks[0]), ".");
    EXPECT_EQ(document.ClipboardBarMarks[40], EmptyText);
}

TEST(ResizeGrids, TheSameSizesChangeNothing) {
    Document document;
    makeDocument(document, 2, 2);
    document.setNote(63, 11, "7");
    document.TuningTable[11] = 9;
    const std::string before = written(document);
    ASSERT_TRUE(ResizeGrids(document, 64, 12));
    EXPECT_EQ(written(document), before);
}

TEST(ResizeGrids, CountsOfTracksAndStavesAreTheCallersToSet) {
    Document document;
    makeDocument(document, 1, 1);
    ASSERT_TRUE(ResizeGrids(document, 96, 18));
    EXPECT_EQ(document.TrackCount, 1);
    EXPECT_EQ(document.StaffCount, 1);
}

TEST(AppendStaff, LeavesTheCursorTheClipboardAndTheTuning) {
    Document document;
    makeDocument(document, 2, 2);
    document.CurrentStaff = 2;
    document.CurrentTrack = 2;
    document.ColumnInStaff = 31;
    document.TuningTable[7] = 4;
    document.ClipboardNotes.set(3, 7, document.pool.intern("9"));
    ASSERT_TRUE(growByOneStaff(document));
    EXPECT_EQ(document.CurrentStaff, 2);
    EXPECT_EQ(document.CurrentTrack, 2);
    EXPECT_EQ(document.ColumnInStaff, 31);
    EXPECT_EQ(document.TuningTable.size(), 12u);
    EXPECT_EQ(document.TuningTable[7], 4);
    EXPECT_EQ(document.pool.text(document.ClipboardNotes.at(3, 7)), "9");
}

TEST(AppendStaff, ManyStavesKeepTheirCellsAndMarks) {
    Document document;
    makeDocument(document, 1, 1);
    for (int staff = 1; staff <= 300; ++staff) {
        document.setNote(staff * 32 - 1, 5, std::to_string(staff));
        document.setBarMark(staff * 32 - 1, ".");
        ASSERT_TRUE(growByOneStaff(document));
        ASSERT_EQ(document.ColumnCapacity, document.StaffCount * 32);
    }
    for (int staff = 1; staff <= 300; ++staff) {
        EXPECT_EQ(document.note(staff * 32 - 1, 5), std::to_string(staff));
        EXPECT_EQ(document.barMark(staff * 32 - 1), ".");
    }
}

TEST(AppendStaff, StopsWhereTheGridsWouldNotFit) {
    Document document;
    makeDocument(document, 32767, 10);
    EXPECT_FALSE(growByOneStaff(document));
    EXPECT_EQ(document.StaffCount, 10);
    EXPECT_EQ(document.ColumnCapacity, 320);
}

TEST(GetCurrentXPosition, ReachesTheLastColumnOfTheLargestDocument) {
    Document document;
    document.CurrentStaff = 32767;
    document.ColumnInStaff = 31;
    GetCurrentXPosition(document);
    EXPECT_EQ(document.CurrentColumn, 32767 * 32 - 1);
}

TEST(Cells, OutsideTheArraysAreEmptyAndTakeNothing) {
    Document document;
    makeDocument(document, 1, 1);
    const std::string before = written(document);
    for (const auto& [column, row] : {std::pair{-1, 0}, {32, 0}, {0, -1}, {0, 6}, {-100000, 100000}}) {
        document.setNote(column, row, "5");
        document.setTechnique(column, row, "h");
        EXPECT_EQ(document.note(column, row), "");
        EXPECT_EQ(document.technique(column, row), "");
    }
    for (const int column : {-1, 32, 1 << 30}) {
        document.setBarMark(column, ".");
        EXPECT_EQ(document.barMark(column), "");
    }
    EXPECT_EQ(written(document), before);
}

TEST(Cells, TakeAnyText) {
    Document document;
    makeDocument(document, 1, 1);
    for (const std::string& text : {std::string("30"), std::string("-1"), std::string("007"),
                                    std::string(" "), std::string("\0", 1), std::string(5000, 'q')}) {
        document.setNote(1, 1, text);
        document.setTechnique(1, 1, text);
        document.setBarMark(1, text);
        EXPECT_EQ(document.note(1, 1), text);
        EXPECT_EQ(document.technique(1, 1), text);
        EXPECT_EQ(document.barMark(1), text);
    }
}

TEST(Pool, FewTextsOfTheOldDocumentAreKept) {
    Document document;
    resetToNewDocument(document);
    const TextId id = document.pool.intern("own text");
    resetToNewDocument(document);
    EXPECT_EQ(document.pool.intern("own text"), id);
}

TEST(Pool, DocumentAfterDocumentOfOwnTextsDoesNotFillIt) {
    Document document;
    for (int round = 0; round < 5; ++round) {
        makeDocument(document, 10, 10);
        for (int cell = 0; cell < 320 * 60; ++cell)
            document.setNote(cell / 60, cell % 60, "round " + std::to_string(round * 100000 + cell));
        EXPECT_LT(document.pool.size(), 30'000u);
    }
    resetToNewDocument(document);
    EXPECT_LT(document.pool.size(), 4096u);
}

TEST(Pool, ItsEmptyingLeavesTheNewDocumentEmpty) {
    Document document, fresh;
    resetToNewDocument(fresh);
    makeDocument(document, 1, 300);
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        document.setNote(column, 0, "note " + std::to_string(column));
        document.setTechnique(column, 5, "technique " + std::to_string(column));
        document.setBarMark(column, "mark " + std::to_string(column));
    }
    resetToNewDocument(document);
    EXPECT_EQ(written(document), written(fresh));
    ASSERT_TRUE(ResizeGrids(document, 9600, 6));
    for (int column = 0; column < 9600; ++column)
        ASSERT_EQ(document.note(column, 0), "");
}

TEST(Clipboard, KeepsTextsOfEveryWidthWhenThePoolIsEmptied) {
    Document document;
    makeDocument(document, 200, 64);
    for (int cell = 0; cell < 70'000; ++cell)
        document.setNote(cell % 2048, cell / 2048, "own " + std::to_string(cell));
    for (int column = 0; column < 32; ++column)
        for (int row = 0; row < 6; ++row) {
            const std::string text = "own " + std::to_string((column * 6 + row) * 364);
            document.ClipboardNotes.set(column, row, document.pool.intern(text));
            document.ClipboardTechniques.set(31 - column, row, document.pool.intern(text));
        }
    resetToNewDocument(document);
    EXPECT_LT(document.pool.size(), 4096u);
    for (int column = 0; column < 32; ++column)
        for (int row = 0; row < 6; ++row) {
            const std::string text = "own " + std::to_string((column * 6 + row) * 364);
            EXPECT_EQ(document.pool.text(document.ClipboardNotes.at(column, row)), text);
            EXPECT_EQ(document.pool.text(document.ClipboardTechniques.at(31 - column, row)), text);
        }
}

TEST(Clipboard, SurvivesOpeningAFile) {
    Document document, other;
    makeDocument(other, 2, 2);
    makeDocument(document, 1, 1);
    document.ClipboardLength = 8;
    document.ClipboardNotes.set(7, 5, document.pool.intern("own text"));
    ASSERT_TRUE(readFrom(document, written(other)));
    EXPECT_EQ(document.ClipboardLength, 8);
    EXPECT_EQ(document.pool.text(document.ClipboardNotes.at(7, 5)), "own text");
    EXPECT_EQ(document.ClipboardNotes.rows(), 12);
}

} // namespace
} // namespace tabrova::testing
