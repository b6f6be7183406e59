#include "core/document/cell_grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace tabrova {
namespace {

TEST(CellGrid, KeepsIdsOfEveryWidth) {
    CellGrid grid;
    grid.resize(2, 10);
    const TextId ids[] = {1, 255, 256, 65535, 65536, 0xFFFFFFFF, 7, 300, 2, 0};
    for (int row = 0; row < 10; ++row) {
        EXPECT_TRUE(grid.set(0, row, ids[row]));
        for (int before = 0; before <= row; ++before)
            EXPECT_EQ(grid.at(0, before), ids[before]);
    }
    EXPECT_EQ(grid.at(1, 3), EmptyText);
    EXPECT_EQ(grid.column(1).width(), CellColumn::Width::Empty);
}

TEST(CellGrid, OutsideIsEmptyAndTakesNothing) {
    CellGrid grid;
    grid.resize(3, 6);
    for (const auto& [column, row] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 6}, {100, 100}}) {
        EXPECT_FALSE(grid.set(column, row, 5));
        EXPECT_EQ(grid.at(column, row), EmptyText);
    }
}

TEST(CellGrid, AColumnOfEmptyCellsOwnsNoMemory) {
    CellGrid grid;
    grid.resize(4, 6000);
    grid.set(2, 5999, EmptyText);
    EXPECT_EQ(grid.column(2).data(), nullptr);
}

TEST(CellGrid, ResizingKeepsWhatFitsAtItsPlace) {
    CellGrid grid;
    grid.resize(4, 6);
    for (int column = 0; column < 4; ++column)
        for (int row = 0; row < 6; ++row)
            grid.set(column, row, static_cast<TextId>(column * 100 + row + 1));
    grid.resize(6, 12);
    EXPECT_EQ(grid.at(3, 5), 306u);
    EXPECT_EQ(grid.at(3, 6), EmptyText);
    EXPECT_EQ(grid.at(4, 0), EmptyText);
    grid.resize(2, 3);
    EXPECT_EQ(grid.at(1, 2), 103u);
    grid.resize(4, 6);
    EXPECT_EQ(grid.at(1, 2), 103u);
    EXPECT_EQ(grid.at(1, 3), EmptyText);
    EXPECT_EQ(grid.at(2, 0), EmptyText);
    grid.resize(4, 0);
    grid.resize(4, 6);
    EXPECT_EQ(grid.at(1, 2), EmptyText);
}

TEST(CellGrid, ClearingIsCutToTheGrid) {
    CellGrid grid;
    grid.resize(4, 6);
    for (int column = 0; column < 4; ++column)
        for (int row = 0; row < 6; ++row)
            grid.set(column, row, 9);
    grid.clear(2, 100, 1, 2);
    EXPECT_EQ(grid.at(1, 1), 9u);
    EXPECT_EQ(grid.at(2, 0), 9u);
    EXPECT_EQ(grid.at(2, 1), EmptyText);
    EXPECT_EQ(grid.at(3, 2), EmptyText);
    EXPECT_EQ(grid.at(3, 3), 9u);
    grid.clear(-5, 6, -5, 100);
    EXPECT_EQ(grid.at(0, 0), EmptyText);
    EXPECT_EQ(grid.at(1, 0), 9u);
}

TEST(CellColumn, CopiesRowsBetweenWidths) {
    CellColumn narrow, wide, none;
    narrow.set(0, 3, 6);
    narrow.set(5, 4, 6);
    wide.set(0, 70000, 6);
    wide.set(5, 80000, 6);
    CellColumn target;
    target.copyRows(wide, 0, 6, 6);
    EXPECT_EQ(target.at(5), 80000u);
    target.copyRows(narrow, 0, 3, 6);
    EXPECT_EQ(target.at(0), 3u);
    EXPECT_EQ(target.at(5), 80000u);
    narrow.copyRows(wide, 5, 1, 6);
    EXPECT_EQ(narrow.at(5), 80000u);
    EXPECT_EQ(narrow.at(0), 3u);
    target.copyRows(none, 0, 6, 6);
    EXPECT_EQ(target.at(5), EmptyText);
}

TEST(CellGrid, RandomOperationsAgreeWithAMap) {
    std::mt19937 random(7);
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    CellGrid grid;
    std::map<std::pair<int, int>, TextId> model;
    int columns = 8, rows = 12;
    grid.resize(columns, rows);
    for (int step = 0; step < 20000; ++step) {
        const int act = choose(99);
        if (act < 90) {
            const int column = choose(columns + 1), row = choose(rows + 1);
            const TextId id =
                choose(2) == 0 ? 0u : static_cast<TextId>(choose(1) ? choose(300) : choose(200000));
            EXPECT_EQ(grid.set(column, row, id), column < columns && row < rows);
            if (column < columns && row < rows) model[{column, row}] = id;
        } else if (act < 95) {
            columns = choose(40);
            rows = choose(30);
            grid.resize(columns, rows);
            std::erase_if(model, [&](const auto& cell) {
                return cell.first.first >= columns || cell.first.second >= rows;
            });
        } else {
            const int first = choose(10), count = choose(10), firstRow = choose(10), rowCount = choose(10);
            grid.clear(first, count, firstRow, rowCount);
            std::erase_if(model, [&](const auto& cell) {
                const auto [column, row] = cell.first;
                return column >= first && column < first + count && row >= firstRow &&
                       row < firstRow + rowCount;
            });
        }
        if (step % 100 != 0) continue;
        for (int column = 0; column < columns; ++column)
            for (int row = 0; row < rows; ++row) {
                const auto found = model.find({column, row});
                ASSERT_EQ(grid.at(column, row), found == model.end() ? 0u : found->second)
                    << "after step " << step;
            }
    }
}

TEST(CellGrid, AColumnTakesTheWidthOfItsLargestId) {
    CellGrid grid;
    grid.resize(1, 8);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::Empty);
    grid.set(0, 1, 255);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::One);
    grid.set(0, 2, 256);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::Two);
    grid.set(0, 3, 65536);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::Four);
    grid.set(0, 4, 1);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::Four);
    EXPECT_EQ(grid.at(0, 1), 255u);
    EXPECT_EQ(grid.at(0, 4), 1u);
}

TEST(CellGrid, AWideColumnLeavesItsNeighboursNarrow) {
    CellGrid grid;
    grid.resize(3, 6);
    grid.set(0, 0, 4);
    grid.set(1, 0, 70000);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::One);
    EXPECT_EQ(grid.column(2).width(), CellColumn::Width::Empty);
}

TEST(CellGrid, ManyTextsOfEveryWidthStandInOneGrid) {
    TextPool pool;
    CellGrid grid;
    constexpr int Columns = 300, Rows = 300;
    grid.resize(Columns, Rows);
    for (int column = 0; column < Columns; ++column)
        for (int row = 0; row < Rows; ++row)
            grid.set(column, row, pool.intern(std::to_string(column * Rows + row)));
    EXPECT_GT(pool.size(), 65536u);
    EXPECT_EQ(grid.column(1).width(), CellColumn::Width::Two);
    EXPECT_EQ(grid.column(Columns - 1).width(), CellColumn::Width::Four);
    for (int column = 0; column < Columns; ++column)
        for (int row = 0; row < Rows; ++row)
            ASSERT_EQ(pool.text(grid.at(column, row)), std::to_string(column * Rows + row));
}

class ResizedColumn : public ::testing::TestWithParam<TextId> {};

TEST_P(ResizedColumn, KeepsItsCellsForMoreAndForFewerRows) {
    for (int before = 1; before <= 20; ++before)
        for (int after = 0; after <= 40; ++after) {
            CellGrid grid;
            grid.resize(2, before);
            for (int row = 0; row < before; ++row)
                grid.set(1, row, GetParam() - static_cast<TextId>(row));
            grid.resize(2, after);
            ASSERT_EQ(grid.rows(), after);
            for (int row = 0; row < after; ++row)
                ASSERT_EQ(grid.at(1, row), row < before ? GetParam() - static_cast<TextId>(row) : EmptyText)
                    << before << " to " << after;
        }
}

INSTANTIATE_TEST_SUITE_P(Widths, ResizedColumn, ::testing::Values(200u, 60000u, 0xFFFFFFFFu));

TEST(CellGrid, CellsLostByShrinkingDoNotReturn) {
    for (const TextId id : {200u, 60000u, 90000u}) {
        CellGrid grid;
        grid.resize(4, 6);
        grid.set(3, 5, id);
        grid.resize(3, 6);
        grid.resize(4, 6);
        EXPECT_EQ(grid.at(3, 5), EmptyText);
        grid.set(3, 5, id);
        grid.resize(4, 5);
        grid.resize(4, 6);
        EXPECT_EQ(grid.at(3, 5), EmptyText);
    }
}

TEST(CellGrid, AGridOfNoCellsHoldsNothing) {
    for (const auto& [columns, rows] : {std::pair{0, 0}, {0, 6}, {32, 0}}) {
        CellGrid grid;
        grid.resize(columns, rows);
        EXPECT_FALSE(grid.set(0, 0, 7));
        EXPECT_EQ(grid.at(0, 0), EmptyText);
        grid.clear();
        EXPECT_EQ(grid.columns(), columns);
        EXPECT_EQ(grid.rows(), rows);
    }
}

TEST(CellGrid, ClearingWholeColumnsGivesTheirMemoryBack) {
    CellGrid grid;
    grid.resize(3, 6);
    for (int column = 0; column < 3; ++column)
        grid.set(column, 2, 70000);
    grid.clear(1, 1, 0, 6);
    EXPECT_EQ(grid.column(0).width(), CellColumn::Width::Four);
    EXPECT_EQ(grid.column(1).data(), nullptr);
    grid.clear();
    EXPECT_EQ(grid.column(0).data(), nullptr);
    EXPECT_EQ(grid.column(2).data(), nullptr);
    EXPECT_EQ(grid.columns(), 3);
}

TEST(CellGrid, ClearingNothingChangesNothing) {
    CellGrid grid;
    grid.resize(2, 6);
    grid.set(1, 5, 8);
    grid.clear(0, 0, 0, 6);
    grid.clear(0, 2, 3, 0);
    grid.clear(0, -1, 0, 6);
    grid.clear(0, 2, 0, -1);
    grid.clear(2, 5, 0, 6);
    grid.clear(0, 2, 6, 6);
    EXPECT_EQ(grid.at(1, 5), 8u);
}

TEST(CellGrid, AFilledCellMayBeEmptiedAgain) {
    CellGrid grid;
    grid.resize(1, 6);
    grid.set(0, 0, 300);
    EXPECT_TRUE(grid.set(0, 0, EmptyText));
    EXPECT_EQ(grid.at(0, 0), EmptyText);
}

// Every cell its own id; columns of all three widths, and one without memory.
constexpr TextId FirstIdOfColumn[] = {1, 250, 300, 65530, 70000, 0, 100};
constexpr int WideColumns = 7, WideRows = 10, WithoutMemory = 5;

TextId wideId(int column, int row) {
    return column == WithoutMemory ? EmptyText : FirstIdOfColumn[column] + static_cast<TextId>(row);
}

void fillWide(CellGrid& grid) {
    grid.resize(0, 0);
    grid.resize(WideColumns, WideRows);
    for (int column = 0; column < WideColumns; ++column)
        for (int row = 0; row < WideRows; ++row)
            grid.set(column, row, wideId(column, row));
}

// `source` gives for every column the one that stood there before, or -1 for "".
template <class Source>
void expectColumns(const CellGrid& grid, Source source) {
    ASSERT_EQ(grid.columns(), WideColumns);
    ASSERT_EQ(grid.rows(), WideRows);
    for (int column = 0; column < WideColumns; ++column)
        for (int row = 0; row < WideRows; ++row) {
            const int from = source(column);
            ASSERT_EQ(grid.at(column, row), from < 0 ? EmptyText : wideId(from, row))
                << "column " << column << ", row " << row;
        }
}

TEST(CellGrid, InsertedColumnsPushTheOthersUpToTheEnd) {
    for (int end = 0; end <= WideColumns; ++end)
        for (int at = 0; at <= WideColumns; ++at)
            for (int count = 0; count <= WideColumns + 1; ++count) {
                CellGrid grid;
                fillWide(grid);
                grid.insertColumns(at, count, end);
                SCOPED_TRACE(::testing::Message() << count << " at " << at << " before " << end);
                expectColumns(grid, [&](int column) {
                    if (column < at || column >= end) return column;
                    return column < at + count ? -1 : column - count;
                });
            }
}

TEST(CellGrid, RemovedColumnsPullTheOthersUpToTheEnd) {
    for (int end = 0; end <= WideColumns; ++end)
        for (int at = 0; at <= WideColumns; ++at)
            for (int count = 0; count <= WideColumns + 1; ++count) {
                CellGrid grid;
                fillWide(grid);
                grid.removeColumns(at, count, end);
                SCOPED_TRACE(::testing::Message() << count << " at " << at << " before " << end);
                expectColumns(grid, [&](int column) {
                    if (column < at || column >= end) return column;
                    return column + count < end ? column + count : -1;
                });
            }
}

TEST(CellGrid, MovedColumnsKeepTheirWidthAndNewOnesOwnNoMemory) {
    CellGrid grid;
    fillWide(grid);
    grid.insertColumns(1, 2, WideColumns);
    EXPECT_EQ(grid.column(1).data(), nullptr);
    EXPECT_EQ(grid.column(2).data(), nullptr);
    EXPECT_EQ(grid.column(3).width(), CellColumn::Width::Two);
    EXPECT_EQ(grid.column(6).width(), CellColumn::Width::Four);
    grid.removeColumns(0, 3, WideColumns);
    EXPECT_EQ(grid.column(3).width(), CellColumn::Width::Four);
    EXPECT_EQ(grid.column(4).data(), nullptr);
    EXPECT_EQ(grid.column(6).data(), nullptr);
}

TEST(CellGrid, CellsAreCopiedBetweenColumnsOfEveryWidth) {
    for (int from = 0; from < WideColumns; ++from)
        for (int to = 0; to < WideColumns; ++to)
            for (const auto& [first, count] : {std::pair{0, WideRows}, {0, 3}, {4, 3}, {9, 1}, {7, 50}}) {
                CellGrid grid;
                fillWide(grid);
                grid.copyCells(grid, from, to, first, count);
                for (int column = 0; column < WideColumns; ++column)
                    for (int row = 0; row < WideRows; ++row) {
                        const bool taken = column == to && row >= first && row < first + count;
                        ASSERT_EQ(grid.at(column, row), wideId(taken ? from : column, row))
                            << from << " to " << to;
                    }
            }
}

TEST(CellGrid, CopiesOutsideTheGridsChangeNothing) {
    CellGrid grid, source;
    fillWide(grid);
    source.resize(2, 40);
    source.set(1, 39, 8);
    for (const auto& [from, to] : {std::pair{-1, 0}, {2, 0}, {1, -1}, {1, WideColumns}, {99, 99}})
        grid.copyCells(source, from, to, 0, WideRows);
    grid.copyCells(source, 1, 0, WideRows, 30);
    grid.copyCells(source, 1, 0, 3, 0);
    grid.copyCells(source, 1, 0, 3, -2);
    expectColumns(grid, [](int column) { return column; });
    grid.copyCells(source, 1, 0, 0, 40);
    expectColumns(grid, [](int column) { return column == 0 ? -1 : column; });
}

TEST(CellGrid, RowsThatTheSourceDoesNotHaveStay) {
    CellGrid grid, low;
    fillWide(grid);
    low.resize(1, 4);
    low.set(0, 1, 9);
    grid.copyCells(low, 0, 3, 0, WideRows);
    for (int row = 0; row < WideRows; ++row)
        EXPECT_EQ(grid.at(3, row), row == 1 ? 9u : row < 4 ? EmptyText : wideId(3, row));
}

TEST(CellGrid, RandomMovesAgreeWithListsOfCells) {
    std::mt19937 random(9);
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    constexpr int Columns = 24, Rows = 18;
    CellGrid grid;
    grid.resize(Columns, Rows);
    std::vector<std::vector<TextId>> model(Columns, std::vector<TextId>(Rows));
    for (int step = 0; step < 20000; ++step) {
        const int at = choose(Columns), end = choose(Columns), row = choose(Rows - 1);
        const int most = end > at ? end - at : 0, count = choose(std::min(most, 6));
        const auto first = model.begin() + at;
        switch (choose(9)) {
        case 0:
            grid.insertColumns(at, count, end);
            if (count == 0) break;
            std::move_backward(first, first + (most - count), first + most);
            std::fill(first, first + count, std::vector<TextId>(Rows));
            break;
        case 1:
            grid.removeColumns(at, count, end);
            if (count == 0) break;
            std::move(first + count, first + most, first);
            std::fill(first + (most - count), first + most, std::vector<TextId>(Rows));
            break;
        case 2:
        case 3: {
            const int rows = choose(Rows);
            grid.copyCells(grid, at, end, row, rows);
            if (at == Columns || end == Columns) break;
            for (int each = row; each < std::min(Rows, row + rows); ++each)
                model[static_cast<std::size_t>(end)][static_cast<std::size_t>(each)] =
                    model[static_cast<std::size_t>(at)][static_cast<std::size_t>(each)];
            break;
        }
        default: {
            const int ranges[] = {0, 255, 65535, 200000};
            const auto id = static_cast<TextId>(choose(ranges[choose(3)]));
            if (grid.set(at, row, id))
                model[static_cast<std::size_t>(at)][static_cast<std::size_t>(row)] = id;
        }
        }
        for (int column = 0; column < Columns; ++column)
            for (int each = 0; each < Rows; ++each)
                ASSERT_EQ(grid.at(column, each),
                          model[static_cast<std::size_t>(column)][static_cast<std::size_t>(each)])
                    << "after step " << step;
    }
}

} // namespace
} // namespace tabrova
