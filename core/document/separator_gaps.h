// The old document gave a bar separator a column of its own. Closing these gaps is a walk over all columns
// for each separator that was read, and each step of it moves everything behind a column.
#pragma once

#include "core/document/text_pool.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tabrova {

struct OldColumn {
    std::array<TextId, 6> notes{};
    bool separator = false;

    friend bool operator==(const OldColumn&, const OldColumn&) = default;
};

// For each width in its order, for each column k from the left that holds a separator when the walk reaches
// it, width - 1 times over: each column from k on takes the notes of the next one unless it holds a
// separator, and then that one's separator; the last column keeps what it has. Widths are 1 to 32. Gives that
// result in time that grows with the columns, not with the columns moved.
void closeSeparatorGaps(std::vector<OldColumn>& columns, const std::vector<std::uint8_t>& widths);

} // namespace tabrova
