// The closing of the separators' gaps, step by step: far too slow for a piece, and plain.
#pragma once

#include "core/document/separator_gaps.h"

namespace tabrova::testing {

inline void plainGapStep(std::vector<OldColumn>& columns, std::size_t from) {
    for (std::size_t at = from; at < columns.size(); ++at) {
        if (at + 1 == columns.size()) continue; // there is nothing to take
        if (!columns[at].separator) columns[at].notes = columns[at + 1].notes;
        columns[at].separator = columns[at + 1].separator;
    }
}

inline void plainGapWalk(std::vector<OldColumn>& columns, const std::vector<std::uint8_t>& widths) {
    for (const int width : widths)
        for (std::size_t at = 0; at < columns.size(); ++at) {
            if (!columns[at].separator) continue;
            for (int step = 0; step < width - 1; ++step)
                plainGapStep(columns, at);
        }
}

} // namespace tabrova::testing
