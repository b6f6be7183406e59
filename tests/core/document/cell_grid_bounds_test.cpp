// Columns and rows that a grid does not hold are passed over by every operation: at random against plain
// loops over single cells.
#include "core/document/cell_grid.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

namespace tabrova {
namespace {

class PlainCells {
  public:
    PlainCells(int columns, int rows) : columns_(columns), rows_(rows) {
        cells_.assign(static_cast<std::size_t>(columns * rows), EmptyText);
    }

    bool inside(long column, long row) const {
        return column >= 0 && column < columns_ && row >= 0 && row < rows_;
    }
    TextId at(long column, long row) const { return inside(column, row) ? cells_[place(column, row)] : 0; }
    void set(long column, long row, TextId id) {
        if (inside(column, row)) cells_[place(column, row)] = id;
    }

    void clear(long first, long count, long firstRow, long rowCount) {
        for (long column = 0; column < columns_; ++column)
            for (long row = 0; row < rows_; ++row)
                if (column >= first && column < first + count && row >= firstRow && row < firstRow + rowCount)
                    set(column, row, EmptyText);
    }
    void insertColumns(long at, long count, long end) {
        if (at < 0 || at >= std::min<long>(end, columns_)) return;
        for (long step = 0; step < std::min<long>(count, columns_); ++step) {
            for (long column = std::min<long>(end, columns_) - 1; column > at; --column)
                take(column, column - 1, 0, rows_);
            clear(at, 1, 0, rows_);
        }
    }
    void removeColumns(long at, long count, long end) {
        const long last = std::min<long>(end, columns_) - 1;
        if (at < 0 || at > last) return;
        for (long step = 0; step < std::min<long>(count, columns_); ++step) {
            for (long column = at; column < last; ++column)
                take(column, column + 1, 0, rows_);
            clear(last, 1, 0, rows_);
        }
    }
    void insertCells(long at, long end, long firstRow, long rowCount) {
        for (long column = std::min<long>(end, columns_) - 1; column > std::max<long>(at, 0); --column)
            take(column, column - 1, firstRow, rowCount);
        clear(at, 1, firstRow, rowCount);
    }
    void copyCells(const PlainCells& source, long from, long to, long firstRow, long rowCount) {
        for (long row = 0; row < rows_; ++row)
            if (row >= firstRow && row < firstRow + rowCount && source.inside(from, row))
                set(to, row, source.at(from, row));
    }
    void removeRows(long first, long count) {
        if (first < 0 || count < 0 || first + count > rows_) return;
        for (long column = 0; column < columns_; ++column)
            for (long row = first; row < rows_; ++row)
                set(column, row, at(column, row + count));
    }

  private:
    std::size_t place(long column, long row) const { return static_cast<std::size_t>(column * rows_ + row); }
    void take(long to, long from, long firstRow, long rowCount) {
        for (long row = 0; row < rows_; ++row)
            if (row >= firstRow && row < firstRow + rowCount) set(to, row, at(from, row));
    }

    int columns_;
    int rows_;
    std::vector<TextId> cells_;
};

class Bounds : public ::testing::TestWithParam<unsigned> {
  protected:
    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }
    // Mostly close to the grid's edges, now and then as far outside as a number goes.
    int wild(int size) {
        const int far[] = {INT_MAX, INT_MIN, INT_MAX / 2, -1000000};
        return choose(0, 12) == 0 ? far[choose(0, 3)] : choose(-3, size + 3);
    }

    void act(CellGrid& grid, PlainCells& plain, const CellGrid& other, const PlainCells& plainOther) {
        const int columns = grid.columns(), rows = grid.rows();
        const int a = wild(columns), b = wild(columns), c = wild(columns), d = wild(rows), e = wild(rows);
        switch (choose(0, 5)) {
        case 0:
            return grid.clear(a, b, d, e), plain.clear(a, b, d, e);
        case 1:
            return grid.insertColumns(a, b, c), plain.insertColumns(a, b, c);
        case 2:
            return grid.removeColumns(a, b, c), plain.removeColumns(a, b, c);
        case 3:
            return grid.insertCells(a, b, d, e), plain.insertCells(a, b, d, e);
        case 4:
            return grid.removeRows(d, e), plain.removeRows(d, e);
        default:
            return grid.copyCells(other, a, b, d, e), plain.copyCells(plainOther, a, b, d, e);
        }
    }

    // Ids of every width that a column can take.
    void fill(CellGrid& grid, PlainCells& plain) {
        for (int column = 0; column < grid.columns(); ++column) {
            const int widest[] = {0, 200, 60000, 1000000};
            const int most = widest[choose(0, 3)];
            for (int row = 0; row < grid.rows(); ++row) {
                const auto id = static_cast<TextId>(choose(0, most));
                grid.set(column, row, id);
                plain.set(column, row, id);
            }
        }
    }

    std::mt19937 random_{GetParam()};
};

TEST_P(Bounds, ArePassedOverByEveryOperation) {
    for (int each = 0; each < 3000; ++each) {
        const int columns = choose(0, 6), rows = choose(0, 7), otherRows = choose(0, 9);
        CellGrid grid, other;
        grid.resize(columns, rows);
        other.resize(columns, otherRows);
        PlainCells plain(columns, rows), plainOther(columns, otherRows);
        fill(grid, plain);
        fill(other, plainOther);
        for (int acts = 0; acts < 4; ++acts)
            act(grid, plain, other, plainOther);
        for (int column = -1; column <= columns; ++column)
            for (int row = -1; row <= rows; ++row)
                ASSERT_EQ(grid.at(column, row), plain.at(column, row))
                    << "grid " << each << " column " << column << " row " << row;
    }
}

INSTANTIATE_TEST_SUITE_P(FourSeeds, Bounds, ::testing::Values(1u, 2u, 3u, 4u));

} // namespace
} // namespace tabrova
