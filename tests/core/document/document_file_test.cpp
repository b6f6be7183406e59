// The document file: its bytes, its round trips and its failures.
#include "tests/core/document/document_helpers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

namespace tabrova::testing {
namespace {

TEST(DocumentFile, ANewDocumentHas436Lines) {
    Document document;
    resetToNewDocument(document);
    const std::string bytes = written(document);
    std::string expected = "Untitled\r\nAnonymous\r\n1\r\n 480 \r\n\r\nFalse\r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n"
                           "Untitled Track\r\n127\r\nTrue\r\n24\r\n";
    for (int string = 0; string < 6; ++string)
        expected += " 13 \r\n";
    for (int cell = 0; cell < 192 + 192 + 32; ++cell)
        expected += "\r\n";
    EXPECT_EQ(bytes, expected);
    EXPECT_EQ(lines(bytes).size(), 436u);
}

TEST(DocumentFile, TwoTracksAndThreeStavesHaveTheirLines) {
    Document document;
    makeDocument(document, 2, 3);
    EXPECT_EQ(lines(written(document)).size(), 10u + 8 + 12 + 1152 + 1152 + 96);
}

TEST(DocumentFile, EachLineStandsAtItsPlace) {
    Document document;
    makeDocument(document, 2, 2);
    document.Title = "T";
    document.Author = "A";
    document.PreventReverberations = 0;
    document.Tempo = -5;
    document.Notes = "N";
    document.DoubleTime = True16;
    document.CurrentTrack = 2;
    document.CurrentStaff = 2;
    document.TrackNames = {"one", "two"};
    document.TrackVolumes = {"60", "61"};
    document.TrackInstruments = {"30", "31"};
    document.GuitarTrackFlags = {False16, True16};
    document.TuningTable[11] = -3;
    document.setNote(0, 0, "first");
    document.setNote(63, 11, "last");
    document.setNote(1, 2, "x");
    document.setTechnique(0, 0, "h");
    document.setBarMark(63, "r15");
    const std::vector<std::string> text = lines(written(document));
    const std::vector<std::string> header = {"T", "A", "0", "-5 ", "N", "True", " 2 ", " 2 ", " 2 ", " 2 "};
    EXPECT_EQ(std::vector<std::string>(text.begin(), text.begin() + 10), header);
    const std::vector<std::string> tracks = {"one", "60", "False", "30", "two", "61", "True", "31"};
    EXPECT_EQ(std::vector<std::string>(text.begin() + 10, text.begin() + 18), tracks);
    EXPECT_EQ(text[18], " 13 ");
    EXPECT_EQ(text[29], "-3 ");
    constexpr std::size_t Notes = 30, Techniques = Notes + 64 * 12, Marks = Techniques + 64 * 12;
    EXPECT_EQ(text[Notes], "first");
    EXPECT_EQ(text[Notes + 12 + 2], "x");
    EXPECT_EQ(text[Techniques - 1], "last");
    EXPECT_EQ(text[Techniques], "h");
    EXPECT_EQ(text[Marks + 63], "r15");
    EXPECT_EQ(text.size(), Marks + 64);
}

TEST(DocumentFile, OpeningBringsTheSameAndTheCursorToTrackAndStaffOne) {
    Document document;
    makeDocument(document, 3, 4);
    document.CurrentTrack = 3;
    document.CurrentStaff = 4;
    document.setNote(100, 17, "12");
    document.setTechnique(100, 17, "\xB2");
    Document opened;
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.CurrentTrack, 1);
    EXPECT_EQ(opened.CurrentStaff, 1);
    EXPECT_EQ(opened.HasFileName, False16);
    document.CurrentTrack = document.CurrentStaff = 1;
    EXPECT_EQ(written(opened), written(document));
}

TEST(DocumentFile, ATitleWithCommaAndQuotationMarkStands) {
    Document document, opened;
    resetToNewDocument(document);
    document.Title = "Black, \"White\" & blue";
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.Title, document.Title);
}

TEST(DocumentFile, DoubleStrikeIsASingleByte) {
    Document document;
    resetToNewDocument(document);
    document.setTechnique(0, 0, "\xB2");
    const auto text = lines(written(document));
    EXPECT_EQ(text[20 + 192], "\xB2");
}

TEST(DocumentFile, EveryByteValueSurvivesInACell) {
    Document document, opened;
    makeDocument(document, 1, 8);
    for (int byte = 0; byte < 256; ++byte) {
        document.setNote(byte, 1, std::string(1, static_cast<char>(byte)));
        document.setTechnique(byte, 2, "a" + std::string(1, static_cast<char>(byte)) + "b");
        document.setBarMark(byte, std::string(3, static_cast<char>(byte)));
    }
    const std::string bytes = written(document);
    ASSERT_TRUE(readFrom(opened, bytes));
    EXPECT_EQ(written(opened), bytes);
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(opened.note(byte, 1), std::string(1, static_cast<char>(byte))) << byte;
}

TEST(DocumentFile, NumbersAndBooleansMayBeWrittenInOtherForms) {
    Document document, opened;
    resetToNewDocument(document);
    std::string bytes = written(document);
    const std::string numbers = "\r\n1\r\n 480 \r\n\r\nFalse\r\n";
    bytes.replace(bytes.find(numbers), numbers.size(), "\r\n 1.4 \r\n4.8E2\r\n\r\n-1\r\n");
    bytes.replace(bytes.find("True"), 4, " 1 ");
    ASSERT_TRUE(readFrom(opened, bytes));
    EXPECT_EQ(opened.PreventReverberations, 1);
    EXPECT_EQ(opened.Tempo, 480);
    EXPECT_EQ(opened.DoubleTime, True16);
    EXPECT_EQ(opened.GuitarTrackFlags.front(), True16);
}

TEST(DocumentFile, TheSavedCursorLinesAreNotLookedAt) {
    Document document, opened;
    resetToNewDocument(document);
    std::vector<std::string> text = lines(written(document));
    text[7] = "no number";
    text[8] = "";
    std::string bytes;
    for (const std::string& line : text)
        bytes += line + "\r\n";
    EXPECT_TRUE(readFrom(opened, bytes));
}

TEST(DocumentFile, RandomDocumentsComeBackByteForByte) {
    std::mt19937 random(11);
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int run = 0; run < 40; ++run) {
        Document document, opened;
        makeDocument(document, 1 + choose(5), 1 + choose(5));
        for (int cell = choose(3000); cell > 0; --cell) {
            std::string text;
            for (int length = choose(run % 4 == 0 ? 40 : 3); length > 0; --length)
                text.push_back(static_cast<char>(32 + choose(223)));
            document.setNote(choose(document.ColumnCapacity - 1), choose(document.RowCapacity - 1), text);
            document.setTechnique(choose(document.ColumnCapacity - 1), choose(document.RowCapacity - 1),
                                  text);
            document.setBarMark(choose(document.ColumnCapacity - 1), text);
        }
        const std::string bytes = written(document);
        ASSERT_TRUE(readFrom(opened, bytes));
        ASSERT_EQ(written(opened), bytes);
    }
}

TEST(DocumentFile, ATextMoreThanAColumnCanCountStillSurvives) {
    Document document, opened;
    makeDocument(document, 200, 64);
    for (int column = 0; column < document.ColumnCapacity; ++column)
        for (int row = column % 7; row < document.RowCapacity; row += 30)
            document.setNote(column, row, "n" + std::to_string(column * 1200 + row));
    EXPECT_GT(document.pool.size(), 65536u);
    const std::string bytes = written(document);
    ASSERT_TRUE(readFrom(opened, bytes));
    EXPECT_TRUE(written(opened) == bytes);
}

TEST(Examples, ComeBackByteForByte) {
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TABROVA_SOURCE_DIR "/examples")) {
        if (entry.path().extension() != ".tr3") continue;
        ++examples;
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        Document document;
        ASSERT_TRUE(readFrom(document, bytes)) << entry.path();
        EXPECT_EQ(written(document), bytes) << entry.path();
    }
    EXPECT_GE(examples, 4);
}

TEST(DocumentFile, LineThreeIsDigitsAloneAndLineFourAPrintedNumber) {
    Document document;
    resetToNewDocument(document);
    document.PreventReverberations = 0;
    document.Tempo = 2000;
    EXPECT_EQ(lines(written(document))[2], "0");
    EXPECT_EQ(lines(written(document))[3], " 2000 ");
    document.PreventReverberations = -7;
    document.Tempo = -7;
    EXPECT_EQ(lines(written(document))[2], "-7");
    EXPECT_EQ(lines(written(document))[3], "-7 ");
}

TEST(DocumentFile, AnyFlagButZeroIsWrittenTrue) {
    Document document;
    resetToNewDocument(document);
    for (const int flag : {-1, 1, 2, 0}) {
        document.DoubleTime = static_cast<std::int16_t>(flag);
        EXPECT_EQ(lines(written(document))[5], flag == 0 ? "False" : "True");
    }
}

TEST(DocumentFile, ListsAreWrittenAsTheyStand) {
    Document document, opened;
    resetToNewDocument(document);
    document.TrackNames = {" a \"name\", with a comma "};
    document.TrackVolumes = {"loud"};
    document.TrackInstruments = {""};
    const std::vector<std::string> text = lines(written(document));
    EXPECT_EQ(text[10], " a \"name\", with a comma ");
    EXPECT_EQ(text[11], "loud");
    EXPECT_EQ(text[13], "");
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.TrackNames, document.TrackNames);
    EXPECT_EQ(opened.TrackVolumes, document.TrackVolumes);
    EXPECT_EQ(opened.TrackInstruments, document.TrackInstruments);
}

TEST(DocumentFile, TheCursorIsWrittenAndTheRestOfItsPlaceIsNot) {
    Document document;
    makeDocument(document, 2, 2);
    document.CurrentTrack = 2;
    document.CurrentStaff = 2;
    const std::string bytes = written(document);
    EXPECT_EQ(lines(bytes)[7], " 2 ");
    EXPECT_EQ(lines(bytes)[8], " 2 ");
    document.HasFileName = True16;
    document.ColumnInStaff = 9;
    document.CurrentString = 3;
    document.CurrentColumn = 41;
    document.TopStaff = 1;
    document.RealtimeMode = 2;
    document.ClipboardLength = 5;
    document.ClipboardNotes.set(0, 0, document.pool.intern("12"));
    EXPECT_EQ(written(document), bytes);
}

TEST(DocumentFile, EveryByteValueSurvivesInTheHeaderButForTheLineEnd) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\n') all.push_back(static_cast<char>(byte));
    all.push_back('\n');
    Document document, opened;
    resetToNewDocument(document);
    document.Title = document.Author = document.Notes = all;
    document.TrackNames = document.TrackVolumes = document.TrackInstruments = {all};
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.Title, all);
    EXPECT_EQ(opened.Author, all);
    EXPECT_EQ(opened.Notes, all);
    EXPECT_EQ(opened.TrackNames.front(), all);
    EXPECT_EQ(opened.TrackVolumes.front(), all);
    EXPECT_EQ(opened.TrackInstruments.front(), all);
}

TEST(DocumentFile, AFileOfPlainLfReadsLikeOneOfCrLf) {
    Document document, opened;
    makeDocument(document, 2, 2);
    document.setNote(40, 7, "12");
    document.setBarMark(63, "r2");
    const std::string bytes = written(document);
    std::string plain;
    for (const char c : bytes)
        if (c != '\r') plain.push_back(c);
    ASSERT_TRUE(readFrom(opened, plain));
    EXPECT_EQ(written(opened), bytes);
}

TEST(DocumentFile, TheLastLineNeedNotBeEnded) {
    Document document, opened;
    resetToNewDocument(document);
    document.setBarMark(31, "r4");
    std::string bytes = written(document);
    bytes.resize(bytes.size() - 2);
    ASSERT_TRUE(readFrom(opened, bytes));
    EXPECT_EQ(opened.barMark(31), "r4");
}

TEST(DocumentFile, WhatStandsBehindTheLastLineIsNotLookedAt) {
    Document document, opened;
    resetToNewDocument(document);
    const std::string bytes = written(document);
    ASSERT_TRUE(readFrom(opened, bytes + "more\r\nlines\r\n"));
    EXPECT_EQ(written(opened), bytes);
}

TEST(DocumentFile, OpeningReplacesALargerDocument) {
    Document document, opened;
    resetToNewDocument(document);
    makeDocument(opened, 4, 6);
    opened.setNote(100, 20, "7");
    opened.HasFileName = True16;
    opened.ColumnInStaff = 12;
    opened.CurrentString = 5;
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(written(opened), written(document));
    EXPECT_EQ(opened.ColumnCapacity, 32);
    EXPECT_EQ(opened.RowCapacity, 6);
    EXPECT_EQ(opened.HasFileName, False16);
    EXPECT_EQ(opened.ColumnInStaff, 0);
    EXPECT_EQ(opened.CurrentString, 0);
}

TEST(DocumentFile, LongRunsOfEmptyCellsKeepTheirLength) {
    for (const int column : {0, 1, 340, 341, 342, 682, 683, 2047}) {
        Document document, opened;
        makeDocument(document, 2, 64);
        document.setNote(column, column % 12, "9");
        const std::string bytes = written(document);
        EXPECT_EQ(documentText(document).size(), bytes.size());
        EXPECT_EQ(lines(bytes).size(), 10u + 8 + 12 + 2 * 2048 * 12 + 2048);
        EXPECT_EQ(lines(bytes)[30 + static_cast<std::size_t>(column * 12 + column % 12)], "9");
        ASSERT_TRUE(readFrom(opened, bytes));
        EXPECT_EQ(opened.note(column, column % 12), "9");
    }
}

TEST(DocumentFile, ATextLongerThanAnyBufferSurvives) {
    Document document, opened;
    resetToNewDocument(document);
    document.setNote(3, 3, std::string(1'000'000, 'n'));
    document.setNote(3, 4, "7");
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.note(3, 3).size(), 1'000'000u);
    EXPECT_EQ(opened.note(3, 4), "7");
}

} // namespace
} // namespace tabrova::testing
