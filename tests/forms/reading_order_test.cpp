// The order in which places are read.
#include "forms/reading_order.h"

#include <gtest/gtest.h>

#include <numeric>

namespace tabrova {
namespace {

using Order = std::vector<std::size_t>;

Order order(const std::vector<QRect>& places) { return readingOrder(places, Qt::LeftToRight); }
Order mirrored(const std::vector<QRect>& places) { return readingOrder(places, Qt::RightToLeft); }

// A place of a grid whose cells are 50 wide and 20 high, with gaps of 10 between them.
QRect cell(int row, int column, int rows = 1, int columns = 1) {
    return {column * 60, row * 30, columns * 60 - 10, rows * 30 - 10};
}

TEST(ReadingOrder, NothingIsReadWhereNothingStands) {
    EXPECT_EQ(order({}), Order{});
    EXPECT_EQ(order({cell(3, 3)}), Order{0});
}

TEST(ReadingOrder, RowsAreReadFromTopToBottomAndInARowFromLeftToRight) {
    EXPECT_EQ(order({cell(1, 1), cell(1, 0), cell(0, 1), cell(0, 0)}), (Order{3, 2, 1, 0}));
    EXPECT_EQ(order({cell(0, 2), cell(0, 0), cell(0, 1)}), (Order{1, 2, 0}));
    EXPECT_EQ(order({cell(2, 0), cell(0, 0), cell(1, 0)}), (Order{1, 2, 0}));
}

TEST(ReadingOrder, InARowFromRightToLeftWhereOneWritesSo) {
    EXPECT_EQ(mirrored({cell(1, 1), cell(1, 0), cell(0, 1), cell(0, 0)}), (Order{2, 3, 0, 1}));
    EXPECT_EQ(mirrored({cell(0, 2), cell(0, 0), cell(0, 1)}), (Order{0, 2, 1}));
    // The right edge counts: all three are columns of their own, of different widths.
    EXPECT_EQ(mirrored({QRect(0, 0, 100, 20), QRect(110, 0, 10, 20), QRect(130, 0, 70, 20)}),
              (Order{2, 1, 0}));
}

TEST(ReadingOrder, ARowsControlsMayHaveDifferentHeights) {
    // Lower, higher and smaller than their neighbours, but beside each other.
    EXPECT_EQ(order({QRect(200, 0, 50, 20), QRect(100, 10, 50, 30), QRect(0, 15, 50, 10)}), (Order{2, 1, 0}));
}

TEST(ReadingOrder, RowsMayOverlapByTwoPixels) {
    // The second row begins farther left.
    EXPECT_EQ(order({QRect(60, 0, 50, 20), QRect(0, 18, 50, 20)}), (Order{0, 1}));
    EXPECT_EQ(order({QRect(60, 0, 50, 20), QRect(0, 17, 50, 20)}), (Order{1, 0}));
    EXPECT_EQ(order({QRect(60, 0, 50, 20), QRect(0, 20, 50, 20)}), (Order{0, 1}));
}

TEST(ReadingOrder, ATallPlaceIsReadBeforeOrAfterTheRowsBesideIt) {
    EXPECT_EQ(order({cell(0, 0, 2), cell(0, 1), cell(0, 2), cell(1, 1), cell(1, 2)}), (Order{0, 1, 2, 3, 4}));
    EXPECT_EQ(order({cell(0, 0), cell(0, 1), cell(1, 0), cell(1, 1), cell(0, 2, 2)}), (Order{0, 1, 2, 3, 4}));
    EXPECT_EQ(order({cell(0, 3, 2), cell(0, 1), cell(0, 2), cell(1, 1), cell(1, 2), cell(0, 0, 2)}),
              (Order{5, 1, 2, 3, 4, 0}));
}

TEST(ReadingOrder, SeveralTallPlacesAreReadInTheirOrder) {
    EXPECT_EQ(order({cell(0, 1, 2), cell(0, 0, 2), cell(0, 2), cell(0, 3), cell(1, 2), cell(1, 3)}),
              (Order{1, 0, 2, 3, 4, 5}));
    EXPECT_EQ(order({cell(0, 3, 2), cell(0, 2, 2), cell(0, 0), cell(0, 1), cell(1, 0), cell(1, 1)}),
              (Order{2, 3, 4, 5, 1, 0}));
}

TEST(ReadingOrder, ATallPlaceDividesTheRowsOnItsSides) {
    EXPECT_EQ(order({cell(0, 0), cell(0, 1), cell(1, 0), cell(1, 1), cell(0, 2, 2), cell(0, 3), cell(0, 4),
                     cell(1, 3), cell(1, 4)}),
              (Order{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    // What lies upon each other at the end is no reason to read the rows by columns.
    EXPECT_EQ(order({cell(0, 0), cell(0, 1), cell(1, 0), cell(1, 1), cell(0, 2, 2), cell(0, 2, 2)}),
              (Order{0, 1, 2, 3, 4, 5}));
}

TEST(ReadingOrder, ATallPlaceIsMirroredToo) {
    EXPECT_EQ(mirrored({cell(0, 0, 2), cell(0, 1), cell(0, 2), cell(1, 1), cell(1, 2)}),
              (Order{2, 1, 4, 3, 0}));
}

TEST(ReadingOrder, WhatStandsAboveAndBelowIsNotDrawnIn) {
    EXPECT_EQ(order({cell(3, 0), cell(1, 0, 2), cell(1, 1), cell(2, 1), cell(0, 1)}), (Order{4, 1, 2, 3, 0}));
}

TEST(ReadingOrder, ColumnsWhoseRowsDoNotAgreeAreReadOneByOne) {
    EXPECT_EQ(order({QRect(100, 0, 50, 40), QRect(100, 50, 50, 40), QRect(0, 0, 50, 25), QRect(0, 30, 50, 25),
                     QRect(0, 65, 50, 25)}),
              (Order{2, 3, 4, 0, 1}));
}

TEST(ReadingOrder, PlacesUponEachOtherAreReadByTheirUpperEdgesAndThenFromTheSide) {
    // A picture and two on it, the lower one farther left.
    EXPECT_EQ(order({QRect(10, 60, 20, 20), QRect(50, 20, 20, 20), QRect(0, 0, 100, 100)}), (Order{2, 1, 0}));
    const std::vector<QRect> level = {QRect(30, 0, 40, 40), QRect(0, 0, 40, 40)};
    EXPECT_EQ(order(level), (Order{1, 0}));
    EXPECT_EQ(mirrored(level), (Order{0, 1}));
}

TEST(ReadingOrder, EqualPlacesKeepTheirOrder) {
    const std::vector<QRect> same(50, QRect(0, 0, 100, 30));
    Order given(same.size());
    std::iota(given.begin(), given.end(), std::size_t(0));
    EXPECT_EQ(order(same), given);
    EXPECT_EQ(mirrored(same), given);
    std::vector<QRect> rows;
    for (int row = 0; row < 50; ++row)
        rows.push_back(cell(row % 2, 0));
    const Order read = order(rows);
    EXPECT_TRUE(std::is_sorted(read.begin(), read.begin() + 25));
    EXPECT_TRUE(std::is_sorted(read.begin() + 25, read.end()));
}

TEST(ReadingOrder, PlacesWithoutASizeAreReadWhereTheyStand) {
    EXPECT_EQ(order({QRect(0, 40, 0, 0), QRect(0, 0, 50, 20), QRect(60, 5, 0, 0)}), (Order{1, 2, 0}));
    EXPECT_EQ(order({QRect(0, 0, 0, 0), QRect(), QRect(-5, -5, -3, -3)}).size(), 3U);
}

TEST(ReadingOrder, EveryPlaceIsReadOnce) {
    std::vector<QRect> places;
    unsigned seed = 1;
    const auto next = [&seed](int limit) {
        seed = seed * 1103515245U + 12345U;
        return static_cast<int>(seed >> 16) % limit;
    };
    for (int round = 0; round < 200; ++round) {
        places.clear();
        for (int count = next(30); count > 0; --count)
            places.emplace_back(next(200), next(200), next(60), next(60));
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Order read = readingOrder(places, direction);
            std::sort(read.begin(), read.end());
            Order all(places.size());
            std::iota(all.begin(), all.end(), std::size_t(0));
            EXPECT_EQ(read, all);
        }
    }
}

TEST(ReadingOrder, AWideRowIsReadAtOnce) {
    std::vector<QRect> places;
    for (int column = 0; column < 2000; ++column)
        places.push_back(cell(0, 1999 - column));
    const Order read = order(places);
    EXPECT_EQ(read.front(), 1999U);
    EXPECT_EQ(read.back(), 0U);
}

} // namespace
} // namespace tabrova
