#include "tools/metronome/metronome_tables.h"

#include <algorithm>

namespace tabrova {

QString rateText(std::int16_t clickRate) { return QString::number(clickRate) + " BPM"; }

QString presetText(const PresetBeat& preset) {
    return QString("%1/4 %2 (%3)")
        .arg(preset.beatsPerBar)
        .arg(QString(preset.tempo.name), rateText(preset.tempo.clickRate));
}

int rateRow(std::int16_t clickRate) {
    return static_cast<int>(std::ranges::find(ClickRates, clickRate) - ClickRates.begin());
}

} // namespace tabrova
