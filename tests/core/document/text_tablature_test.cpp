// The text of the current track, line by line.
#include "core/document/document_operations.h"
#include "core/document/text_tablature.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tabrova::testing {
namespace {

class TextTablature : public ::testing::Test {
  protected:
    TextTablature() { resetToNewDocument(document); }

    void resize(int staves, int tracks) {
        document.StaffCount = static_cast<std::int16_t>(staves);
        document.TrackCount = static_cast<std::int16_t>(tracks);
        ResizeGrids(document, staves * ColumnsPerStaff, tracks * StringsPerTrack);
        document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
        document.TrackNames.assign(static_cast<std::size_t>(tracks), "Track");
    }

    std::string bytes() const {
        std::ostringstream text;
        textTablature(document, heading).writeTo(text);
        return text.str();
    }

    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        std::string rest = bytes();
        for (std::size_t end = rest.find("\r\n"); end != std::string::npos; end = rest.find("\r\n")) {
            all.push_back(rest.substr(0, end));
            rest.erase(0, end + 2);
        }
        EXPECT_EQ(rest, ""); // the last line is ended too
        return all;
    }

    // Of a block: its six strings, its marks and its blank line.
    std::vector<std::string> block(std::size_t number) const {
        const auto all = lines();
        const auto first = all.begin() + static_cast<std::ptrdiff_t>(7 + 8 * number);
        return {first, first + 8};
    }
    std::string line(std::size_t row, std::size_t blockNumber = 0) const { return block(blockNumber)[row]; }

    // Of a line of strings or of marks: what stands at a column of the block. The marks' first five
    // characters are cut off.
    std::string cell(std::size_t column, std::size_t row = 0) const {
        return line(row).substr(6 * column, 6);
    }
    std::string mark(std::size_t column) const { return ("     " + line(6)).substr(6 * column, 6); }

    Document document;
    TablatureHeading heading{"https://a.b", "22.11.26", "E A D G B E", "Patch: Guitar"};
};

TEST_F(TextTablature, TheHeadingHasSevenLines) {
    document.Title = "Tune, \"quoted\"";
    document.Author = "M\xFCller";
    document.TrackNames = {"Lead"};
    const auto all = lines();
    const std::vector<std::string> expected = {
        "Tune, \"quoted\" by M\xFCller - Created with Tabrova 3 (https://a.b)",
        "22.11.26",
        " ",
        "Tempo: 480",
        "Track: Lead",
        "Tuning: E A D G B E",
        "Instrument: Patch: Guitar"};
    EXPECT_EQ(std::vector(all.begin(), all.begin() + 7), expected);
}

TEST_F(TextTablature, DoubleTimeDoublesTheTempo) {
    document.Tempo = 2000;
    document.DoubleTime = True16;
    EXPECT_EQ(lines()[3], "Tempo: 4000");
    document.Tempo = 32767;
    EXPECT_EQ(lines()[3], "Tempo: 65534");
}

TEST_F(TextTablature, APercussionTrackHasNoInstrument) {
    document.GuitarTrackFlags = {False16};
    EXPECT_EQ(lines()[5], "Tuning: E A D G B E");
    EXPECT_EQ(lines()[6], "Percussion.");
    document.setNote(0, 2, "42");
    document.setNote(1, 2, "8");
    EXPECT_EQ(line(2).substr(0, 12), "-42----8----");
}

TEST_F(TextTablature, AnEmptyStaffIsTwoBlocksOfEightLines) {
    std::string empty;
    for (int column = 0; column < 16; ++column)
        empty += "------";
    const std::vector<std::string> expected = {empty, empty, empty, empty, empty, empty, std::string(91, ' '),
                                               " "};
    ASSERT_EQ(lines().size(), 7U + 2 * 8);
    EXPECT_EQ(block(0), expected);
    EXPECT_EQ(block(1), expected);
}

TEST_F(TextTablature, HasTwoBlocksForEachStaff) {
    for (const int staves : {2, 3, 21}) {
        resize(staves, 1);
        EXPECT_EQ(lines().size(), 7U + 16 * static_cast<std::size_t>(staves));
    }
}

TEST_F(TextTablature, EachColumnStandsInItsBlock) {
    resize(2, 1);
    for (int column = 0; column < 64; ++column)
        document.setNote(column, 0, std::to_string(column % 30));
    for (std::size_t column = 0; column < 64; ++column) {
        std::string fret = std::to_string(column % 30);
        if (fret.size() == 1) fret += "-";
        EXPECT_EQ(line(0, column / 16).substr(column % 16 * 6, 6), "-" + fret + "---") << column;
    }
}

TEST_F(TextTablature, EachStringHasItsLine) {
    for (int row = 0; row < 6; ++row)
        document.setNote(row, row, std::to_string(row));
    for (std::size_t row = 0; row < 6; ++row) {
        std::string expected(96, '-');
        expected[row * 6 + 1] = static_cast<char>('0' + row);
        EXPECT_EQ(line(row), expected);
    }
}

TEST_F(TextTablature, ShowsTheCurrentTrack) {
    resize(1, 3);
    document.TrackNames = {"one", "two", "three"};
    document.setNote(0, 8, "7");
    document.CurrentTrack = 2;
    EXPECT_EQ(lines()[4], "Track: two");
    EXPECT_EQ(cell(0, 2), "-7----");
    document.CurrentTrack = 1;
    EXPECT_EQ(cell(0, 2), "------");
}

TEST_F(TextTablature, ANoteIsFilledToTwoCharacters) {
    const std::pair<const char*, const char*> rows[] = {{"", "------"},  {"5", "-5----"}, {"12", "-12---"},
                                                        {"x", "-x----"}, {">", "->----"}, {"123", "-123---"},
                                                        {" ", "- ----"}, {"-1", "--1---"}};
    for (const auto& [note, shown] : rows) {
        document.setNote(0, 0, note);
        EXPECT_EQ(line(0).substr(0, std::string(shown).size()), shown) << note;
    }
}

// No text is cut; what stands behind a longer one moves to the right.
TEST_F(TextTablature, ALongerTextMovesTheRestOfItsLine) {
    document.setNote(0, 0, "123");
    document.setTechnique(0, 0, "b4.55");
    document.setNote(1, 0, "7");
    EXPECT_EQ(line(0).substr(0, 16), "-123b4.55--7----");
    EXPECT_EQ(line(0).size(), 96U + 1 + 3);
    EXPECT_EQ(line(1).size(), 96U);
}

TEST_F(TextTablature, TechniquesStandBehindTheNote) {
    const std::pair<const char*, const char*> rows[] = {
        {"h", "h-"},      {"s", "s-"},       {"v", "v-"},    {"w", "w-"},          {"d", "d-"},
        {"g", "g-"},      {"m", "m-"},       {"f", "f-"},    {"t", "t-"},          {"l", "l-"},
        {"o", "o-"},      {"r", "r-"},       {".", ".-"},    {"\xB2", "\xB2-"},    {"b0.5", "b\xBD"},
        {"b1.0", "b1"},   {"b1.5", "B\xBD"}, {"b2.0", "B2"}, {"b2.5", "\xDF\xBD"}, {"b3.0", "B3"},
        {"p0.5", "p0.5"}, {"p3.0", "p3.0"},  {"b", "b-"},    {"b0.50", "b0.50"},   {"B1.0", "B1.0"}};
    for (const auto& [technique, shown] : rows) {
        document.setNote(3, 1, "5");
        document.setTechnique(3, 1, technique);
        EXPECT_EQ(line(1).substr(18, 4 + std::string(shown).size()), "-5-" + std::string(shown) + "-")
            << technique;
    }
}

TEST_F(TextTablature, AMarkPutsABarBeforeItsColumn) {
    for (const char* mark : {".", "r", "r1", "r15", "other"}) {
        document.setBarMark(2, mark);
        for (std::size_t row = 0; row < 6; ++row) {
            std::string expected(96, '-');
            expected[12] = '|';
            EXPECT_EQ(line(row), expected) << mark;
        }
    }
}

TEST_F(TextTablature, MarksStandBelowTheBarThatEndsTheirCell) {
    for (int repeats = 1; repeats <= 15; ++repeats) {
        document.setBarMark(4, "r" + std::to_string(repeats));
        const std::string passes = "x" + std::to_string(repeats + 1);
        EXPECT_EQ(mark(4), std::string(6 - passes.size(), ' ') + passes);
        EXPECT_EQ(line(6), std::string(25 - passes.size(), ' ') + passes + std::string(66, ' '));
    }
    const std::pair<const char*, const char*> rows[] = {
        {"r", "     |"}, {"", "      "}, {".", "      "}, {"r16", "      "}, {"other", "      "}};
    for (const auto& [written, shown] : rows) {
        document.setBarMark(4, written);
        EXPECT_EQ(mark(4), shown) << written;
    }
}

TEST_F(TextTablature, TheFirstMarkLosesItsFirstFiveCharacters) {
    document.setBarMark(0, "r");
    document.setBarMark(15, "r3");
    EXPECT_EQ(line(6), "|" + std::string(88, ' ') + "x4");
    document.setBarMark(0, "r15");
    EXPECT_EQ(line(6), "6" + std::string(88, ' ') + "x4");
}

// Counts that the grids do not have, as a read that failed leaves them.
TEST_F(TextTablature, ADocumentReadInPartGivesWhatIsThere) {
    document.StaffCount = 32767;
    EXPECT_EQ(lines().size(), 7U + 2 * 8);
    document.StaffCount = 0;
    EXPECT_EQ(lines().size(), 7U);
    document.StaffCount = -5;
    EXPECT_EQ(lines().size(), 7U);
    document.StaffCount = 1;
    document.CurrentTrack = 9;
    document.TrackNames.clear();
    EXPECT_EQ(lines()[4], "Track: ");
    EXPECT_EQ(lines()[6], "Percussion.");
    EXPECT_EQ(line(0), std::string(96, '-'));
}

} // namespace
} // namespace tabrova::testing
