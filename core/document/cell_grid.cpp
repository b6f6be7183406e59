#include "core/document/cell_grid.h"

#include <algorithm>

namespace tabrova {

// In 64 bits, since a count may reach past every number of rows.
CellGrid::Range CellGrid::held(int first, int count, int size) {
    const std::int64_t end = static_cast<std::int64_t>(first) + count;
    return {std::max(first, 0), static_cast<int>(std::clamp<std::int64_t>(end, 0, size))};
}

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
    const Range wanted = held(first, count, columns());
    const Range rows = held(firstRow, rowCount, rows_);
    for (int column = wanted.first; column < wanted.end; ++column) {
        CellColumn& cells = columns_[static_cast<std::size_t>(column)];
        if (rows.first == 0 && rows.end == rows_) {
            cells.reset();
        } else {
            cells.clear(rows.first, rows.end - rows.first);
        }
    }
}

void CellGrid::insertColumns(int at, int count, int end) {
    end = std::min(end, columns());
    if (at < 0 || count <= 0 || at >= end) return;
    const auto first = columns_.begin() + at;
    const auto last = columns_.begin() + end;
    count = std::min(count, end - at);
    std::rotate(first, last - count, last);
    std::for_each(first, first + count, [](CellColumn& column) { column.reset(); });
}

void CellGrid::removeColumns(int at, int count, int end) {
    end = std::min(end, columns());
    if (at < 0 || count <= 0 || at >= end) return;
    const auto first = columns_.begin() + at;
    const auto last = columns_.begin() + end;
    count = std::min(count, end - at);
    std::rotate(first, first + count, last);
    std::for_each(last - count, last, [](CellColumn& column) { column.reset(); });
}

void CellGrid::insertCells(int at, int end, int firstRow, int rowCount) {
    const Range rows = held(firstRow, rowCount, rows_);
    const int count = rows.end - rows.first;
    if (count <= 0) return;
    CellColumn* const cells = columns_.data();
    for (int column = std::clamp(end, 0, columns()) - 1; column > std::max(at, 0); --column)
        cells[column].copyRows(cells[column - 1], rows.first, count, rows_);
    if (at >= 0 && at < columns()) cells[at].clear(rows.first, count);
}

void CellGrid::removeRows(int first, int count) {
    if (first < 0 || count < 0 || first > rows_ - count) return;
    for (CellColumn& column : columns_)
        column.removeRows(first, count, rows_);
}

void CellGrid::copyCells(const CellGrid& source, int from, int to, int firstRow, int rowCount) {
    if (from < 0 || from >= source.columns() || to < 0 || to >= columns()) return;
    const Range rows = held(firstRow, rowCount, std::min(rows_, source.rows_));
    if (rows.first >= rows.end) return;
    columns_[static_cast<std::size_t>(to)].copyRows(source.column(from), rows.first, rows.end - rows.first,
                                                    rows_);
}

} // namespace tabrova
