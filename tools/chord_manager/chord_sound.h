// How a chord sounds: at once, note by note, under the strumming mouse, and while it is being entered. All of
// it goes to the tools' channel. Channel 14 is not one of those that `AllNotesOff` silences, deliberately:
// it decides how long a chord rings.
#pragma once

#include "platform/window_timer.h"
#include "sound/midi_output.h"
#include "tools/chord_manager/chord_calculator.h"

namespace tabrova {

constexpr int ChordChannel = 14;
constexpr int ChordProgram = 24; // acoustic guitar with nylon strings

// The band of the strum strip at this height, 0 for the highest string. In twips from its upper edge; both
// ends of a band belong to none.
constexpr double StrumStripHeight = 900;
std::optional<std::size_t> strumBand(double height);

class ChordSound {
  public:
    // Sounds what `frets` hold at that moment. The timers are children of `parent`, if there is one.
    ChordSound(MidiOutput& sound, TimerList& timers, const ChordDisplay& display, QObject* parent);

    void PlayChordNow(bool noteByNote);
    // 50 to 700: the pause between two notes is 750 ms less that.
    void setPlaySpeed(int speed);

    void strumPressed() { StrumDown = true; }
    void strumMoved(std::optional<std::size_t> band);
    void strumReleased(std::optional<std::size_t> band);

    // A chord that is being entered: its marks, SilentMark for a string that is not played.
    void playEntered(const std::array<std::size_t, ChordStrings>& marks);

    // The window closes: nothing ticks any more.
    void stop();

    // A user's chord is being saved: what the saving changes makes no sound.
    bool SavingChord = false;

  private:
    void playerTick();
    void stopperTick();
    // Whether the string sounds at all.
    bool soundString(std::size_t string);
    void soundChordString(std::size_t string);

    MidiOutput& sound_;
    const ChordDisplay& display_;
    WindowTimer tmrChordPlayer_;
    WindowTimer tmrChordStopper_;
    int PlayerStep = 0;
    bool StrumDown = false;
    std::array<bool, ChordStrings> StrumPlayed{}; // in this stroke, the highest string first
};

} // namespace tabrova
