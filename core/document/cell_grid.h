// A grid of texts by (column, row), columns outermost: a whole column moves as one piece, and a document
// grows by a staff in time proportional to the staff. Sizes are never negative. Every operation cuts the
// columns and rows that it is given to those that are held: the document's counts need not fit its grids.
#pragma once

#include "core/document/cell_column.h"

#include <vector>

namespace tabrova {

class CellGrid {
  public:
    int columns() const { return static_cast<int>(columns_.size()); }
    int rows() const { return rows_; }
    bool contains(int column, int row) const {
        return column >= 0 && column < columns() && row >= 0 && row < rows_;
    }

    // "" outside the grid, so that what looks past an edge sees nothing there.
    TextId at(int column, int row) const {
        return contains(column, row) ? columns_[static_cast<std::size_t>(column)].at(row) : EmptyText;
    }
    // False, with nothing changed, outside the grid.
    bool set(int column, int row, TextId id);

    // `index` must lie in the grid.
    const CellColumn& column(int index) const { return columns_[static_cast<std::size_t>(index)]; }

    // Keeps the cells that fit at their coordinates; new cells are "".
    void resize(int columns, int rows);
    // Columns first to first + count - 1, rows firstRow to firstRow + rowCount - 1.
    void clear(int first, int count, int firstRow, int rowCount);
    void clear() { clear(0, columns(), 0, rows_); }

    // Columns `at` to `end` - `count` - 1 move `count` to the right; the `count` columns at `at` become "",
    // and what stood in the last `count` before `end` is lost. Without a column `at` before `end` nothing
    // happens.
    void insertColumns(int at, int count, int end);
    // Columns `at` + `count` to `end` - 1 move `count` to the left; the last `count` columns before `end`
    // become "". Without a column `at` before `end` nothing happens.
    void removeColumns(int at, int count, int end);
    // In the rows firstRow to firstRow + rowCount - 1 alone the columns `at` to `end` - 2 move one to the
    // right, and column `at` becomes "", also where it does not lie before `end`.
    void insertCells(int at, int end, int firstRow, int rowCount);
    // In all columns the rows behind `first` + `count` - 1 move up by `count`; the last `count` rows become
    // "". Rows that do not lie in the grid are passed over.
    void removeRows(int first, int count);
    // The rows firstRow to firstRow + rowCount - 1 of column `to` take the cells of column `from` of
    // `source`. A column that is not there changes nothing.
    void copyCells(const CellGrid& source, int from, int to, int firstRow, int rowCount);

  private:
    struct Range {
        int first;
        int end; // one behind the last; not above `first` if nothing is held
    };
    static Range held(int first, int count, int size);

    std::vector<CellColumn> columns_;
    int rows_ = 0;
};

} // namespace tabrova
