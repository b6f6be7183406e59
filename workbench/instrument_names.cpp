#include "workbench/instrument_names.h"

#include "core/files/text_lines.h"

namespace tabrova {

namespace {

constexpr std::size_t MostInstruments = 32768;
constexpr qsizetype LongestName = 60; // characters

} // namespace

void InstrumentNames::fill_sound_list(const std::filesystem::path& programFolder) {
    for (const std::string& name : readTextLines(programFolder / "genmidi.txt", MostInstruments))
        names_.append(QString::fromStdString(name).left(LongestName));
}

} // namespace tabrova
