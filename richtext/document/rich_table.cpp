#include "richtext/document/rich_table.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tabrova {

namespace {

constexpr int SameEdge = 20; // twips
constexpr int NarrowestCell = 60;

// The right edges of a row's cells, each at least a little behind the one before.
std::vector<int> rowEdges(const RowLook& row) {
    std::vector<int> edges = {row.left};
    for (const CellLook& cell : row.cells)
        edges.push_back(std::max(cell.end, edges.back() + NarrowestCell));
    return edges;
}

std::vector<int> allEdges(const RichTable& table, int mostColumns) {
    std::vector<int> edges;
    for (const RichRow& row : table.rows) {
        const std::vector<int> own = rowEdges(row.look);
        edges.insert(edges.end(), own.begin(), own.end());
    }
    std::sort(edges.begin(), edges.end());
    const auto same = [](int a, int b) { return b - a < SameEdge; };
    edges.erase(std::unique(edges.begin(), edges.end(), same), edges.end());
    const auto most = static_cast<std::size_t>(mostColumns) + 1;
    if (edges.size() > most) edges.erase(edges.begin() + mostColumns, edges.end() - 1);
    if (edges.size() < 2) edges.push_back(edges.front() + NarrowestCell);
    return edges;
}

// The last edge that is not behind this one.
int columnAt(const std::vector<int>& edges, int place) {
    const auto after = std::upper_bound(edges.begin(), edges.end(), place + SameEdge - 1);
    return std::max(0, static_cast<int>(after - edges.begin()) - 1);
}

// The cells of one row: those that go on from the cell before belong to it.
std::vector<PlacedCell> placedRow(const RichRow& row, int number, const TableGrid& grid) {
    const std::vector<int> edges = rowEdges(row.look);
    std::vector<PlacedCell> cells;
    int free = columnAt(grid.edges, edges.front());
    for (std::size_t at = 0; at < row.look.cells.size(); ++at) {
        const int end = std::min(columnAt(grid.edges, edges[at + 1]), grid.columns());
        const CellLook& look = row.look.cells[at];
        if (look.across == CellMerge::Following && !cells.empty()) {
            cells.back().columns = std::max(cells.back().columns, end - cells.back().column);
        } else if (end > free) {
            cells.push_back({&look, &row.cells[at], number, free, 1, end - free});
        }
        free = std::max(free, end);
    }
    return cells;
}

} // namespace

TableGrid tableGrid(const RichTable& table, int mostColumns) {
    TableGrid grid;
    grid.edges = allEdges(table, mostColumns);
    // The cells that may grow down into the next row, by the columns that they take.
    std::map<std::pair<int, int>, std::size_t> above;
    int number = 0;
    for (const RichRow& row : table.rows) {
        std::map<std::pair<int, int>, std::size_t> growing;
        for (const PlacedCell& cell : placedRow(row, number, grid)) {
            const std::pair place(cell.column, cell.columns);
            const auto found = above.find(place);
            if (cell.look->down == CellMerge::Following && found != above.end()) {
                ++grid.cells[found->second].rows;
                growing.insert(*found);
                continue;
            }
            grid.cells.push_back(cell);
            if (cell.look->down != CellMerge::None) growing.emplace(place, grid.cells.size() - 1);
        }
        above = std::move(growing);
        ++number;
    }
    return grid;
}

} // namespace tabrova
