// Closing the gaps of the separators: by hand, and against the walk done step by step.
#include "tests/core/document/plain_gap_walk.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace tabrova::testing {
namespace {

using Widths = std::vector<std::uint8_t>;

// A column a letter, in capitals if it holds a separator. The letter is the note of the first row, and its
// place in the alphabet times the row that of the others.
std::vector<OldColumn> columnsOf(const std::string& letters) {
    std::vector<OldColumn> columns;
    for (const char letter : letters) {
        OldColumn column;
        column.separator = letter >= 'A' && letter <= 'Z';
        const auto note = static_cast<TextId>(column.separator ? letter - 'A' : letter - 'a');
        for (TextId row = 0; row < 6; ++row)
            column.notes[row] = note + 100 * row;
        columns.push_back(column);
    }
    return columns;
}

std::string closed(const std::string& letters, const Widths& widths) {
    std::vector<OldColumn> columns = columnsOf(letters);
    closeSeparatorGaps(columns, widths);
    std::string text;
    for (const OldColumn& column : columns) {
        text += static_cast<char>((column.separator ? 'A' : 'a') + static_cast<char>(column.notes[0]));
        for (TextId row = 0; row < 6; ++row)
            EXPECT_EQ(column.notes[row], column.notes[0] + 100 * row) << letters;
    }
    return text;
}

TEST(SeparatorGaps, WithoutSeparatorsOrWidthsNothingMoves) {
    EXPECT_EQ(closed("", {32, 2}), "");
    EXPECT_EQ(closed("abcdef", {32, 2}), "abcdef");
    EXPECT_EQ(closed("abCdef", {}), "abCdef");
    EXPECT_EQ(closed("A", {2}), "A");
}

TEST(SeparatorGaps, AWidthOfOneMovesNothing) {
    EXPECT_EQ(closed("abCdef", {1, 1, 1}), "abCdef");
    EXPECT_EQ(closed("abCdef", {1, 2, 1}), closed("abCdef", {2}));
}

TEST(SeparatorGaps, TheFirstStepKeepsTheNotesOfTheSeparatorAndTakesItAway) {
    EXPECT_EQ(closed("abCdef", {2}), "abceff");
}

TEST(SeparatorGaps, FurtherStepsMoveAllBehindTheColumn) {
    EXPECT_EQ(closed("abCdef", {3}), "abefff");
    EXPECT_EQ(closed("abCdef", {4}), "abffff");
    EXPECT_EQ(closed("abCdef", {32}), "abffff");
}

TEST(SeparatorGaps, ASeparatorThatIsGoneIsNotWalkedAgain) {
    EXPECT_EQ(closed("abCdef", {2, 2, 32}), "abceff");
}

TEST(SeparatorGaps, TheLastColumnKeepsItsSeparatorAndHandsItOn) {
    EXPECT_EQ(closed("abcdeF", {32}), "abcdeF");
    EXPECT_EQ(closed("abCdeF", {2}), "abceFF");
    EXPECT_EQ(closed("abCdeF", {3}), "abeFFF");
    EXPECT_EQ(closed("abCdeF", {4}), "abFFFF");
}

TEST(SeparatorGaps, OfSeparatorsSideBySideEachStepTakesOne) {
    EXPECT_EQ(closed("abCDefgh", {2}), "abCdfghh");
    EXPECT_EQ(closed("abCDefgh", {2, 2}), "abcfghhh");
    EXPECT_EQ(closed("ABCDEF", {32}), "ABCDEF");
}

TEST(SeparatorGaps, ASeparatorBehindAnotherHasSlidWhenTheWalkReachesIt) {
    EXPECT_EQ(closed("aBcdefGhijk", {2}), "abdefgijkkk");
    EXPECT_EQ(closed("aBcdefGhijk", {3}), "adefijkkkkk");
}

class RandomGaps {
  public:
    explicit RandomGaps(unsigned seed) : random_(seed) {}

    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

    std::vector<OldColumn> columns(int count, int percent) {
        std::vector<OldColumn> list(static_cast<std::size_t>(count));
        for (OldColumn& column : list) {
            for (TextId& note : column.notes)
                note = static_cast<TextId>(choose(0, 999));
            column.separator = choose(1, 100) <= percent;
        }
        return list;
    }

    // Mostly small ones: a large one settles most lists at once.
    Widths widths() {
        Widths list(static_cast<std::size_t>(choose(1, 8)));
        const int most = choose(0, 1) ? 4 : 32;
        for (std::uint8_t& width : list)
            width = static_cast<std::uint8_t>(choose(1, most));
        return list;
    }

  private:
    std::mt19937 random_;
};

TEST(SeparatorGaps, AreClosedAsTheWalkDoesIt) {
    RandomGaps random(17);
    for (int run = 0; run < 3000; ++run) {
        std::vector<OldColumn> columns = random.columns(random.choose(1, 80), random.choose(1, 100));
        if (run % 3 == 0) columns.back().separator = true;
        const Widths widths = random.widths();
        std::vector<OldColumn> expected = columns;
        plainGapWalk(expected, widths);
        closeSeparatorGaps(columns, widths);
        ASSERT_EQ(columns, expected) << run;
    }
}

// As files have them: the widths of one separator are the same on some strings, and they are those of its
// column.
TEST(SeparatorGaps, OfSeparatorsOnStavesAreClosedAsTheWalkDoesIt) {
    RandomGaps random(18);
    for (int run = 0; run < 500; ++run) {
        std::vector<OldColumn> columns = random.columns(32 * random.choose(1, 3), 0);
        Widths widths;
        const int percent = random.choose(1, 20);
        for (std::size_t at = 0; at + 1 < columns.size(); ++at) {
            if (random.choose(1, 100) > percent) continue;
            columns[at + 1].separator = true;
            widths.insert(widths.end(), static_cast<std::size_t>(random.choose(1, 6)),
                          static_cast<std::uint8_t>(32 - at % 32));
        }
        std::vector<OldColumn> expected = columns;
        plainGapWalk(expected, widths);
        closeSeparatorGaps(columns, widths);
        ASSERT_EQ(columns, expected) << run;
    }
}

constexpr std::size_t Many = 1'000'000;

TEST(SeparatorGaps, OfAMillionSeparatorsSideBySideAreClosedInTheEnd) {
    std::vector<OldColumn> columns(Many);
    for (std::size_t at = 0; at < Many; ++at)
        columns[at] = {{static_cast<TextId>(at)}, true};
    const std::vector<OldColumn> before = columns;
    closeSeparatorGaps(columns, Widths(6 * Many, 32));
    EXPECT_TRUE(columns == before);
}

// No run reaches the end, so that the walks have separators to take away.
TEST(SeparatorGaps, OfAMillionColumnsWithFewFreeOnesAreClosedInTheEnd) {
    std::vector<OldColumn> columns(Many);
    for (std::size_t at = 0; at < Many; ++at)
        columns[at] = {{static_cast<TextId>(at)}, at % 1000 != 999};
    closeSeparatorGaps(columns, Widths(6 * Many, 2));
    for (const OldColumn& column : columns)
        ASSERT_FALSE(column.separator);
}

} // namespace
} // namespace tabrova::testing
