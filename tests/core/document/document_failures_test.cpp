// Files that are no documents, or not whole ones: how far the reading comes and what stands there afterwards.
#include "tests/core/document/document_helpers.h"

#include <gtest/gtest.h>

#include <random>

namespace tabrova::testing {
namespace {

std::string joined(const std::vector<std::string>& text, std::size_t count) {
    std::string bytes;
    for (std::size_t line = 0; line < count; ++line)
        bytes += text[line] + "\r\n";
    return bytes;
}

std::string joined(const std::vector<std::string>& text) { return joined(text, text.size()); }

TEST(DocumentFile, ABinaryFileFailsAtTheFirstNumber) {
    Document document;
    constexpr char Bytes[] = "\x7F"
                             "ELF\x02\r\n\0\xFF\r\n\x01\x02\r\nrest";
    EXPECT_FALSE(readFrom(document, std::string(Bytes, sizeof Bytes - 1)));
    EXPECT_EQ(document.Title, "\x7F"
                              "ELF\x02");
    EXPECT_EQ(document.Author, std::string("\0\xFF", 2));
    EXPECT_EQ(document.Tempo, 480);
    EXPECT_TRUE(document.TrackNames.empty());
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

// Only a cut inside the last line end leaves a whole file; whatever else is left is refused, shows nothing
// that did not stand before the cut, and can be saved and read again.
TEST(DocumentFile, AFileCutAtAnyByteIsReadOrRefusedInSilence) {
    Document document;
    const std::string bytes = written(smallDocument(document));
    const std::size_t whole = bytes.size() - 2;
    for (std::size_t kept = 0; kept <= bytes.size();
         kept += kept < 200 || kept + 20 > bytes.size() ? 1 : 13) {
        Document opened, again;
        // The last line is a bar mark of one sign: without it the line is not there.
        ASSERT_EQ(readFrom(opened, bytes.substr(0, kept)), kept >= whole) << kept;
        for (int column = 0; column < opened.ColumnCapacity; ++column)
            for (int row = 0; row < opened.RowCapacity; ++row) {
                const std::string_view note = opened.note(column, row);
                ASSERT_TRUE(document.note(column, row).starts_with(note)) << kept;
            }
        const std::string saved = written(opened);
        if (kept >= whole) {
            ASSERT_EQ(saved, bytes) << kept;
        }
        readFrom(again, saved);
        ASSERT_EQ(written(again), saved) << kept;
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

TEST(DocumentFile, AFileCutBehindAnyLineKeepsTuningTechniquesAndMarksBeforeTheCut) {
    Document document;
    smallDocument(document);
    for (std::size_t row = 0; row < 12; ++row)
        document.TuningTable[row] = static_cast<std::int16_t>(20 + row);
    const std::vector<std::string> text = lines(written(document));
    constexpr std::size_t Tuning = 18, Techniques = 30 + 32 * 12, Marks = Techniques + 32 * 12;
    for (std::size_t kept = Tuning; kept < text.size(); ++kept) {
        Document opened;
        ASSERT_FALSE(readFrom(opened, joined(text, kept))) << kept;
        for (std::size_t row = 0; row < 12 && Tuning + row < kept; ++row)
            ASSERT_EQ(opened.TuningTable[row], 20 + static_cast<int>(row)) << kept;
        for (std::size_t cell = 0; cell < 32 * 12; ++cell)
            ASSERT_EQ(opened.technique(static_cast<int>(cell / 12), static_cast<int>(cell % 12)),
                      Techniques + cell < kept ? text[Techniques + cell] : "")
                << kept;
        for (std::size_t column = 0; column < 32; ++column)
            ASSERT_EQ(opened.barMark(static_cast<int>(column)),
                      Marks + column < kept ? text[Marks + column] : "")
                << kept;
    }
}

TEST(DocumentFile, AFileCutInItsNotesIsStillUsable) {
    Document document, opened, again;
    const std::vector<std::string> text = lines(written(smallDocument(document)));
    ASSERT_FALSE(readFrom(opened, joined(text, 100)));
    opened.setNote(31, 11, "29");
    ASSERT_TRUE(growByOneStaff(opened));
    ASSERT_TRUE(readFrom(again, written(opened)));
    EXPECT_EQ(again.note(31, 11), "29");
    EXPECT_EQ(again.StaffCount, 2);
}

TEST(DocumentFile, AnEmptyFileLeavesANewDocumentWithoutTracksInItsLists) {
    Document opened;
    EXPECT_FALSE(readFrom(opened, ""));
    EXPECT_EQ(opened.Title, "Untitled");
    EXPECT_EQ(opened.TrackCount, 1);
    EXPECT_EQ(opened.ColumnCapacity, 32);
    EXPECT_TRUE(opened.TrackNames.empty());
    EXPECT_TRUE(opened.TrackVolumes.empty());
    EXPECT_TRUE(opened.TrackInstruments.empty());
}

TEST(DocumentFile, AFailedReadLeavesNoFileName) {
    Document opened;
    opened.HasFileName = True16;
    EXPECT_FALSE(readFrom(opened, "only\r\ntwo lines"));
    EXPECT_EQ(opened.HasFileName, False16);
}

TEST(DocumentFile, EveryNumberOfTheHeaderStopsTheReaderIfItDoesNotConvert) {
    Document document;
    const std::vector<std::string> text = lines(written(smallDocument(document)));
    for (const std::size_t line : {2u, 3u, 5u, 6u, 9u, 12u, 18u, 29u})
        for (const char* bad : {"", " ", "x", "1 2", "4,8", "0x1", "\xB2"}) {
            std::vector<std::string> other = text;
            other[line] = bad;
            Document opened;
            EXPECT_FALSE(readFrom(opened, joined(other))) << line << " as '" << bad << "'";
            EXPECT_EQ(opened.Title, "Untitled");
            EXPECT_EQ(opened.note(0, 0), "");
        }
}

TEST(DocumentFile, AnIntegerOfMoreThanSixteenBitsStopsTheReader) {
    Document document;
    const std::vector<std::string> text = lines(written(smallDocument(document)));
    for (const std::size_t line : {2u, 3u, 6u, 9u, 18u, 29u})
        for (const char* bad : {" 32768 ", "-32769", "1e9", "1e400"}) {
            std::vector<std::string> other = text;
            other[line] = bad;
            Document opened;
            EXPECT_FALSE(readFrom(opened, joined(other))) << line << " as '" << bad << "'";
        }
}

TEST(DocumentFile, AFieldWhoseLineDoesNotConvertKeepsTheNewDocumentsValue) {
    Document document, opened;
    resetToNewDocument(document);
    std::vector<std::string> text = lines(written(document));
    text[2] = "0";
    text[3] = "fast";
    text[4] = "never read";
    ASSERT_FALSE(readFrom(opened, joined(text)));
    EXPECT_EQ(opened.PreventReverberations, 0);
    EXPECT_EQ(opened.Tempo, 480);
    EXPECT_EQ(opened.Notes, "");
}

TEST(DocumentFile, ATrackWhoseFlagDoesNotConvertLeavesTheTracksBeforeIt) {
    Document document, opened;
    makeDocument(document, 3, 1);
    document.TrackNames = {"first", "second", "third"};
    document.GuitarTrackFlags = {False16, True16, True16};
    std::vector<std::string> text = lines(written(document));
    text[10 + 4 * 2 + 2] = "perhaps";
    ASSERT_FALSE(readFrom(opened, joined(text)));
    EXPECT_EQ(opened.TrackCount, 3);
    EXPECT_GE(opened.TrackNames.size(), 2u);
    EXPECT_EQ(opened.TrackNames[1], "second");
    EXPECT_EQ(opened.GuitarTrackFlags, (std::vector<std::int16_t>{False16, True16, False16}));
    EXPECT_EQ(opened.RowCapacity, 6);
}

TEST(DocumentFile, ATuningThatDoesNotConvertKeepsThoseBeforeIt) {
    Document document, opened;
    makeDocument(document, 1, 2);
    document.TuningTable = {1, 2, 3, 4, 5, 6};
    std::vector<std::string> text = lines(written(document));
    text[14 + 3] = "low";
    ASSERT_FALSE(readFrom(opened, joined(text)));
    EXPECT_EQ(opened.TuningTable[0], 1);
    EXPECT_EQ(opened.TuningTable[2], 3);
    EXPECT_EQ(opened.ColumnCapacity, 64);
}

TEST(DocumentFile, CellsAreNeverValidated) {
    Document document, opened;
    resetToNewDocument(document);
    document.setNote(0, 0, "no fret at all");
    document.setTechnique(0, 0, "qq");
    document.setBarMark(0, "r99");
    ASSERT_TRUE(readFrom(opened, written(document)));
    EXPECT_EQ(opened.note(0, 0), "no fret at all");
    EXPECT_EQ(opened.technique(0, 0), "qq");
    EXPECT_EQ(opened.barMark(0), "r99");
}

TEST(DocumentFile, TheLargestCountsAllocateNothingLarge) {
    std::string bytes = "T\r\nA\r\n1\r\n 480 \r\n\r\nFalse\r\n 32767 \r\n 1 \r\n 1 \r\n 32767 \r\n";
    for (int track = 0; track < 32767; ++track)
        bytes += "n\r\n1\r\nTrue\r\n2\r\n";
    Document opened;
    EXPECT_FALSE(readFrom(opened, bytes));
    EXPECT_EQ(opened.TrackCount, 32767);
    EXPECT_EQ(opened.StaffCount, 32767);
    EXPECT_EQ(opened.TrackNames.size(), 32767u);
    EXPECT_EQ(opened.ColumnCapacity, 32);
    EXPECT_EQ(opened.RowCapacity, 6);
    EXPECT_LT(opened.TuningTable.capacity(), 100u);
    EXPECT_LT(opened.BarMarkRow.capacity(), 100'000u);
}

TEST(DocumentFile, ManyTracksOnFewStavesAreNoAbsurdCounts) {
    Document document, opened;
    makeDocument(document, 1024, 2);
    document.setNote(63, 6143, "12");
    const std::string bytes = written(document);
    ASSERT_TRUE(readFrom(opened, bytes));
    EXPECT_EQ(opened.RowCapacity, 6144);
    EXPECT_TRUE(written(opened) == bytes);
}

TEST(DocumentFile, AFailedReadCanBeWrittenWithItsCounts) {
    Document opened;
    ASSERT_FALSE(readFrom(opened, "T\r\nA\r\n1\r\n5\r\n\r\nFalse\r\n7\r\n1\r\n1\r\n9\r\nname\r\n"));
    EXPECT_EQ(opened.TrackCount, 7);
    EXPECT_EQ(opened.StaffCount, 9);
    EXPECT_EQ(lines(written(opened)).size(), 10u);
}

TEST(DocumentFile, CountsBeyondTheArraysGiveTheLinesUpToTheFirstMissingEntry) {
    Document document;
    makeDocument(document, 2, 1);
    document.TrackVolumes.pop_back();
    EXPECT_EQ(lines(written(document)).size(), 10u + 4 + 1);
    makeDocument(document, 2, 1);
    document.GuitarTrackFlags.pop_back();
    EXPECT_EQ(lines(written(document)).size(), 10u + 4 + 2);
    makeDocument(document, 2, 1);
    document.TrackInstruments.pop_back();
    EXPECT_EQ(lines(written(document)).size(), 10u + 4 + 3);
    makeDocument(document, 2, 1);
    document.TuningTable.resize(7);
    EXPECT_EQ(lines(written(document)).size(), 10u + 8 + 7);
}

TEST(DocumentFile, RowsBeyondTheGridEndTheWritingInItsFirstColumn) {
    Document document;
    makeDocument(document, 2, 1);
    document.NoteGrid.resize(32, 6);
    EXPECT_EQ(lines(written(document)).size(), 10u + 8 + 12 + 6);
}

TEST(DocumentFile, DamagedFilesAreReadOrRefusedWithSizesThatFit) {
    std::mt19937 random(5);
    const auto choose = [&random](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(random);
    };
    Document document;
    const std::string bytes = written(smallDocument(document));
    const std::string_view signs = "\r\n 0123456789-x.eT\xFF";
    for (int run = 0; run < 3000; ++run) {
        std::string damaged = bytes;
        for (std::size_t changes = 1 + choose(3); changes > 0; --changes) {
            const std::size_t at = choose(1) ? choose(120) : choose(damaged.size() - 1);
            if (choose(2) == 0)
                damaged.erase(at, 1 + choose(4));
            else if (choose(1))
                damaged.insert(at, 1, signs[choose(signs.size() - 1)]);
            else
                damaged[at] = signs[choose(signs.size() - 1)];
        }
        Document opened;
        readFrom(opened, damaged);
        ASSERT_EQ(opened.NoteGrid.columns(), opened.ColumnCapacity);
        ASSERT_EQ(opened.TechniqueGrid.rows(), opened.RowCapacity);
        ASSERT_EQ(static_cast<int>(opened.BarMarkRow.size()), opened.ColumnCapacity);
        ASSERT_EQ(static_cast<int>(opened.TuningTable.size()), opened.RowCapacity);
    }
}

} // namespace
} // namespace tabrova::testing
