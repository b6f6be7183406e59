#include "tools/drum_machine/drum_song_file.h"

#include "core/files/line_reader.h"
#include "core/text/conversions.h"
#include "sound/drum_names.h"

#include <algorithm>

namespace tabrova {

namespace {

std::optional<int> nextInteger(LineReader& lines) {
    const auto line = lines.next();
    return line ? toInteger32(*line) : std::nullopt;
}

bool readDrums(DrumSong& song, LineReader& lines) {
    for (DrumRow& row : song.rows) {
        const auto drum = nextInteger(lines);
        if (!drum || *drum < -1 || *drum >= DrumCount) return false;
        row.drum = *drum;
    }
    return true;
}

bool readWithin(int& value, int least, int most, LineReader& lines) {
    const auto number = nextInteger(lines);
    if (number) value = std::clamp(*number, least, most);
    return number.has_value();
}

bool readSteps(DrumSong& song, LineReader& lines) {
    for (DrumRow& row : song.rows)
        for (std::size_t position = 0; position < row.Steps.size(); ++position) {
            const auto line = lines.next();
            const auto set = line ? toBoolean(*line) : std::nullopt;
            if (!set) return false;
            row.Steps[position] = *set;
        }
    return true;
}

} // namespace

FileText drumSongText(const DrumSong& song) {
    FileText text;
    for (const DrumRow& row : song.rows)
        text.addLine(std::to_string(row.drum));
    for (const DrumRow& row : song.rows)
        text.addLine(std::to_string(row.volume));
    text.addLine(std::to_string(song.speed));
    for (const DrumRow& row : song.rows)
        for (std::size_t position = 0; position < row.Steps.size(); ++position)
            text.addLine(printedBoolean(row.Steps[position]));
    return text;
}

bool readDrumSong(DrumSong& song, std::istream& file) {
    LineReader lines(file);
    if (!readDrums(song, lines)) return false;
    for (DrumRow& row : song.rows)
        if (!readWithin(row.volume, SoftestDrum, LoudestDrum, lines)) return false;
    return readWithin(song.speed, SlowestSteps, FastestSteps, lines) && readSteps(song, lines);
}

} // namespace tabrova
