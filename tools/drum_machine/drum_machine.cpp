#include "tools/drum_machine/drum_machine.h"

#include "core/files/regular_file.h"
#include "core/files/replaced_file.h"
#include "sound/beat_time.h"
#include "sound/drum_names.h"
#include "sound/pitch.h"
#include "tools/drum_machine/drum_song_file.h"

namespace tabrova {

DrumMachine::DrumMachine(MidiOutput& sound, TimerList& timers, QObject* parent)
    : sound_(sound), tmrplayback_(
                         timers, "tmrplayback", beatTime(song.speed), [this] { tick(); }, parent),
      tmrplaysong_(
          timers, "tmrplaysong", beatTime(song.speed), [] {}, parent) {}

void DrumMachine::pressStep(int row, int step) {
    const bool set = !isShown(row, step);
    shown_[at(row)][at(step)] = set;
    song.rows[at(row)].Steps[at(pattern_ * PatternSteps + step)] = set;
}

void DrumMachine::choosePattern(int pattern) {
    if (pattern == pattern_) return;
    pattern_ = pattern;
    showPattern();
}

void DrumMachine::showPattern() {
    tmrplayback_.setEnabled(false);
    playing_ = false;
    sounding_ = -1;
    for (int row = 0; row < DrumRows; ++row)
        for (int step = 0; step < PatternSteps; ++step)
            shown_[at(row)][at(step)] = song.rows[at(row)].Steps[at(pattern_ * PatternSteps + step)];
    tell(Change::Steps);
    tell(Change::Player);
}

void DrumMachine::setSpeed(int stepsPerMinute) {
    song.speed = stepsPerMinute;
    tmrplayback_.setInterval(beatTime(song.speed));
}

void DrumMachine::playOrStop() { playing_ ? stop() : play(); }

void DrumMachine::play() {
    position_ = playsAll ? 0 : pattern_ * PatternSteps;
    tmrplayback_.setInterval(beatTime(song.speed));
    tmrplayback_.setEnabled(true);
    playing_ = true;
    locked_ = true;
    tell(Change::Player);
}

void DrumMachine::stop() {
    playing_ = false;
    sounding_ = -1;
    tmrplayback_.setEnabled(false);
    sound_.AllNotesOff();
    locked_ = false;
    tell(Change::Player);
}

// Without a message for the end of a drum: drums end by themselves.
void DrumMachine::tick() {
    if (!playsAll && position_ == (pattern_ + 1) * PatternSteps) position_ = pattern_ * PatternSteps;
    if (playsAll && position_ == SongSteps) return stop();
    bool completed = false;
    for (std::size_t row = 0; row < song.rows.size(); ++row) {
        completed |= song.rows[row].drum < 0;
        song.completeRow(row);
        const DrumRow& played = song.rows[row];
        if (played.Steps[at(position_)])
            sound_.NoteOn(PercussionChannel, drumKey(played.drum), played.volume);
    }
    sounding_ = position_++;
    tell(Change::Place);
    if (completed) tell(Change::Rows);
}

// Rows without a drum get theirs as they are written.
bool DrumMachine::save(const std::filesystem::path& file) {
    DrumSong written = song;
    for (std::size_t row = 0; row < written.rows.size(); ++row)
        written.completeRow(row);
    const Replaced replaced = replaceFile(file, drumSongText(written));
    if (replaced == Replaced::NotOpened) return false;
    song = written;
    tell(Change::Rows);
    return replaced == Replaced::Whole;
}

void DrumMachine::open(const std::filesystem::path& file) {
    RegularFile input(file, LargestSongFile);
    if (!input) return;
    const bool whole = readDrumSong(song, input);
    setSpeed(song.speed);
    tell(Change::Rows);
    if (whole) showPattern();
}

} // namespace tabrova
