// The document file: its bytes, its round trips and its failures.
#include "tests/core/document_helpers.h"

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

TEST(DocumentFile, ABinaryFileFailsAtTheFirstNumber) {
    Document document;
    EXPECT_FALSE(readFrom(document, std::string("\x7F"
                                                "ELF\x02\r\n\0\xFF\r\n\x01\x02\r\nrest",
                                                22)));
    EXPECT_EQ(document.Title, "\x7F"
                              "ELF\x02");
    EXPECT_EQ(document.Author, std::string("\0\xFF", 2));
    EXPECT_EQ(document.Tempo, 480);
    EXPECT_TRUE(document.TrackNames.empty());
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

TEST(DocumentFile, ANoteOfSeveralLinesStopsTheReaderAtItsSecondLine) {
    Document document, opened;
    resetToNewDocument(document);
    document.Notes = "first\r\nsecond";
    EXPECT_FALSE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.Notes, "first");
    EXPECT_EQ(opened.DoubleTime, False16);
    document.Notes = "first\r\nTrue";
    EXPECT_FALSE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.DoubleTime, True16);
}

Document& smallDocument(Document& document) {
    makeDocument(document, 2, 1);
    document.TrackNames[1] = "Second";
    for (int column = 0; column < 32; ++column) {
        document.setNote(column, column % 12, std::to_string(column));
        document.setTechnique(column, (column + 5) % 12, "h");
        document.setBarMark(column, ".");
    }
    return document;
}

TEST(DocumentFile, AFileCutBehindAnyLineKeepsAllBeforeTheCut) {
    Document document;
    const std::vector<std::string> text = lines(written(smallDocument(document)));
    for (std::size_t kept = 0; kept < text.size(); ++kept) {
        std::string bytes;
        for (std::size_t line = 0; line < kept; ++line)
            bytes += text[line] + "\r\n";
        Document opened;
        ASSERT_FALSE(readFrom(opened, bytes)) << kept;
        const bool sized = kept >= 18;
        EXPECT_EQ(opened.RowCapacity, sized ? 12 : 6) << kept;
        EXPECT_EQ(opened.TuningTable.size(), sized ? 12u : 6u) << kept;
        EXPECT_EQ(opened.TrackNames.size(), kept < 14 ? 0u : kept < 18 ? 1u : 2u) << kept;
        if (!sized) continue;
        const std::size_t notes = kept < 30 ? 0 : kept - 30;
        for (std::size_t cell = 0; cell < 32 * 12; ++cell)
            ASSERT_EQ(opened.note(static_cast<int>(cell / 12), static_cast<int>(cell % 12)),
                      cell < notes ? text[30 + cell] : "");
    }
}

TEST(DocumentFile, AFileCutAtAnyByteIsReadOrRefusedInSilence) {
    Document document;
    const std::string bytes = written(smallDocument(document));
    for (std::size_t kept = 0; kept < bytes.size(); kept += kept < 200 ? 1 : 13) {
        Document opened;
        readFrom(opened, bytes.substr(0, kept));
        written(opened);
    }
}

TEST(DocumentFile, AbsurdCountsAreAFailedRead) {
    struct Counts {
        const char* tracks;
        const char* staves;
    };
    for (const Counts& counts : {Counts{"0", "1"},
                                 {"-3", "1"},
                                 {"32768", "1"},
                                 {"1", "0"},
                                 {"1", "-1"},
                                 {"1", "40000"},
                                 {"12", "32767"},
                                 {"x", "1"},
                                 {"", "1"}}) {
        Document opened;
        std::string bytes = std::string("T\r\nA\r\n1\r\n 480 \r\n\r\nFalse\r\n") + counts.tracks +
                            "\r\n1\r\n1\r\n" + counts.staves + "\r\n";
        for (int track = 0; track < 3; ++track)
            bytes += "name\r\n127\r\nTrue\r\n24\r\n";
        EXPECT_FALSE(readFrom(opened, bytes));
        EXPECT_EQ(opened.ColumnCapacity, 32);
        EXPECT_EQ(opened.RowCapacity, 6);
        EXPECT_EQ(opened.Title, "T");
    }
}

TEST(DocumentFile, SavingCountsBeyondTheArraysWritesTheLinesUpToThere) {
    Document document;
    resetToNewDocument(document);
    document.TrackCount = 3;
    EXPECT_EQ(lines(written(document)).size(), 14u);
    document.TrackCount = 1;
    document.StaffCount = 9;
    EXPECT_EQ(lines(written(document)).size(), 20u + 192);
    document.TrackCount = -4;
    document.StaffCount = -4;
    EXPECT_EQ(lines(written(document)).size(), 10u);
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

class SavedFile : public ::testing::Test {
  protected:
    SavedFile() : folder_(std::filesystem::temp_directory_path() / "tabrova_saved_file_test") {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
        resetToNewDocument(document_);
    }
    ~SavedFile() override { std::filesystem::remove_all(folder_); }

    static std::string content(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder_;
    Document document_;
};

TEST_F(SavedFile, ReplacesALongerAndAShorterOldContent) {
    const auto path = folder_ / "song.tr3";
    for (const std::size_t old : {0u, 10u, 5000u, 700000u}) {
        std::ofstream(path, std::ios::binary) << std::string(old, 'z');
        ASSERT_TRUE(saveDocument(document_, path));
        EXPECT_EQ(content(path), written(document_));
    }
}

TEST_F(SavedFile, AMissingFolderLeavesTheDocumentWithoutAName) {
    EXPECT_FALSE(saveDocument(document_, folder_ / "missing" / "song.tr3"));
    EXPECT_EQ(document_.HasFileName, False16);
    EXPECT_FALSE(saveDocument(document_, folder_));
    EXPECT_EQ(document_.HasFileName, False16);
}

TEST_F(SavedFile, AFailingWriteKeepsTheName) {
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "this system has no device that is always full";
    EXPECT_FALSE(saveDocument(document_, "/dev/full"));
    EXPECT_EQ(document_.HasFileName, True16);
}

TEST_F(SavedFile, LeavesNoOtherFileBehind) {
    ASSERT_TRUE(saveDocument(document_, folder_ / "song.tr3"));
    int files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder_))
        ++files;
    EXPECT_EQ(files, 1);
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

} // namespace
} // namespace tabrova::testing
