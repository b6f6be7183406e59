// The grid of a rich text's table: rows may have edges of their own, so a cell may take several columns, and
// several rows too.
#pragma once

#include "richtext/state/rich_text.h"

namespace tabrova {

struct PlacedCell {
    const CellLook* look;
    const RichCell* content;
    int row;
    int column;
    int rows = 1;
    int columns = 1;
};

struct TableGrid {
    std::vector<int> edges; // twips, one more than there are columns
    std::vector<PlacedCell> cells;

    int columns() const { return static_cast<int>(edges.size()) - 1; }
};

// Edges that are nearer to each other than an eye can tell are one. Of more columns than `mostColumns` the
// last ones are one. No two cells take the same place.
TableGrid tableGrid(const RichTable& table, int mostColumns);

} // namespace tabrova
