#include "sound/playback.h"

#include "core/document/bar_marks.h"
#include "sound/pitch.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int RingChannel = 1; // notes that ring on: nothing but stop ends them

bool trackSounds(const Document& document, int column, int track) {
    const int first = track * StringsPerTrack;
    for (int row = first; row < first + StringsPerTrack; ++row)
        if (!document.note(column, row).empty()) return true;
    return false;
}

bool anyGuitarSounds(const Document& document, int column) {
    for (int track = 0; track < document.TrackCount; ++track)
        if (document.isGuitarTrack(track + 1) && trackSounds(document, column, track)) return true;
    return false;
}

// The velocity of a cell: the track's volume, halved for a ghost note.
std::optional<std::int16_t> velocity(std::optional<double> volume, std::string_view technique) {
    if (!volume) return std::nullopt;
    return toInteger16(*volume / (technique == "g" ? 2.0 : 1.0));
}

// One track at one column. Every message whose numbers do not convert is passed over alone.
class TrackColumn {
  public:
    TrackColumn(const Document& document, int column, int track, MidiOutput& output)
        : document_(document), column_(column), track_(track), output_(output),
          volume_(listNumber(document.TrackVolumes, track)) {}

    void playGuitar() {
        sendPrograms();
        for (int string = 0; string < StringsPerTrack; ++string)
            playDeadNote(string);
        for (int string = 0; string < StringsPerTrack; ++string)
            playNote(string);
        for (int string = 0; string < StringsPerTrack; ++string)
            cutStaccato(string);
    }

    void playPercussion() {
        for (int string = 0; string < StringsPerTrack; ++string) {
            const auto drum = toInteger16(note(string));
            const auto loudness = velocity(volume_, technique(string));
            if (drum && loudness) output_.NoteOn(PercussionChannel, *drum, *loudness);
        }
    }

    bool holdsJump() const {
        for (int string = 0; string < StringsPerTrack; ++string)
            if (note(string) == ">") return true;
        return false;
    }

  private:
    int row(int string) const { return track_ * StringsPerTrack + string; }
    std::string_view note(int string) const { return document_.note(column_, row(string)); }
    std::string_view technique(int string) const { return document_.technique(column_, row(string)); }
    std::optional<std::int16_t> pitch(int string, std::string_view fret) const {
        return frettedPitch(document_, fret, string, row(string));
    }

    // At every column, also when nothing is to sound.
    void sendPrograms() {
        const auto program = listInteger(document_.TrackInstruments, track_);
        if (!program) return;
        output_.ProgramChange(GuitarChannel, *program);
        output_.ProgramChange(RingChannel, *program);
    }

    void playDeadNote(int string) {
        if (note(string) != "x") return;
        const auto open = pitch(string, "0");
        if (!open) return;
        if (const auto loudness = velocity(volume_, "")) output_.NoteOn(GuitarChannel, *open, *loudness);
        output_.NoteOff(GuitarChannel, *open);
    }

    void playNote(int string) {
        const auto fretted = pitch(string, note(string));
        const auto loudness = velocity(volume_, technique(string));
        if (!fretted || !loudness) return;
        output_.NoteOn(technique(string) == "r" ? RingChannel : GuitarChannel, *fretted, *loudness);
    }

    void cutStaccato(int string) {
        if (technique(string) != ".") return;
        if (const auto fretted = pitch(string, note(string))) output_.NoteOff(GuitarChannel, *fretted);
    }

    const Document& document_;
    int column_;
    int track_;
    MidiOutput& output_;
    std::optional<double> volume_;
};

// True if a track holds ">": the column takes no time.
bool playTracks(const Document& document, int column, MidiOutput& output) {
    bool jump = false;
    for (int track = 0; track < document.TrackCount; ++track) {
        TrackColumn cells(document, column, track, output);
        if (document.isGuitarTrack(track + 1)) {
            cells.playGuitar();
        } else {
            cells.playPercussion();
        }
        jump = jump || cells.holdsJump();
    }
    return jump;
}

// Any mark that is none of these acts as the closing one of a running repeat.
bool closesRepeat(std::string_view mark) { return mark != "r" && mark != "." && !mark.empty(); }

// One tick. A jump back plays on at once, and what is left of the column that jumped is done after that; the
// columns that still wait so are kept here and not on the stack, so that their number does not matter.
class Tick {
  public:
    Tick(const Document& document, PlaybackState& state, MidiOutput& output)
        : document_(document), state_(state), output_(output) {}

    TickResult run() {
        do {
            if (state_.PlaybackPosition > document_.lastColumn()) return TickResult::Ended;
        } while (playColumn() == Next::Column);
        return TickResult::Playing;
    }

  private:
    enum class Next { Column, Tick };

    // A jump back, and how many columns waited before it.
    struct Jump {
        int column;
        std::int32_t start;
        std::int16_t repeatsLeft;
        std::size_t waiting;
    };

    std::string_view markPlayed() const { return document_.barMark(state_.PlaybackPosition - 1); }

    Next playColumn() {
        const int column = state_.PlaybackPosition;
        if (document_.PreventReverberations == 1 && anyGuitarSounds(document_, column))
            output_.ChannelNotesOff(GuitarChannel);
        bool jump = playTracks(document_, column, output_);
        ++state_.PlaybackPosition;
        openRepeat();
        if (jumpsBack()) {
            const bool endless = comesRound(column);
            waiting_.push_back(jump);
            return endless ? Next::Tick : Next::Column;
        }
        while (!finishColumn(jump)) {
            if (waiting_.empty()) return Next::Tick;
            jump = takeWaiting();
        }
        return Next::Column;
    }

    void openRepeat() {
        const std::string_view mark = markPlayed();
        if (mark == "r") state_.RepeatStartColumn = state_.PlaybackPosition - 1;
        const auto repeats = closedRepeatCount(mark);
        if (!repeats || state_.InRepeat != False16 || state_.RepeatsLeft != 0) return;
        state_.RepeatsLeft = static_cast<std::int16_t>(*repeats);
        state_.InRepeat = True16;
    }

    bool jumpsBack() {
        if (state_.InRepeat == False16 || state_.RepeatsLeft < 1 || !closesRepeat(markPlayed())) return false;
        --state_.RepeatsLeft;
        state_.PlaybackPosition = state_.RepeatStartColumn;
        return true;
    }

    // The mark is read afresh, since a jump may have moved the position. True if the next column follows at
    // once. Inside a repeat ">" deliberately costs a tick.
    bool finishColumn(bool jump) {
        if (state_.InRepeat != False16 && state_.RepeatsLeft == 0 && closesRepeat(markPlayed()))
            state_.InRepeat = False16;
        return jump && state_.InRepeat == False16;
    }

    // True if this tick made the same jump before and has not used up any column that waited then: it would
    // come round for ever.
    bool comesRound(int column) {
        const Jump jump = {column, state_.RepeatStartColumn, state_.RepeatsLeft, waiting_.size()};
        const bool seen = std::ranges::any_of(jumps_, [&](const Jump& made) {
            return made.column == jump.column && made.start == jump.start &&
                   made.repeatsLeft == jump.repeatsLeft;
        });
        jumps_.push_back(jump);
        return seen;
    }

    bool takeWaiting() {
        const bool jump = waiting_.back();
        waiting_.pop_back();
        while (!jumps_.empty() && jumps_.back().waiting > waiting_.size())
            jumps_.pop_back();
        return jump;
    }

    const Document& document_;
    PlaybackState& state_;
    MidiOutput& output_;
    std::vector<bool> waiting_; // the ">" flags of the columns that jumped back
    std::vector<Jump> jumps_;   // those whose waiting columns all still wait
};

} // namespace

PlaybackState playbackStart(const Document& document, PlayFrom from) {
    PlaybackState state;
    if (from == PlayFrom::Cursor) state.PlaybackPosition = document.CurrentColumn;
    return state;
}

std::optional<int> playbackInterval(int tempo, bool doubleTime) {
    constexpr double MillisecondsOfMinute = 60000.0;
    if (tempo == 0) return std::nullopt;
    const auto interval = toInteger16(MillisecondsOfMinute / tempo);
    if (!interval || !doubleTime) return interval;
    return toInteger16(*interval / 2.0);
}

TickResult playTick(const Document& document, PlaybackState& state, MidiOutput& output) {
    return Tick(document, state, output).run();
}

} // namespace tabrova
