// The way through the columns: repeats, columns that take no time, and how both meet.
#include "tests/sound/player_helpers.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace tabrova::testing {
namespace {

// A drum whose number is its column tells which columns a tick plays.
class PlayedColumns : public PlayerTest {
  protected:
    // Marks and columns with ">" of a document of so many columns.
    void makeRoute(int columns, const std::map<int, std::string>& marks,
                   const std::vector<int>& arrows = {}) {
        makeDocument(columns, {Kind::Percussion});
        for (int column = 0; column < columns; ++column)
            put(column, 0, std::to_string(column));
        for (const auto& [column, mark] : marks)
            document.setBarMark(column, mark);
        for (const int column : arrows)
            put(column, 5, ">");
    }

    std::vector<int> columnsOfTick() {
        std::vector<int> columns;
        for (const ShortMessage& message : tick())
            columns.push_back(message[1]);
        return columns;
    }

    // The columns of each tick, a "|" between two ticks, and "end" where the document ends.
    std::string route(int ticks = 60) {
        std::ostringstream said;
        result = TickResult::Playing;
        for (int each = 0; each < ticks && result == TickResult::Playing; ++each) {
            std::string columns;
            for (const int column : columnsOfTick())
                columns += (columns.empty() ? "" : " ") + std::to_string(column);
            if (result == TickResult::Ended) columns += columns.empty() ? "end" : " end";
            said << (each == 0 ? "" : "|") << columns;
        }
        return said.str();
    }

    void expectState(int position, int start, int left, bool inRepeat) {
        EXPECT_EQ(state.PlaybackPosition, position);
        EXPECT_EQ(state.RepeatStartColumn, start);
        EXPECT_EQ(state.RepeatsLeft, left);
        EXPECT_EQ(state.InRepeat, boolean16(inRepeat));
    }
};

TEST_F(PlayedColumns, WithoutMarksFollowEachOther) {
    makeRoute(4, {{1, "."}, {2, ""}});
    EXPECT_EQ(route(), "0|1|2|3|end");
}

TEST_F(PlayedColumns, OfARepeatAreHeardAtTheMomentOfTheClosingColumn) {
    makeRoute(5, {{1, "r"}, {3, "r1"}});
    EXPECT_EQ(route(), "0|1|2|3 1|2|3|4|end");
}

TEST_F(PlayedColumns, EachClosingMarkPlaysItsPassageOnceMoreThanItsNumber) {
    for (int number = 1; number <= 15; ++number) {
        makeRoute(4, {{1, "r"}, {2, "r" + std::to_string(number)}});
        std::string expected = "0|1";
        for (int play = 0; play < number; ++play)
            expected += "|2 1";
        EXPECT_EQ(route(), expected + "|2|3|end") << number;
    }
}

TEST_F(PlayedColumns, StateOfARepeatGoesDownWithEachJump) {
    makeRoute(4, {{1, "r"}, {2, "r2"}});
    tick();
    expectState(1, 0, 0, false);
    tick();
    expectState(2, 1, 0, false);
    tick(); // column 2 jumps, column 1 sounds
    expectState(2, 1, 1, true);
    tick();
    expectState(2, 1, 0, true);
    tick(); // the last arrival plays on
    expectState(3, 1, 0, false);
    tick();
    expectState(4, 1, 0, false);
    tick();
    EXPECT_EQ(result, TickResult::Ended);
}

TEST_F(PlayedColumns, OtherMarksHaveNoEffectOutsideARepeat) {
    for (const char* const mark :
         {"r16", "r99", "r0", "r01", "r1 ", " r1", "R1", "r 1", "rr", "R", "r-1", "r1.0", "1", "x", "|"}) {
        makeRoute(4, {{1, "r"}, {2, mark}});
        EXPECT_EQ(route(), "0|1|2|3|end") << mark;
        expectState(4, 1, 0, false);
    }
}

TEST_F(PlayedColumns, AnyOtherMarkClosesARunningRepeat) {
    for (const char* const mark : {"r16", "r0", "x", "r7"}) {
        makeRoute(5, {{0, "r"}, {2, "r2"}});
        ASSERT_EQ(route(3), "0|1|2 0");
        expectState(1, 0, 1, true);
        document.setBarMark(1, mark);
        ASSERT_EQ(route(1), "1 0") << mark;
        expectState(1, 0, 0, true);
        ASSERT_EQ(route(1), "1") << mark;
        expectState(2, 0, 0, false);
    }
}

TEST_F(PlayedColumns, AMarkOverFifteenInThePassageEndsItSoThatTheClosingMarkBeginsAgain) {
    makeRoute(4, {{0, "r"}, {1, "r16"}, {2, "r1"}});
    EXPECT_EQ(route(9), "0|1|2 0|1|2 0|1|2 0|1|2 0");
    makeRoute(4, {{0, "r"}, {1, "r16"}, {2, "r2"}});
    EXPECT_EQ(route(9), "0|1|2 0|1 0|1|2 0|1 0|1|2 0");
}

TEST_F(PlayedColumns, ASeparatorClosesNoRepeat) {
    makeRoute(5, {{0, "r"}, {1, "."}, {2, ""}, {3, "r2"}});
    EXPECT_EQ(route(), "0|1|2|3 0|1|2|3 0|1|2|3|4|end");
}

TEST_F(PlayedColumns, OfTwoRepeatsInARowPlayEachForItself) {
    makeRoute(6, {{0, "r"}, {1, "r1"}, {2, "r"}, {4, "r2"}});
    EXPECT_EQ(route(), "0|1 0|1|2|3|4 2|3|4 2|3|4|5|end");
}

TEST_F(PlayedColumns, AnOpeningMarkInARepeatMovesItsStart) {
    makeRoute(5, {{0, "r"}, {2, "r"}, {3, "r2"}});
    EXPECT_EQ(route(), "0|1|2|3 2|3 2|3|4|end");
}

TEST_F(PlayedColumns, ANestedClosingMarkCountsForTheRunningRepeat) {
    makeRoute(4, {{0, "r"}, {1, "r1"}, {2, "r3"}});
    EXPECT_EQ(route(8), "0|1 0|1|2 0|1 0|1 0|1|2 0");
    makeRoute(6, {{0, "r"}, {1, "r"}, {2, "r1"}, {3, "r"}, {4, "r1"}});
    EXPECT_EQ(route(), "0|1|2 1|2|3|4 3|4|5|end");
}

TEST_F(PlayedColumns, AClosingMarkWithoutAnOpeningJumpsToColumnZero) {
    makeRoute(4, {{2, "r2"}});
    EXPECT_EQ(route(), "0|1|2 0|1|2 0|1|2|3|end");
}

TEST_F(PlayedColumns, ASecondClosingMarkJumpsToTheLastOpening) {
    makeRoute(5, {{1, "r"}, {2, "r1"}, {3, "r1"}});
    EXPECT_EQ(route(10), "0|1|2 1|2|3 1|2|3 1|2|3 1|2");
}

TEST_F(PlayedColumns, FromInsideARepeatJumpBackToColumnZero) {
    makeRoute(5, {{1, "r"}, {3, "r1"}});
    playFrom(2);
    EXPECT_EQ(route(), "2|3 0|1|2|3|4|end");
    playFrom(3);
    EXPECT_EQ(route(), "3 0|1|2|3|4|end");
    playFrom(1);
    EXPECT_EQ(route(), "1|2|3 1|2|3|4|end");
    playFrom(4);
    EXPECT_EQ(route(), "4|end");
}

TEST_F(PlayedColumns, OfOneColumnRepeatInOneTick) {
    makeRoute(2, {{0, "r15"}});
    EXPECT_EQ(route(), "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0|1|end");
}

TEST_F(PlayedColumns, ARepeatThatClosesTheDocumentEndsIt) {
    makeRoute(3, {{1, "r"}, {2, "r1"}});
    EXPECT_EQ(route(), "0|1|2 1|2|end");
    makeRoute(1, {{0, "r"}});
    EXPECT_EQ(route(), "0|end");
}

TEST_F(PlayedColumns, WithAnArrowTakeNoTime) {
    makeRoute(4, {}, {1});
    EXPECT_EQ(route(), "0|1 2|3|end");
    makeRoute(5, {}, {0, 1, 3});
    EXPECT_EQ(route(), "0 1 2|3 4|end");
    makeRoute(3, {}, {2});
    EXPECT_EQ(route(), "0|1|2 end");
    makeRoute(3, {}, {0, 1, 2});
    EXPECT_EQ(route(), "0 1 2 end");
}

TEST_F(PlayedColumns, AnArrowOnAnyRowOfAnyTrackCounts) {
    for (int row = 0; row < 18; ++row) {
        makeDocument(2, {Kind::Percussion, Kind::Guitar, Kind::Percussion});
        document.PreventReverberations = 0;
        put(0, row, ">");
        put(1, 0, "40");
        EXPECT_EQ(sounds(), (Messages{{0x99, 40, 100}})) << row;
        expectState(2, 0, 0, false);
    }
}

TEST_F(PlayedColumns, OnlyTheArrowAloneInItsCellCounts) {
    for (const char* const cell : {">>", " >", "> ", "<", "5>"}) {
        makeRoute(2, {});
        put(0, 3, cell);
        document.setTechnique(0, 4, ">");
        EXPECT_EQ(route(), "0|1|end") << cell;
    }
}

TEST_F(PlayedColumns, AnArrowsColumnSoundsWithTheNextOneWhichCutsItAgain) {
    makeDocument(2, {Kind::Guitar});
    put(0, 0, ">");
    put(0, 1, "5");
    put(1, 0, "7");
    EXPECT_EQ(sounds(), (Messages{{0xB0, 120, 0},
                                  {0xB0, 123, 0},
                                  {0x90, 64, 100},
                                  {0xB0, 120, 0},
                                  {0xB0, 123, 0},
                                  {0x90, 71, 100}}));
}

// Deliberate: the column that took no time in the first pass takes its time in the others.
TEST_F(PlayedColumns, AnArrowInARunningRepeatCostsATick) {
    makeRoute(4, {{0, "r"}, {2, "r2"}}, {1});
    EXPECT_EQ(route(), "0|1 2 0|1|2 0|1|2|3|end");
    makeRoute(4, {{0, "r"}, {2, "r1"}}, {0, 1});
    EXPECT_EQ(route(), "0 1 2 0|1|2|3|end");
}

TEST_F(PlayedColumns, AnArrowOnTheClosingColumnCountsOnlyWhenTheRepeatIsOver) {
    makeRoute(5, {{1, "r"}, {2, "r2"}}, {2});
    EXPECT_EQ(route(), "0|1|2 1|2 1|2 3|4|end");
    makeRoute(3, {{1, "r"}, {2, "r1"}}, {2});
    EXPECT_EQ(route(), "0|1|2 1|2 end");
}

TEST_F(PlayedColumns, AnArrowOnTheOpeningColumn) {
    makeRoute(5, {{1, "r"}, {3, "r1"}}, {1});
    EXPECT_EQ(route(), "0|1 2|3 1|2|3|4|end");
}

// The jumping column is taken up again when the columns after its jump are done, and by then its repeat can
// be over.
TEST_F(PlayedColumns, AfterAJumpTheArrowOfTheColumnThatJumpedStillCounts) {
    makeRoute(5, {{0, "r1"}}, {0});
    EXPECT_EQ(route(), "0 0 1 2|3|4|end");
    makeRoute(6, {{0, "r3"}}, {0});
    EXPECT_EQ(route(), "0 0 0 0 1 2 3 4|5|end");
    makeRoute(4, {{0, "r3"}}, {0});
    EXPECT_EQ(route(), "0 0 0 0 1 2 3 end");
}

TEST_F(PlayedColumns, AJumpToAColumnThatEndsTheRepeatIsMadeAtEachTick) {
    makeRoute(3, {{0, "r1"}, {1, "r1"}});
    EXPECT_EQ(route(4), "0 0|1 0|1 0|1 0");
    expectState(1, 0, 0, false);
}

TEST_F(PlayedColumns, APassageThatIsRepeatedWithinATickEndsWithTheArrowsThatWait) {
    makeRoute(4, {{0, "r2"}, {2, "r1"}}, {0});
    EXPECT_EQ(route(3), "0 0 0 1 2 0 1 2 0 1|2 0 1|2 0 1");
    expectState(2, 0, 0, false);
    makeRoute(4, {{0, "r5"}, {2, "r1"}}, {0});
    EXPECT_EQ(route(1), "0 0 0 0 0 0 1 2 0 1 2 0 1 2 0 1 2 0 1 2 0 1");
    expectState(2, 0, 0, false);
}

TEST_F(PlayedColumns, APassageOfNoLengthThatRepeatsForEverLeavesEachTick) {
    makeRoute(3, {{0, "r1"}, {1, "r1"}}, {0, 1});
    for (int each = 0; each < 1000; ++each) {
        const std::vector<int> played = columnsOfTick();
        ASSERT_EQ(result, TickResult::Playing);
        ASSERT_LE(played.size(), 6u);
        ASSERT_TRUE(std::ranges::count(played, 0) > 0 && std::ranges::count(played, 1) > 0);
        ASSERT_EQ(std::ranges::count(played, 2), 0);
    }
}

TEST_F(PlayedColumns, ALongRunOfArrowsIsOneTick) {
    constexpr int Columns = 100000;
    makeRoute(Columns, {});
    for (int column = 0; column < Columns; ++column)
        put(column, 5, ">");
    EXPECT_EQ(tick().size(), 32768u); // the numbers of later columns do not fit
    EXPECT_EQ(result, TickResult::Ended);
    playFrom(0);
    document.setNote(Columns - 1, 5, "");
    tick();
    EXPECT_EQ(result, TickResult::Playing);
    expectState(Columns, 0, 0, false);
    tick();
    EXPECT_EQ(result, TickResult::Ended);
}

TEST_F(PlayedColumns, ManyRepeatsAmongArrowsAllPlayToTheEnd) {
    constexpr int Passages = 2000;
    constexpr int Length = 10;
    makeRoute(Passages * Length, {});
    for (int column = 0; column < Passages * Length; ++column)
        put(column, 5, ">");
    for (int passage = 0; passage < Passages; ++passage) {
        document.setBarMark(passage * Length, "r");
        document.setBarMark(passage * Length + Length - 1, "r3");
    }
    std::size_t plays = 0;
    int ticks = 0;
    for (; result == TickResult::Playing && ticks <= 4 * Passages * Length; ++ticks)
        plays += tick().size();
    EXPECT_EQ(plays, std::size_t{4 * Passages * Length});
    // The first pass and the jump take no time, nor do the columns after the last arrival.
    EXPECT_EQ(ticks, Passages * 3 * (Length - 1) + 1);
}

TEST_F(PlayedColumns, ALongRunOfArrowsAfterWaitingJumpsIsOneTick) {
    constexpr int Columns = 5000;
    makeRoute(Columns, {{0, "r15"}});
    for (int column = 0; column < Columns; ++column)
        if (column != 2500) put(column, 5, ">");
    EXPECT_EQ(tick().size(), std::size_t{Columns + 15});
    EXPECT_EQ(result, TickResult::Ended);
}

} // namespace
} // namespace tabrova::testing
