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

void CellGrid::insertColumns(int at, int count, int end) {
    if (at >= end) return;
    const auto first = columns_.begin() + at;
    const auto last = columns_.begin() + end;
    count = std::min(count, end - at);
    std::rotate(first, last - count, last);
    std::for_each(first, first + count, [](CellColumn& column) { column.reset(); });
}

void CellGrid::removeColumns(int at, int count, int end) {
    if (at >= end) return;
    const auto first = columns_.begin() + at;
    const auto last = columns_.begin() + end;
    count = std::min(count, end - at);
    std::rotate(first, first + count, last);
    std::for_each(last - count, last, [](CellColumn& column) { column.reset(); });
}

void CellGrid::insertCells(int at, int end, int firstRow, int rowCount) {
    if (at >= end) return;
    CellColumn* const columns = columns_.data();
    for (int column = end - 1; column > at; --column)
        columns[column].copyRows(columns[column - 1], firstRow, rowCount, rows_);
    columns[at].clear(firstRow, rowCount);
}

void CellGrid::removeRows(int first, int count) {
    if (first < 0 || count < 0 || first + count > rows_) return;
    for (CellColumn& column : columns_)
        column.removeRows(first, count, rows_);
}

void CellGrid::copyCells(const CellGrid& source, int from, int to, int firstRow, int rowCount) {
    if (from < 0 || from >= source.columns() || to < 0 || to >= columns()) return;
    const int rowEnd = std::min({firstRow + rowCount, rows_, source.rows_});
    if (firstRow < 0 || firstRow >= rowEnd) return;
    columns_[static_cast<std::size_t>(to)].copyRows(source.column(from), firstRow, rowEnd - firstRow, rows_);
}

} // namespace tabrova
