#include "tools/chord_manager/chord_sound.h"

#include "tools/chord_manager/new_chord.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int FirstPlayerInterval = 120; // ms, as those below
constexpr int LongestPlayerInterval = 750;
constexpr int StopperInterval = 2000;
constexpr int LastStep = 20; // six notes, and the chord rings on
constexpr std::array<int, ChordStrings + 1> BandEdges = {0, 165, 315, 465, 615, 765, 900};

// Bands count from the highest string.
std::size_t stringOfBand(std::size_t band) { return ChordStrings - 1 - band; }

// A timer that runs goes on.
void start(WindowTimer& timer) {
    if (!timer.timerEnabled()) timer.setEnabled(true);
}

} // namespace

std::optional<std::size_t> strumBand(double height) {
    for (std::size_t band = 0; band < ChordStrings; ++band)
        if (height > BandEdges[band] && height < BandEdges[band + 1]) return band;
    return std::nullopt;
}

ChordSound::ChordSound(MidiOutput& sound, TimerList& timers, const ChordDisplay& display, QObject* parent)
    : sound_(sound), display_(display),
      tmrChordPlayer_(
          timers, "tmrChordPlayer", FirstPlayerInterval, [this] { playerTick(); }, parent),
      tmrChordStopper_(
          timers, "tmrChordStopper", StopperInterval, [this] { stopperTick(); }, parent) {}

void ChordSound::PlayChordNow(bool noteByNote) {
    if (noteByNote) {
        PlayerStep = 0;
        return start(tmrChordPlayer_);
    }
    for (std::size_t string = 0; string < ChordStrings; ++string)
        soundChordString(string);
    start(tmrChordStopper_);
}

void ChordSound::setPlaySpeed(int speed) { tmrChordPlayer_.setInterval(LongestPlayerInterval - speed); }

// The first tick is silent, and so are those behind the sixth note.
void ChordSound::playerTick() {
    if (PlayerStep == LastStep) {
        tmrChordPlayer_.setEnabled(false);
        sound_.AllNotesOff();
    }
    const auto string = static_cast<std::size_t>(PlayerStep) - 1;
    if (string < ChordStrings) soundChordString(string);
    ++PlayerStep;
}

void ChordSound::stopperTick() {
    tmrChordStopper_.setEnabled(false);
    sound_.AllNotesOff();
}

void ChordSound::soundChordString(std::size_t string) {
    if (!(display_.userChord && SavingChord)) soundString(string);
}

bool ChordSound::soundString(std::size_t string) {
    const auto note = chordNote(string, display_.frets[string]);
    if (note) sound_.NoteOn(ChordChannel, *note, sound_.FixedVelocity);
    return note.has_value();
}

// Each string once a stroke; a silent one is not counted as played.
void ChordSound::strumMoved(std::optional<std::size_t> band) {
    if (!StrumDown) return;
    if (band && !StrumPlayed[*band]) StrumPlayed[*band] = soundString(stringOfBand(*band));
    tmrChordStopper_.setEnabled(true);
}

// The last string sounds once more.
void ChordSound::strumReleased(std::optional<std::size_t> band) {
    StrumDown = false;
    if (band) {
        soundString(stringOfBand(*band));
        tmrChordStopper_.setEnabled(true);
    }
    StrumPlayed.fill(false);
}

void ChordSound::playEntered(const std::array<std::size_t, ChordStrings>& marks) {
    for (std::size_t string = 0; string < ChordStrings; ++string)
        if (marks[string] != SilentMark)
            sound_.NoteOn(ChordChannel, static_cast<int>(marks[string]) + ChordStringTable[string].openNote,
                          sound_.FixedVelocity);
    tmrChordStopper_.setEnabled(true);
}

void ChordSound::stop() {
    tmrChordPlayer_.setEnabled(false);
    tmrChordStopper_.setEnabled(false);
}

} // namespace tabrova
