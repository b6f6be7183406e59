#include "core/document/cell_column.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace tabrova {

namespace {

std::size_t bytesOf(CellColumn::Width width, int cells) {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(cells);
}

template <class Cell>
TextId load(const std::byte* cells, int row) {
    Cell cell;
    std::memcpy(&cell, cells + static_cast<std::size_t>(row) * sizeof(Cell), sizeof(Cell));
    return cell;
}

template <class Cell>
void save(std::byte* cells, int row, TextId id) {
    const Cell cell = static_cast<Cell>(id);
    std::memcpy(cells + static_cast<std::size_t>(row) * sizeof(Cell), &cell, sizeof(Cell));
}

} // namespace

CellColumn::Cells CellColumn::allocate(std::size_t bytes) {
    Cells cells(static_cast<std::byte*>(std::calloc(std::max<std::size_t>(bytes, 1), 1)));
    if (!cells) throw std::bad_alloc();
    return cells;
}

TextId CellColumn::at(int row) const {
    switch (width_) {
    case Width::One:
        return load<std::uint8_t>(cells_.get(), row);
    case Width::Two:
        return load<std::uint16_t>(cells_.get(), row);
    case Width::Four:
        return load<std::uint32_t>(cells_.get(), row);
    case Width::Empty:
        break;
    }
    return EmptyText;
}

void CellColumn::store(int row, TextId id) {
    switch (width_) {
    case Width::One:
        save<std::uint8_t>(cells_.get(), row, id);
        break;
    case Width::Two:
        save<std::uint16_t>(cells_.get(), row, id);
        break;
    case Width::Four:
        save<std::uint32_t>(cells_.get(), row, id);
        break;
    case Width::Empty:
        break;
    }
}

void CellColumn::set(int row, TextId id, int rows) {
    if (id == EmptyText && width_ == Width::Empty) return;
    if (widthFor(id) > width_) widen(widthFor(id), rows);
    store(row, id);
}

void CellColumn::widen(Width width, int rows) {
    CellColumn wider;
    wider.cells_ = allocate(bytesOf(width, rows));
    wider.width_ = width;
    if (width_ != Width::Empty)
        for (int row = 0; row < rows; ++row)
            wider.store(row, at(row));
    *this = std::move(wider);
}

void CellColumn::resize(int oldRows, int newRows) {
    if (width_ == Width::Empty || oldRows == newRows) return;
    if (newRows == 0) return reset();
    Cells cells = allocate(bytesOf(width_, newRows));
    std::memcpy(cells.get(), cells_.get(), bytesOf(width_, std::min(oldRows, newRows)));
    cells_ = std::move(cells);
}

void CellColumn::clear(int first, int count) {
    if (width_ == Width::Empty || count <= 0) return;
    std::memset(cells_.get() + bytesOf(width_, first), 0, bytesOf(width_, count));
}

void CellColumn::removeRows(int first, int count, int rows) {
    if (width_ == Width::Empty) return;
    std::memmove(cells_.get() + bytesOf(width_, first), cells_.get() + bytesOf(width_, first + count),
                 bytesOf(width_, rows - first - count));
    clear(rows - count, count);
}

void CellColumn::copyRows(const CellColumn& from, int first, int count, int rows) {
    if (from.width_ == Width::Empty) return clear(first, count);
    if (from.width_ > width_) widen(from.width_, rows);
    if (from.width_ == width_) {
        const std::size_t offset = bytesOf(width_, first);
        std::memmove(cells_.get() + offset, from.cells_.get() + offset, bytesOf(width_, count));
        return;
    }
    for (int row = first; row < first + count; ++row)
        store(row, from.at(row));
}

} // namespace tabrova
