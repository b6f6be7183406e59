// A grid of texts by (column, row), columns outermost: a whole column moves as one piece, and a document
// grows by a staff in time proportional to the staff. Sizes are never negative.
#pragma once

#include "core/cell_column.h"

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
    // Columns first to first + count - 1, rows firstRow to firstRow + rowCount - 1, as far as they lie in the
    // grid.
    void clear(int first, int count, int firstRow, int rowCount);
    void clear() { clear(0, columns(), 0, rows_); }

  private:
    std::vector<CellColumn> columns_;
    int rows_ = 0;
};

} // namespace tabrova
