// Fields and cells of documents of the previous generation that are no numbers, or odd ones.
#include "core/document/old_document.h"
#include "tests/core/document/document_helpers.h"
#include "tests/core/document/old_file_writer.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

class OldDocumentField : public ::testing::Test {
  protected:
    bool read(const std::string& bytes) {
        resetToNewDocument(document);
        return readOldDocument(document, bytes);
    }
    // With another text in the place of what the file holds there.
    bool readWith(std::size_t at, const std::string& text) { return read(withText(file.bytes(), at, text)); }

    Document document;
    OldFile file;
};

TEST_F(OldDocumentField, TheInstrumentIsAnyText) {
    for (const char* instrument : {"  0", "024", "abc", "   ", "-1 ", "\xFF\x80\x01"}) {
        ASSERT_TRUE(readWith(0, instrument));
        EXPECT_EQ(document.TrackInstruments, std::vector<std::string>{instrument});
    }
}

TEST_F(OldDocumentField, ASpeedThatIsNoNumberEndsTheReading) {
    for (const char* tempo : {"   ", "abc", "12x", "1 2", "--1", "  -", "1e9", "&H1", "0x1"}) {
        EXPECT_FALSE(readWith(OldTempoAt, tempo)) << tempo;
        EXPECT_EQ(document.TrackInstruments.front(), " 24");
        EXPECT_EQ(document.Tempo, 480);
        EXPECT_EQ(document.StaffCount, 1);
        EXPECT_EQ(document.ColumnInStaff, 0);
        EXPECT_EQ(document.Author, "Anonymous");
    }
}

TEST_F(OldDocumentField, ASpeedIsRoundedHalfToEven) {
    for (const auto& [tempo, value] : {std::pair{"1.5", 2},
                                       {"2.5", 2},
                                       {"-12", -12},
                                       {"5  ", 5},
                                       {" 5 ", 5},
                                       {"+45", 45},
                                       {"1e3", 1000},
                                       {"000", 0},
                                       {"999", 999}}) {
        EXPECT_TRUE(readWith(OldTempoAt, tempo)) << tempo;
        EXPECT_EQ(document.Tempo, value) << tempo;
    }
}

TEST_F(OldDocumentField, ANumberOfStavesThatIsNoneEndsTheReading) {
    file.tempo = 77;
    file.tuning = {1, 2, 3, 4, 5, 6};
    for (const char* staves : {"     ", "three", "1 1  ", "99999", "32768", "-4e4 ", "1e999", "1x   "}) {
        EXPECT_FALSE(readWith(OldStavesAt, staves)) << staves;
        EXPECT_EQ(document.Tempo, 77);
        EXPECT_EQ(document.StaffCount, 1) << staves;
        EXPECT_EQ(document.ColumnCapacity, 32);
        EXPECT_EQ(document.TuningTable, std::vector<std::int16_t>(6, 13));
    }
}

TEST_F(OldDocumentField, AFractionOfTheNumberOfStavesIsDropped) {
    file.cells = {{{0, 0, 0}, " 3"}};
    for (const char* staves : {"1.9  ", "1.5  ", " 1.0 ", "1.999", "  1. "}) {
        ASSERT_TRUE(readWith(OldStavesAt, staves)) << staves;
        EXPECT_EQ(document.StaffCount, 1) << staves;
        EXPECT_EQ(document.ColumnCapacity, 32);
        EXPECT_EQ(document.Title, "Old song");
    }
    EXPECT_FALSE(readWith(OldStavesAt, "12.9 "));
    EXPECT_EQ(document.StaffCount, 12);
    EXPECT_EQ(document.ColumnCapacity, 12 * 32);
    EXPECT_EQ(document.note(0, 0), "3");
}

TEST_F(OldDocumentField, TheMostStavesHaveRoomAndAreReadAsFarAsTheFileGoes) {
    file.cells = {{{0, 5, 31}, "21"}};
    EXPECT_FALSE(readWith(OldStavesAt, "32767"));
    EXPECT_EQ(document.StaffCount, 32767);
    EXPECT_EQ(document.ColumnCapacity, 32767 * 32);
    EXPECT_EQ(document.note(31, 5), "21");
}

TEST_F(OldDocumentField, WithoutStavesNothingIsReadBehindTheHeader) {
    file.tuning = {1, 2, 3, 4, 5, 6};
    for (const auto& [staves, count] : {std::pair{"    0", 0}, {"0.9  ", 0}, {"   -1", -1}, {"-3.9 ", -3}}) {
        EXPECT_FALSE(readWith(OldStavesAt, staves)) << staves;
        EXPECT_EQ(document.StaffCount, count);
        EXPECT_EQ(document.TuningTable, (std::vector<std::int16_t>{7, 6, 5, 4, 3, 2}));
        EXPECT_EQ(document.ColumnCapacity, 32);
        EXPECT_EQ(document.NoteGrid.columns(), 32);
        EXPECT_EQ(document.BarMarkRow.size(), 32u);
        EXPECT_EQ(document.ColumnInStaff, 0);
        EXPECT_EQ(document.Author, "Anonymous");
    }
}

TEST_F(OldDocumentField, ATuningThatIsNoNumberLeavesTheHigherStringsInStandardTuning) {
    file.tuning = {1, 2, 3, 4, 5, 6};
    file.staves = 2;
    for (int field = 0; field < 6; ++field)
        for (const char* tuning : {"  ", "ab", "1x", "- ", ". "}) {
            EXPECT_FALSE(readWith(OldTuningAt + 2 * static_cast<std::size_t>(field), tuning));
            std::vector<std::int16_t> expected(6, 13);
            for (int before = 0; before < field; ++before)
                expected[static_cast<std::size_t>(5 - before)] = static_cast<std::int16_t>(before + 2);
            EXPECT_EQ(document.TuningTable, expected) << field << " as " << tuning;
            EXPECT_EQ(document.StaffCount, 2);
            EXPECT_EQ(document.ColumnCapacity, 32);
        }
}

TEST_F(OldDocumentField, ATuningIsTheNextNumber) {
    for (const auto& [field, tuning] : {std::pair{"12", 13},
                                        {"0 ", 1},
                                        {"-1", 0},
                                        {"-9", -8},
                                        {"99", 100},
                                        {".5", 1},
                                        {"+5", 6},
                                        {" 7", 8}}) {
        ASSERT_TRUE(readWith(OldTuningAt, field)) << field;
        EXPECT_EQ(document.TuningTable[5], tuning) << field;
        EXPECT_EQ(document.TuningTable[4], 13);
    }
}

TEST_F(OldDocumentField, ACellThatIsNoNumberEndsTheReading) {
    file.cells = {{{0, 2, 4}, " 3"}, {{0, 0, 8}, " #"}, {{0, 2, 6}, " 4"}, {{0, 3, 0}, "11"}};
    for (const char* cell : {"> ", " >", "x ", " x", "# ", "##", "#>", ">#", "1x", "e1", "1e", "--", "+ ",
                             ". ", "-.", "1-", "\xB2 ", "\xA0 ", "\x01 "}) {
        EXPECT_FALSE(readWith(oldCellAt(0, 2, 5), cell)) << cell;
        EXPECT_EQ(document.note(4, 2), "3");
        EXPECT_EQ(document.note(5, 2), "");
        EXPECT_EQ(document.note(6, 2), "");
        EXPECT_EQ(document.note(0, 3), "");
        EXPECT_EQ(document.barMark(9), ".");
        EXPECT_EQ(document.ColumnInStaff, 5);
        EXPECT_EQ(document.Author, "Anonymous");
    }
}

TEST_F(OldDocumentField, ACellOfNulsEndsTheReading) {
    EXPECT_FALSE(readWith(oldCellAt(0, 0, 3), std::string(2, '\0')));
    EXPECT_EQ(document.ColumnInStaff, 3);
}

TEST_F(OldDocumentField, ALengthThatIsNoneEndsTheReading) {
    file.cells = {{{0, 0, 8}, " #"}, {{0, 1, 20}, " 4"}, {{0, 1, 21}, " 5"}};
    const std::size_t author = oldAuthorAt(1), title = author + 2 + file.author.size();
    for (const char* length : {"  ", "ab", "-1", "-9", "1x", "- "})
        for (const std::size_t at : {author, title}) {
            EXPECT_FALSE(readWith(at, length)) << length;
            EXPECT_EQ(document.Author, at == title ? "Ann" : "Anonymous");
            EXPECT_EQ(document.Title, "Untitled");
            // No gap is closed.
            EXPECT_EQ(document.barMark(9), ".");
            EXPECT_EQ(document.note(20, 1), "4");
            EXPECT_EQ(document.note(21, 1), "5");
            EXPECT_EQ(document.ColumnInStaff, 32);
        }
}

TEST_F(OldDocumentField, ALengthIsReadWithBlanksOrZeros) {
    for (const char* length : {" 3", "3 ", "03", "3.", "+3"}) {
        EXPECT_TRUE(readWith(oldAuthorAt(1), length)) << length;
        EXPECT_EQ(document.Author, "Ann");
        EXPECT_EQ(document.Title, "Old song");
    }
}

TEST_F(OldDocumentField, ALengthBeyondTheEndTakesWhatIsLeft) {
    const std::size_t author = oldAuthorAt(1), title = author + 2 + file.author.size();
    EXPECT_TRUE(readWith(title, "99"));
    EXPECT_EQ(document.Title, "Old song");
    EXPECT_FALSE(readWith(author, "99"));
    EXPECT_EQ(document.Author, "Ann 8Old song");
    EXPECT_EQ(document.Title, "Untitled");
}

} // namespace
} // namespace tabrova::testing
