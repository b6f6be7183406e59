#include "tools/drum_machine/drum_song.h"

namespace tabrova {

DrumSong::DrumSong() {
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row].drum = static_cast<int>(row);
}

int DrumSong::stepsOfPattern(int pattern) const {
    int set = 0;
    for (const DrumRow& row : rows)
        for (int step = 0; step < PatternSteps; ++step)
            set += row.Steps[static_cast<std::size_t>(pattern * PatternSteps + step)];
    return set;
}

void DrumSong::completeRow(std::size_t row) {
    if (rows[row].drum < 0) rows[row].drum = static_cast<int>(row);
}

} // namespace tabrova
