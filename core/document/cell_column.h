// One column of a grid: the text ids of all rows, in 1, 2 or 4 bytes a cell, whichever the largest id needs.
// A column that never held a text owns no memory at all.
#pragma once

#include "core/document/text_pool.h"

#include <cstdlib>
#include <memory>

namespace tabrova {

class CellColumn {
  public:
    enum class Width : std::uint8_t { Empty = 0, One = 1, Two = 2, Four = 4 };

    CellColumn() = default;

    Width width() const { return width_; }
    const std::byte* data() const { return cells_.get(); }

    // `row` must lie in the column: the grid that owns the column knows how many rows it has.
    TextId at(int row) const;
    void set(int row, TextId id, int rows);

    // Keeps the cells at their rows; new cells are "".
    void resize(int oldRows, int newRows);
    // Rows first to first + count - 1 become "".
    void clear(int first, int count);
    // The rows behind first + count - 1 move up by `count`; the last `count` of `rows` become "".
    void removeRows(int first, int count, int rows);
    // The same rows take the cells of `from`.
    void copyRows(const CellColumn& from, int first, int count, int rows);
    void reset() {
        cells_.reset();
        width_ = Width::Empty;
    }

  private:
    struct Free {
        void operator()(std::byte* cells) const { std::free(cells); }
    };
    using Cells = std::unique_ptr<std::byte[], Free>;

    static Cells allocate(std::size_t bytes);
    static Width widthFor(TextId id) { return id < 256 ? Width::One : id < 65536 ? Width::Two : Width::Four; }
    void widen(Width width, int rows);
    void store(int row, TextId id);

    Cells cells_;
    Width width_ = Width::Empty;
};

} // namespace tabrova
