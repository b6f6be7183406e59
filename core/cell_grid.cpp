#include "core/cell_grid.h"

#include <algorithm>

namespace tabrova {

bool CellGrid::set(int column, int row, TextId id) {
    if (!contains(column, row)) return false;
    columns_[static_cast<std::size_t>(column)].set(row, id, rows_);
    return true;
}

void CellGrid::resize(int columns, int rows) {
    columns_.resize(static_cast<std::size_t>(columns));
    if (rows != rows_)
        for (CellColumn& column : columns_)
            column.resize(rows_, rows);
    rows_ = rows;
}

void CellGrid::clear(int first, int count, int firstRow, int rowCount) {
    const int columnEnd = std::min(first + count, columns());
    const int rowEnd = std::min(firstRow + rowCount, rows_);
    firstRow = std::max(firstRow, 0);
    for (int column = std::max(first, 0); column < columnEnd; ++column) {
        CellColumn& cells = columns_[static_cast<std::size_t>(column)];
        if (firstRow == 0 && rowEnd == rows_) {
            cells.reset();
        } else {
            cells.clear(firstRow, rowEnd - firstRow);
        }
    }
}

} // namespace tabrova
