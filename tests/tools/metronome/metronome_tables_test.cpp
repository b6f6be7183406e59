// The rows of the metronome's two lists.
#include "tools/metronome/metronome_tables.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(ClickRateRows, AreTheseInThisOrder) {
    const char* const rows[] = {"30 BPM",  "40 BPM",  "50 BPM",  "60 BPM",  "70 BPM",  "80 BPM",
                                "90 BPM",  "100 BPM", "110 BPM", "120 BPM", "130 BPM", "140 BPM",
                                "150 BPM", "160 BPM", "170 BPM", "180 BPM", "190 BPM", "200 BPM",
                                "210 BPM", "220 BPM", "240 BPM", "480 BPM", "960 BPM", "1920 BPM"};
    ASSERT_EQ(ClickRates.size(), std::size(rows));
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        EXPECT_EQ(rateText(ClickRates[row]).toStdString(), rows[row]);
        EXPECT_EQ(rateRow(ClickRates[row]), static_cast<int>(row));
    }
    EXPECT_EQ(rateRow(230), 24);
}

TEST(PresetRows, AreTenTempiForEachNumberOfBeats) {
    const std::pair<const char*, int> tempi[] = {{"Grave (30 BPM)", 30},     {"Lento (50 BPM)", 50},
                                                 {"Largo (60 BPM)", 60},     {"Adagio (70 BPM)", 70},
                                                 {"Andante (80 BPM)", 80},   {"Moderato (110 BPM)", 110},
                                                 {"Allegro (140 BPM)", 140}, {"Vivace (160 BPM)", 160},
                                                 {"Presto (190 BPM)", 190},  {"Prestissimo (240 BPM)", 240}};
    ASSERT_EQ(PresetBeats, 40);
    for (int row = 0; row < 40; ++row) {
        const auto& [name, rate] = tempi[row % 10];
        const PresetBeat preset = presetBeat(row);
        EXPECT_EQ(presetText(preset).toStdString(), std::to_string(row / 10 + 1) + "/4 " + name);
        EXPECT_EQ(preset.tempo.clickRate, rate);
        EXPECT_EQ(preset.beatsPerBar, row / 10 + 1);
        EXPECT_LT(rateRow(preset.tempo.clickRate), 24);
    }
}

} // namespace
} // namespace tabrova
