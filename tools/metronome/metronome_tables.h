// The click rates and the preset beats of the metronome, in the order of their lists.
#pragma once

#include <QString>

#include <array>

namespace tabrova {

constexpr std::array<std::int16_t, 24> ClickRates = {30,  40,  50,  60,  70,  80,  90,  100,
                                                     110, 120, 130, 140, 150, 160, 170, 180,
                                                     190, 200, 210, 220, 240, 480, 960, 1920};
// It is warned of.
constexpr std::int16_t FastRate = 1920;

constexpr int MostBeatsPerBar = 4;

struct Tempo {
    const char* name;
    std::int16_t clickRate; // beats a minute
};

constexpr std::array<Tempo, 10> Tempi = {{
    {"Grave", 30},
    {"Lento", 50},
    {"Largo", 60},
    {"Adagio", 70},
    {"Andante", 80},
    {"Moderato", 110},
    {"Allegro", 140},
    {"Vivace", 160},
    {"Presto", 190},
    {"Prestissimo", 240},
}};

// Each tempo for each number of beats in a bar.
constexpr int PresetBeats = MostBeatsPerBar * static_cast<int>(Tempi.size());
constexpr int PresetClickPitch = 64;
constexpr std::int16_t PresetNumberOfBars = 50;

struct PresetBeat {
    Tempo tempo;
    int beatsPerBar;
};

constexpr PresetBeat presetBeat(int row) {
    const auto tempi = static_cast<int>(Tempi.size());
    return {Tempi[static_cast<std::size_t>(row % tempi)], row / tempi + 1};
}

// "120 BPM".
QString rateText(std::int16_t clickRate);
// "1/4 Grave (30 BPM)".
QString presetText(const PresetBeat& preset);

// The row of the rate; the one behind the last for a rate that is not offered.
int rateRow(std::int16_t clickRate);

} // namespace tabrova
