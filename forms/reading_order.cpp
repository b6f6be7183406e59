#include "forms/reading_order.h"

#include <algorithm>
#include <iterator>

namespace tabrova {

namespace {

// A few pixels of overlap, which some styles leave between rows, still are two rows.
constexpr int Overlap = 2;

// From its first pixel to the one behind its last.
struct Extent {
    int begin, end;
};

struct Place {
    std::size_t position;
    Extent across; // from the side where reading begins
    Extent down;
};

using Places = std::vector<Place>;

Place placeOf(std::size_t position, const QRect& place, Qt::LayoutDirection direction) {
    const int left = place.x(), right = left + place.width();
    const Extent across = direction == Qt::RightToLeft ? Extent{-right, -left} : Extent{left, right};
    return {position, across, {place.y(), place.y() + place.height()}};
}

// The groups between which a straight line runs that touches no place.
std::vector<Places> cut(Places places, Extent Place::*axis) {
    std::stable_sort(places.begin(), places.end(), [axis](const Place& first, const Place& second) {
        return (first.*axis).begin < (second.*axis).begin;
    });
    std::vector<Places> groups;
    int end = 0;
    for (const Place& place : places) {
        const Extent extent = place.*axis;
        if (groups.empty() || extent.begin >= end - Overlap) {
            groups.emplace_back();
            end = extent.end;
        }
        groups.back().push_back(place);
        end = std::max(end, extent.end);
    }
    return groups;
}

bool isOneRow(const std::vector<Places>& columns) {
    return std::all_of(columns.begin(), columns.end(),
                       [](const Places& column) { return column.size() == 1; });
}

Places together(std::span<const Places> groups) {
    Places all;
    for (const Places& group : groups)
        std::copy(group.begin(), group.end(), std::back_inserter(all));
    return all;
}

// How many columns are read before the others: as few as leave a rest that has rows.
std::size_t columnsReadFirst(std::span<const Places> columns) {
    std::size_t first = 1;
    while (first + 1 < columns.size() && cut(together(columns.subspan(first)), &Place::down).size() == 1)
        ++first;
    return first;
}

void read(const Places& places, std::vector<std::size_t>& order);

void readColumns(const std::vector<Places>& columns, std::vector<std::size_t>& order) {
    if (isOneRow(columns)) {
        for (const Places& column : columns)
            order.push_back(column.front().position);
        return;
    }
    const std::span all(columns);
    const std::size_t first = columnsReadFirst(all);
    read(together(all.first(first)), order);
    read(together(all.subspan(first)), order);
}

// They lie upon each other, sorted by their upper edges.
void readPile(const Places& places, std::vector<std::size_t>& order) {
    const auto top =
        std::min_element(places.begin(), places.end(), [](const Place& first, const Place& second) {
            return std::pair(first.down.begin, first.across.begin) <
                   std::pair(second.down.begin, second.across.begin);
        });
    order.push_back(top->position);
    Places rest(places.begin(), top);
    rest.insert(rest.end(), std::next(top), places.end());
    read(rest, order);
}

void read(const Places& places, std::vector<std::size_t>& order) {
    const std::vector<Places> rows = cut(places, &Place::down);
    if (rows.size() > 1) {
        for (const Places& row : rows)
            read(row, order);
        return;
    }
    const std::vector<Places> columns = cut(places, &Place::across);
    if (columns.size() > 1 || places.size() <= 1) return readColumns(columns, order);
    readPile(places, order);
}

} // namespace

std::vector<std::size_t> readingOrder(std::span<const QRect> places, Qt::LayoutDirection direction) {
    Places all;
    for (std::size_t position = 0; position < places.size(); ++position)
        all.push_back(placeOf(position, places[position], direction));
    std::vector<std::size_t> order;
    read(all, order);
    return order;
}

} // namespace tabrova
