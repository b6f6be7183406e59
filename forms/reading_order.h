// The order in which the controls of a form are read, from their places alone: rows from top to bottom, in a
// row from the side where reading begins. A place beside several rows, as a list beside a column of check
// boxes, is read before them or after them, whichever side it stands on.
#pragma once

#include <QRect>

#include <cstddef>
#include <span>
#include <vector>

namespace tabrova {

// Positions in `places`, each of them once. Places that lie upon each other are read by their upper edges,
// equal ones in the order given.
std::vector<std::size_t> readingOrder(std::span<const QRect> places, Qt::LayoutDirection direction);

} // namespace tabrova
