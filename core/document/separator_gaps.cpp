#include "core/document/separator_gaps.h"

#include <algorithm>

namespace tabrova {

namespace {

// One walk. Seen from the separators, which slide left by one at each step, they stand still, and a step
// gives each column right behind a separator the notes of that separator's column. After `shift` steps a
// column at y has the notes that stood `shift` columns before it, but at most at the head of the run of
// separators that ends just before y. Columns behind the last one are like the last one.
class Walk {
  public:
    explicit Walk(const std::vector<OldColumn>& columns) : columns_(columns), runs_(columns.size() + 1) {
        for (std::size_t at = 0; at < columns.size(); ++at)
            runs_[at + 1] = columns[at].separator ? runs_[at] + 1 : 0;
    }

    std::vector<OldColumn> run(std::size_t steps) const {
        std::vector<OldColumn> result(columns_.size());
        std::size_t shift = 0;
        for (std::size_t at = 0; at < result.size(); ++at) {
            if (separatorAt(at + shift)) shift += steps;
            result[at] = {notesAt(at + shift, shift), separatorAt(at + shift)};
        }
        return result;
    }

  private:
    const OldColumn& columnAt(std::size_t at) const { return columns_[std::min(at, columns_.size() - 1)]; }
    bool separatorAt(std::size_t at) const { return columnAt(at).separator; }

    // Separators in a row just before the column.
    std::size_t runBefore(std::size_t at) const {
        if (at < runs_.size()) return runs_[at];
        return columns_.back().separator ? runs_.back() + (at - columns_.size()) : 0;
    }

    const std::array<TextId, 6>& notesAt(std::size_t at, std::size_t shift) const {
        return columnAt(at - std::min(shift, runBefore(at))).notes;
    }

    const std::vector<OldColumn>& columns_;
    std::vector<std::size_t> runs_;
};

// No separators, or all in a run up to the last column: a step changes nothing.
bool isSettled(const std::vector<OldColumn>& columns) {
    const auto first = std::ranges::find(columns, true, &OldColumn::separator);
    return std::all_of(first, columns.end(), [](const OldColumn& column) { return column.separator; });
}

} // namespace

// Each walk takes away at least half of the separators that stand before the run at the end, so that there
// are few walks before the columns are settled.
void closeSeparatorGaps(std::vector<OldColumn>& columns, const std::vector<std::uint8_t>& widths) {
    for (const std::uint8_t width : widths) {
        if (width <= 1) continue;
        if (isSettled(columns)) return;
        columns = Walk(columns).run(width - 1U);
    }
}

} // namespace tabrova
