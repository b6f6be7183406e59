// The song of the drum machine: sixteen rows of drums, a hundred patterns of sixteen steps. Rows, patterns
// and steps count from 0.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>

namespace tabrova {

constexpr int DrumRows = 16;
constexpr int PatternSteps = 16;
constexpr int SongPatterns = 100;
constexpr int SongSteps = SongPatterns * PatternSteps;

constexpr int SoftestDrum = 20, LoudestDrum = 127;    // velocity
constexpr int SlowestSteps = 20, FastestSteps = 1200; // a minute

struct DrumRow {
    int drum = 0;     // place in the list of drums; -1 for none
    int volume = 100; // velocity
    std::bitset<SongSteps> Steps;
};

struct DrumSong {
    DrumSong();

    std::array<DrumRow, DrumRows> rows;
    int speed = 480; // steps a minute

    // How many steps of the pattern are set, in all rows.
    int stepsOfPattern(int pattern) const;
    // A row without a drum takes the one of its number.
    void completeRow(std::size_t row);
};

} // namespace tabrova
