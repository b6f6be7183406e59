// Documents of the previous generation that end early or hold something else than they should: how far the
// reading comes and what stands there afterwards.
#include "core/document/old_document.h"
#include "tests/core/document/document_helpers.h"
#include "tests/core/document/old_file_writer.h"
#include "tests/core/document/plain_gap_walk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tabrova::testing {
namespace {

// What should stand there, field by field. A note is its fret + 1.
class PlainReading {
  public:
    explicit PlainReading(std::string bytes) : bytes_(std::move(bytes)) { whole = run(); }

    bool whole = false;
    std::string instrument, author = "Anonymous", title = "Untitled";
    int tempo = 480, staves = 1, columnInStaff = 0;
    std::vector<std::int16_t> tuning = std::vector<std::int16_t>(6, 13);
    std::vector<OldColumn> columns = std::vector<OldColumn>(32);

  private:
    // What is left of the text at its place, and its digits.
    std::string text(std::size_t at, std::size_t width) const {
        return at < bytes_.size() ? bytes_.substr(at, width) : "";
    }
    std::optional<int> number(std::size_t at, std::size_t width) const {
        std::string digits = text(at, width);
        std::erase(digits, ' ');
        return digits.empty() ? std::nullopt : std::optional(std::stoi(digits));
    }
    template <class Field>
    bool set(Field& field, std::size_t at, std::size_t width, int more = 0) const {
        const auto value = number(at, width);
        if (value) field = static_cast<Field>(*value + more);
        return value.has_value();
    }

    bool run() {
        instrument = text(0, 3);
        if (!set(tempo, OldTempoAt, 3) || !set(staves, OldStavesAt, 5)) return false;
        for (std::size_t field = 0; field < 6; ++field)
            if (!set(tuning[5 - field], OldTuningAt + 2 * field, 2, 1)) return false;
        columns.assign(static_cast<std::size_t>(staves) * 32, {});
        std::vector<std::uint8_t> widths;
        for (int staff = 0; staff < staves; ++staff)
            for (int row = 0; row < 6; ++row)
                for (columnInStaff = 0; columnInStaff < 32; ++columnInStaff)
                    if (!cell(staff, row, widths)) return false;
        if (!names()) return false;
        if (std::ranges::any_of(widths, [](int width) { return width > 1; })) columnInStaff = 0;
        plainGapWalk(columns, widths);
        return true;
    }

    bool cell(int staff, int row, std::vector<std::uint8_t>& widths) {
        const std::size_t at = oldCellAt(staff, row, columnInStaff);
        const std::string cut = text(at, 2);
        const auto column = static_cast<std::size_t>(staff * 32 + columnInStaff);
        if (cut == ">>" || cut == "  ") return true;
        if (cut == " #") {
            if (column + 1 == columns.size()) return false;
            columns[column + 1].separator = true;
            widths.push_back(static_cast<std::uint8_t>(32 - columnInStaff));
            return true;
        }
        return cut.find_first_not_of(" 0123456789") == std::string::npos &&
               set(columns[column].notes[static_cast<std::size_t>(row)], at, 2, 1);
    }

    bool names() {
        const std::size_t at = oldAuthorAt(staves);
        const auto length = static_cast<std::size_t>(number(at, 2).value_or(0));
        if (!number(at, 2)) return false;
        author = text(at + 2, length);
        const auto titleLength = number(at + 2 + length, 2);
        if (!titleLength) return false;
        title = text(at + 4 + length, static_cast<std::size_t>(*titleLength));
        return true;
    }

    std::string bytes_;
};

void expectLike(const Document& document, const PlainReading& plain) {
    EXPECT_EQ(document.TrackInstruments, std::vector<std::string>{plain.instrument});
    EXPECT_EQ(document.Tempo, plain.tempo);
    EXPECT_EQ(document.StaffCount, plain.staves);
    EXPECT_EQ(document.TuningTable, plain.tuning);
    EXPECT_EQ(document.Author, plain.author);
    EXPECT_EQ(document.Title, plain.title);
    EXPECT_EQ(document.ColumnInStaff, plain.columnInStaff);
    EXPECT_EQ(document.TrackCount, 1);
    EXPECT_EQ(document.RowCapacity, 6);
    EXPECT_EQ(document.TrackNames, std::vector<std::string>{"Untitled Track"});
    EXPECT_EQ(document.TechniqueGrid.columns(), document.ColumnCapacity);
    ASSERT_EQ(document.NoteGrid.columns(), document.ColumnCapacity);
    ASSERT_EQ(document.BarMarkRow.size(), plain.columns.size());
    ASSERT_EQ(document.ColumnCapacity, static_cast<int>(plain.columns.size()));
    for (std::size_t at = 0; at < plain.columns.size(); ++at) {
        const int column = static_cast<int>(at);
        ASSERT_EQ(document.barMark(column), plain.columns[at].separator ? "." : "") << column;
        for (int row = 0; row < 6; ++row) {
            const auto note = plain.columns[at].notes[static_cast<std::size_t>(row)];
            ASSERT_EQ(document.note(column, row), note == 0 ? "" : std::to_string(note - 1))
                << column << ", " << row;
            ASSERT_EQ(document.technique(column, row), "");
        }
    }
}

void expectReadPlainly(const std::string& bytes) {
    Document document;
    resetToNewDocument(document);
    const PlainReading plain(bytes);
    EXPECT_EQ(readOldDocument(document, bytes), plain.whole);
    expectLike(document, plain);
}

// Every third cell a fret, of one digit on either side or of two.
OldFile fullFile(int staves) {
    OldFile file;
    file.staves = staves;
    file.tuning = {12, 5, 1, 24, 10, 7};
    int cell = 0;
    for (int staff = 0; staff < staves; ++staff)
        for (int row = 0; row < 6; ++row)
            for (int column = 0; column < 32; ++column, ++cell)
                if (cell % 3 == 0)
                    file.cells[{staff, row, column}] =
                        cell % 2 == 0 ? oldField(cell % 30, 2) : std::to_string(cell % 10) + " ";
    return file;
}

TEST(OldDocumentCut, AtAnyByteLeavesWhatStoodBeforeIt) {
    const std::string bytes = fullFile(1).bytes();
    ASSERT_EQ(bytes.size(), 600u + 5 + 10);
    for (std::size_t kept = 0; kept <= bytes.size(); ++kept) {
        SCOPED_TRACE(kept);
        expectReadPlainly(bytes.substr(0, kept));
        if (HasFatalFailure()) return;
    }
}

TEST(OldDocumentCut, AmongSeparatorsClosesNoGapUnlessOnlyTheTitleIsCut) {
    OldFile file = fullFile(1);
    for (const auto& [row, column] : {std::pair{0, 7}, {1, 7}, {5, 7}, {2, 8}, {0, 30}, {5, 23}})
        file.cells[{0, row, column}] = " #";
    const std::string bytes = file.bytes();
    const std::size_t title = 600 + 5;
    for (std::size_t kept = 0; kept <= bytes.size(); ++kept) {
        SCOPED_TRACE(kept);
        expectReadPlainly(bytes.substr(0, kept));
        if (HasFatalFailure()) return;
        // Of its length the first character, a blank, is no number.
        EXPECT_EQ(PlainReading(bytes.substr(0, kept)).whole, kept >= title + 2) << kept;
    }
}

TEST(OldDocumentCut, InTheLengthOfTheTitleTakesItsFirstDigit) {
    OldFile file;
    file.title = "Old song of mine";
    for (std::size_t kept = 600 + 5; kept < 600 + 5 + 4; ++kept)
        expectReadPlainly(file.bytes().substr(0, kept));
    EXPECT_TRUE(PlainReading(file.bytes().substr(0, 600 + 5 + 1)).whole);
}

TEST(OldDocumentCut, InTheHeaderOfManyStavesLeavesTheGridsOfANewDocument) {
    const std::string bytes = fullFile(12).bytes();
    for (std::size_t kept = 0; kept <= OldCellsAt + 200; ++kept) {
        SCOPED_TRACE(kept);
        expectReadPlainly(bytes.substr(0, kept));
        if (HasFatalFailure()) return;
    }
}

TEST(OldDocumentCut, BehindTheStavesCountsTheirColumns) {
    const OldFile file = fullFile(2);
    Document document;
    resetToNewDocument(document);
    EXPECT_FALSE(readOldDocument(document, file.bytes().substr(0, oldCellAt(1, 4, 17))));
    EXPECT_EQ(document.ColumnInStaff, 17);
    EXPECT_EQ(document.StaffCount, 2);
    EXPECT_EQ(document.ColumnCapacity, 64);
}

TEST(OldDocumentCut, RandomFilesAreReadAsAPlainReaderDoes) {
    std::mt19937 random(29);
    const auto choose = [&random](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    int whole = 0;
    for (int run = 0; run < 400; ++run) {
        OldFile file = fullFile(choose(1, 4));
        for (int separators = choose(0, 12); separators > 0; --separators) {
            const int staff = choose(0, file.staves - 1), column = choose(choose(0, 1) * 24, 31);
            for (int row = choose(0, 5); row < 6; ++row)
                file.cells[{staff, row, column}] = " #";
        }
        std::string bytes = file.bytes();
        if (choose(0, 4) == 0)
            bytes.resize(static_cast<std::size_t>(choose(0, static_cast<int>(bytes.size()))));
        SCOPED_TRACE(run);
        expectReadPlainly(bytes);
        whole += PlainReading(bytes).whole;
        if (::testing::Test::HasFailure()) return;
    }
    EXPECT_GT(whole, 100);
    EXPECT_LT(whole, 350);
}

} // namespace
} // namespace tabrova::testing
