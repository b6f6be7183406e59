// Documents of the previous generation: what each field and each cell becomes.
#include "core/document/old_document.h"
#include "tests/core/document/document_helpers.h"
#include "tests/core/document/old_file_writer.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

class OldDocument : public ::testing::Test {
  protected:
    bool read(const std::string& bytes) {
        resetToNewDocument(document);
        return readOldDocument(document, bytes);
    }
    // Cut before the author, so that the separators stand where they were read.
    void readStaves() {
        ASSERT_FALSE(read(file.bytes().substr(0, oldAuthorAt(file.staves))));
        ASSERT_EQ(document.ColumnInStaff, 32);
    }
    std::vector<int> marks() const {
        std::vector<int> columns;
        for (int column = 0; column < document.ColumnCapacity; ++column) {
            if (document.barMark(column).empty()) continue;
            EXPECT_EQ(document.barMark(column), ".");
            columns.push_back(column);
        }
        return columns;
    }
    // The notes of the first row from this column on, with blanks between them.
    std::string notesFrom(int column) const {
        std::string text;
        for (; column < document.ColumnCapacity; ++column)
            text += std::string(document.note(column, 0)) + " ";
        return text;
    }

    Document document;
    OldFile file;
};

TEST_F(OldDocument, TheHeaderSetsInstrumentSpeedStavesAndTuning) {
    file.instrument = 107;
    file.tempo = 251;
    file.staves = 3;
    file.tuning = {1, 2, 3, 14, 15, 16};
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.TrackInstruments, std::vector<std::string>{"107"});
    EXPECT_EQ(document.Tempo, 251);
    EXPECT_EQ(document.StaffCount, 3);
    EXPECT_EQ(document.TuningTable, (std::vector<std::int16_t>{17, 16, 15, 4, 3, 2}));
}

TEST_F(OldDocument, AuthorAndTitleStandBehindTheStavesInThisOrder) {
    file.author = "The author \xE9";
    file.title = std::string(99, 't');
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.Author, "The author \xE9");
    EXPECT_EQ(document.Title, std::string(99, 't'));
}

TEST_F(OldDocument, WithoutAuthorAndTitleBothAreEmpty) {
    file.author = file.title = "";
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.Author, "");
    EXPECT_EQ(document.Title, "");
}

TEST_F(OldDocument, WhatStandsBehindTheTitleIsLeft) {
    ASSERT_TRUE(read(file.bytes() + " 5 more"));
    EXPECT_EQ(document.Title, "Old song");
}

TEST_F(OldDocument, TheGridsHave32ColumnsAStaffAndSixRows) {
    file.staves = 4;
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.ColumnCapacity, 128);
    EXPECT_EQ(document.RowCapacity, 6);
    EXPECT_EQ(document.NoteGrid.columns(), 128);
    EXPECT_EQ(document.TechniqueGrid.columns(), 128);
    EXPECT_EQ(document.BarMarkRow.size(), 128u);
    EXPECT_EQ(document.TuningTable.size(), 6u);
}

TEST_F(OldDocument, EverythingElseIsThatOfANewDocument) {
    file.cells = {{{0, 1, 4}, " 7"}, {{0, 2, 9}, " #"}};
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.HasFileName, False16);
    EXPECT_EQ(document.DoubleTime, False16);
    EXPECT_EQ(document.Notes, "");
    EXPECT_EQ(document.PreventReverberations, 1);
    EXPECT_EQ(document.TrackCount, 1);
    EXPECT_EQ(document.CurrentTrack, 1);
    EXPECT_EQ(document.CurrentStaff, 1);
    EXPECT_EQ(document.CurrentString, 0);
    EXPECT_EQ(document.TopStaff, 0);
    EXPECT_EQ(document.TrackNames, std::vector<std::string>{"Untitled Track"});
    EXPECT_EQ(document.TrackVolumes, std::vector<std::string>{"127"});
    EXPECT_EQ(document.GuitarTrackFlags, std::vector<std::int16_t>{True16});
    for (int column = 0; column < 32; ++column)
        for (int row = 0; row < 6; ++row)
            EXPECT_EQ(document.technique(column, row), "");
}

TEST_F(OldDocument, EveryCellOfAllStavesHasItsPlace) {
    const auto fret = [](int staff, int row, int column) { return (staff * 17 + row * 31 + column) % 100; };
    file.staves = 3;
    for (int staff = 0; staff < 3; ++staff)
        for (int row = 0; row < 6; ++row)
            for (int column = 0; column < 32; ++column)
                file.cells[{staff, row, column}] = oldField(fret(staff, row, column), 2);
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.Author, "Ann");
    for (int column = 0; column < 96; ++column)
        for (int row = 0; row < 6; ++row)
            ASSERT_EQ(document.note(column, row), std::to_string(fret(column / 32, row, column % 32)));
}

TEST_F(OldDocument, ACellBecomesThePlainWholePartOfItsNumber) {
    for (const auto& [cell, note] : std::vector<std::pair<std::string, std::string>>{{">>", ""},
                                                                                     {"  ", ""},
                                                                                     {" 0", "0"},
                                                                                     {"0 ", "0"},
                                                                                     {"00", "0"},
                                                                                     {" 7", "7"},
                                                                                     {"7 ", "7"},
                                                                                     {"07", "7"},
                                                                                     {"12", "12"},
                                                                                     {"29", "29"},
                                                                                     {"99", "99"},
                                                                                     {"+5", "5"},
                                                                                     {"5.", "5"},
                                                                                     {".5", "0"},
                                                                                     {".9", "0"},
                                                                                     {"-3", "-3"},
                                                                                     {"-0", "0"}}) {
        file.cells[{0, 3, 11}] = cell;
        ASSERT_TRUE(read(file.bytes())) << cell;
        EXPECT_EQ(document.note(11, 3), note) << cell;
        EXPECT_EQ(document.Title, "Old song") << cell;
        EXPECT_TRUE(marks().empty()) << cell;
    }
}

TEST_F(OldDocument, FillersMayBeAnyCharacter) {
    file.cells = {{{0, 0, 0}, " 3"}, {{0, 5, 31}, "14"}};
    for (const char filler : {' ', '9', '#', '>', '"', '\0', '\xFF'}) {
        file.filler = filler;
        ASSERT_TRUE(read(file.bytes()));
        EXPECT_EQ(document.note(0, 0), "3");
        EXPECT_EQ(document.note(31, 5), "14");
        EXPECT_EQ(document.Title, "Old song");
        EXPECT_TRUE(marks().empty());
    }
}

TEST_F(OldDocument, WithoutSeparatorsTheCursorsColumnStandsBehindTheStaff) {
    file.cells = {{{0, 0, 0}, " 3"}};
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.ColumnInStaff, 32);
    file.staves = 3;
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(document.ColumnInStaff, 32);
}

TEST_F(OldDocument, ASeparatorBecomesABarMarkOnTheNextColumn) {
    file.staves = 2;
    for (int row = 0; row < 6; ++row) {
        file.cells = {{{0, row, 0}, " #"}, {{1, row, 30}, " #"}};
        readStaves();
        EXPECT_EQ(marks(), (std::vector<int>{1, 63})) << row;
        EXPECT_EQ(document.note(0, row), "");
        EXPECT_EQ(document.note(1, row), "");
    }
}

TEST_F(OldDocument, ASeparatorBehindAStaffStandsInTheNextOnesFirstColumn) {
    file.staves = 2;
    file.cells = {{{0, 0, 31}, " #"}, {{1, 0, 0}, " 4"}, {{1, 0, 1}, " 5"}};
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(marks(), std::vector<int>{32});
    EXPECT_EQ(document.note(32, 0), "4");
    EXPECT_EQ(document.note(33, 0), "5");
    // Its gap is of one column: no walk took the cursor along.
    EXPECT_EQ(document.ColumnInStaff, 32);
}

TEST_F(OldDocument, ASeparatorInTheLastColumnEndsTheReading) {
    file.staves = 2;
    file.cells = {{{1, 2, 5}, " 8"}, {{1, 2, 6}, " #"}, {{1, 2, 31}, " #"}, {{1, 3, 0}, " 9"}};
    EXPECT_FALSE(read(file.bytes()));
    EXPECT_EQ(document.note(37, 2), "8");
    EXPECT_EQ(document.note(32, 3), "");
    EXPECT_EQ(marks(), std::vector<int>{39});
    EXPECT_EQ(document.ColumnInStaff, 31);
    EXPECT_EQ(document.Author, "Anonymous");
}

TEST_F(OldDocument, TheGapOfASeparatorIsAsWideAsTheRestOfItsStaff) {
    file.cells = {
        {{0, 0, 27}, " 1"}, {{0, 0, 28}, " #"}, {{0, 0, 29}, " 3"}, {{0, 0, 30}, " 4"}, {{0, 0, 31}, " 5"}};
    readStaves();
    EXPECT_EQ(notesFrom(26), " 1  3 4 5 ");
    EXPECT_EQ(marks(), std::vector<int>{29});
    // Three steps: the first one takes the mark and 4 away, the others move what is left.
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(notesFrom(26), " 1  5 5 5 ");
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(document.ColumnInStaff, 0);
}

TEST_F(OldDocument, ASeparatorOnTheLastColumnButOneStaysAndTakesTheCursorHome) {
    file.cells = {{{0, 0, 29}, " 3"}, {{0, 0, 30}, " #"}, {{0, 0, 31}, " 5"}};
    ASSERT_TRUE(read(file.bytes()));
    EXPECT_EQ(notesFrom(29), "3  5 ");
    EXPECT_EQ(marks(), std::vector<int>{31});
    EXPECT_EQ(document.ColumnInStaff, 0);
}

// Two marks side by side, of which a walk of one step takes one. The second mark's own walk has no step.
TEST_F(OldDocument, EachStringThatHoldsASeparatorHasItsWalk) {
    file.staves = 2;
    for (int column = 0; column < 6; ++column)
        file.cells[{1, 0, column}] = std::to_string(column + 1) + " ";
    file.cells[{0, 0, 31}] = " #";
    for (int strings = 1; strings <= 6; ++strings) {
        file.cells[{0, strings - 1, 30}] = " #";
        readStaves();
        EXPECT_EQ(marks(), (std::vector<int>{31, 32}));
        ASSERT_TRUE(read(file.bytes()));
        const std::string notes = notesFrom(32);
        EXPECT_EQ(notes.substr(0, notes.find("  ")), strings == 1 ? "1 3 4 5 6" : "3 4 5 6") << strings;
        EXPECT_EQ(marks(), strings == 1 ? std::vector<int>{31} : std::vector<int>{}) << strings;
        EXPECT_EQ(document.ColumnInStaff, 0);
    }
}

} // namespace
} // namespace tabrova::testing
