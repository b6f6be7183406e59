// The drum machine: a song, the pattern that is shown of it, and its player. It needs no window; whoever
// shows it is told of what changes by itself.
#pragma once

#include "platform/steady_timer.h"
#include "sound/midi_output.h"
#include "tools/drum_machine/drum_song.h"

#include <filesystem>

namespace tabrova {

class DrumMachine {
  public:
    // The timers are children of `parent`, if there is one.
    DrumMachine(MidiOutput& sound, TimerList& timers, QObject* parent);

    enum class Change {
        Steps,  // another pattern is shown, perhaps
        Place,  // the step that sounds
        Player, // it was started or stopped, or its controls were given free
        Rows,   // drums, volumes, speed
    };
    std::function<void(Change)> changed;

    // Volumes and drums are the window's to set, as is whether the whole song is played.
    DrumSong song;
    bool playsAll = false;

    // As the buttons show it. After a file that was read in part that need not be what the song holds.
    bool isShown(int row, int step) const { return shown_[at(row)][at(step)]; }
    // The button that is shown as set clears the step, the other one sets it. Nobody is told.
    void pressStep(int row, int step);

    int pattern() const { return pattern_; }
    // Nothing if it is the shown one. Else playback ends at once, and what it had disabled stays so.
    void choosePattern(int pattern);

    // Steps a minute, at once.
    void setSpeed(int stepsPerMinute);

    void playOrStop();
    // The timer runs, and the next press stops it.
    bool playing() const { return playing_; }
    // What may not be changed while it plays is disabled.
    bool locked() const { return locked_; }
    // Of the song, from 0; -1 if none was sounded since the start.
    int soundingPosition() const { return sounding_; }

    // False if the file could not be written whole; that ends it quietly.
    bool save(const std::filesystem::path& file);
    // A file that cannot be opened changes nothing. One that is short or damaged leaves the song half read
    // and the buttons as they are.
    void open(const std::filesystem::path& file);

    // The window closes: no message.
    void leave() { tmrplayback_.setEnabled(false); }

  private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    void play();
    void stop();
    void showPattern();
    void tick();
    void tell(Change change) const {
        if (changed) changed(change);
    }

    MidiOutput& sound_;
    SteadyTimer tmrplayback_;
    WindowTimer tmrplaysong_; // never enabled
    std::array<std::bitset<PatternSteps>, DrumRows> shown_;
    int pattern_ = 0;
    std::int32_t position_ = 0; // the next one to play
    std::int32_t sounding_ = -1;
    bool playing_ = false;
    bool locked_ = false;
};

} // namespace tabrova
