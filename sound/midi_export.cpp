#include "sound/midi_export.h"

#include "core/document/bar_marks.h"
#include "sound/pitch.h"

#include <algorithm>
#include <array>

namespace tabrova {

namespace {

using Property = MIDIFile::Property;
using Command = MIDIFile::Command;

constexpr double MillisecondsOfMinute = 60000.0;
// Six strings, and on purpose the row behind them: the top string of the next track is heard in this one.
constexpr int RowsOfTrack = StringsPerTrack + 1;
constexpr std::int16_t NoteOnStatus = 0x90;
constexpr std::int16_t NoteOffStatus = 0x80;
constexpr std::int16_t ProgramStatus = 0xC0;

// The channel comes from the place in the queue alone and leaves out that of percussion.
std::int16_t channelOf(std::size_t place) {
    return static_cast<std::int16_t>(place < std::size_t{PercussionChannel} ? place : place + 1);
}

bool endsPassage(std::string_view mark) { return mark != "r" && mark != "." && !mark.empty(); }

// Which columns hold ">" in a row of any track: they take no time. Found once for all tracks.
class JumpColumns {
  public:
    explicit JumpColumns(const Document& document) : document_(document) {
        known_.resize(static_cast<std::size_t>(document.NoteGrid.columns()), Unknown);
    }

    bool holdsJump(int column) {
        if (static_cast<std::size_t>(column) >= known_.size()) return false;
        char& known = known_[static_cast<std::size_t>(column)];
        if (known == Unknown) known = search(column) ? Yes : No;
        return known == Yes;
    }

  private:
    enum : char { Unknown, No, Yes };

    bool search(int column) const {
        const int rows = std::min(document_.TrackCount * StringsPerTrack, document_.NoteGrid.rows());
        for (int row = 0; row < rows; ++row)
            if (document_.note(column, row) == ">") return true;
        return false;
    }

    const Document& document_;
    std::vector<char> known_;
};

// Where the export is in its repeats. It goes on from track to track.
struct RepeatState {
    int open = 0;
    int left = 0;
    bool inRepeat = false;
};

// Tells a jump back that this track has made before in the same state: it would come round for ever.
class EndlessPassages {
  public:
    explicit EndlessPassages(int columns) : columns_(static_cast<std::size_t>(columns)) {}

    bool comesRound(int column, const RepeatState& state) {
        if (jumps_.empty()) jumps_.resize(columns_ + 1);
        Jumps& made = jumps_[static_cast<std::size_t>(column)];
        if (made.open != state.open) made = {state.open, 0};
        const auto bit = static_cast<std::uint16_t>(1U << state.left);
        const bool seen = (made.left & bit) != 0;
        made.left = static_cast<std::uint16_t>(made.left | bit);
        return seen;
    }

  private:
    struct Jumps {
        int open = 0;
        std::uint16_t left = 0; // a bit for each number of repeats that were left
    };
    std::size_t columns_;
    std::vector<Jumps> jumps_; // by the column behind the passage
};

class Exporter {
  public:
    Exporter(const Document& document, const MidiExport& what, MIDIFile& file)
        : document_(document), file_(file), noteOffs_(what.noteOffs), jumps_(document) {}

    bool addTrack(std::size_t place, int track) {
        if (static_cast<std::size_t>(track) >= document_.GuitarTrackFlags.size() && !passOver()) return false;
        place_ = static_cast<int>(place);
        track_ = track;
        guitar_ = document_.isGuitarTrack(track + 1);
        channel_ = guitar_ ? channelOf(place) : std::int16_t(PercussionChannel);
        const auto volume = listNumber(document_.TrackVolumes, track_);
        loudness_ = volume ? toInteger16(*volume) : std::nullopt;
        ghostLoudness_ = volume ? toInteger16(*volume / 2.0) : std::nullopt;
        time_ = toInteger16(MillisecondsOfMinute / document_.Tempo);
        pitches_.fill(0);
        if (guitar_ && !addProgram()) return false;
        return addColumns();
    }

  private:
    // Whether a step that failed is passed over, and the next one is done. Up to the end of the first column
    // it ends the export.
    bool passOver() const { return passOver_; }

    bool addProgram() {
        file_.setInteger(Property::Status, static_cast<std::int16_t>(ProgramStatus + channel_));
        const auto row = static_cast<std::size_t>(track_);
        if (row < document_.TrackInstruments.size()) {
            file_.setText(Property::Data1, document_.TrackInstruments[row]);
        } else if (!passOver()) {
            return false;
        }
        addEvent(0, 0);
        return true;
    }

    // The last column is left out on purpose.
    bool addColumns() {
        EndlessPassages passages(document_.ColumnCapacity);
        for (int column = 0; column < document_.lastColumn() && !file_.isFull();) {
            if (document_.barMark(column) == "r") repeat_.open = column;
            for (int string = RowsOfTrack - 1; string >= 0; --string)
                if (!addCell(column, string)) return false;
            passOver_ = true;
            column = nextColumn(column + 1, passages);
        }
        return true;
    }

    // The marks are those of the column behind the one that was written, one further than the player reads.
    int nextColumn(int column, EndlessPassages& passages) {
        const std::string_view mark = document_.barMark(column);
        const auto repeats = closedRepeatCount(mark);
        if (repeats && !repeat_.inRepeat && repeat_.left == 0) repeat_ = {repeat_.open, *repeats, true};
        if (repeat_.inRepeat && repeat_.left >= 1 && endsPassage(mark)) {
            --repeat_.left;
            if (passages.comesRound(column, repeat_)) {
                repeat_ = {repeat_.open, 0, false};
                return column;
            }
            column = repeat_.open;
        }
        if (repeat_.inRepeat && repeat_.left == 0 && endsPassage(document_.barMark(column)))
            repeat_.inRepeat = false;
        return column;
    }

    bool addCell(int column, int string) {
        const int row = track_ * StringsPerTrack + string;
        setOffset(string);
        std::optional<std::int16_t> time = 0;
        if (string == StringsPerTrack - 1 && !jumps_.holdsJump(column)) time = time_;
        if (!time && !passOver()) return false;
        file_.setInteger(Property::Status, static_cast<std::int16_t>(NoteOnStatus + channel_));
        const std::string_view cell = document_.note(column, row);
        const bool filler = cell.empty() || cell == "x" || cell == ">";
        const std::optional<double> pitch = filler ? std::nullopt : pitchOf(cell, row);
        if (filler) {
            file_.setInteger(Property::Data1, 0);
            addEvent(0, time.value_or(0));
        } else if (!addNote(pitch, document_.technique(column, row), time.value_or(0))) {
            return false;
        }
        if (noteOffs_) addNoteOff(string);
        if (cell.empty() || cell == ">") return true;
        return keepPitch(string, pitch);
    }

    bool addNote(std::optional<double> pitch, std::string_view technique, std::int16_t time) {
        const auto loudness = technique == "g" ? ghostLoudness_ : loudness_;
        if ((!pitch || !loudness) && !passOver()) return false;
        if (pitch) file_.setNumber(Property::Data1, *pitch);
        if (loudness) file_.setInteger(Property::Data2, *loudness);
        addEventAt(time);
        return true;
    }

    // It ends what the row sounded last. That is known only to a track that stands at its own number in the
    // queue; elsewhere the note that was just written ends as it began.
    void addNoteOff(int string) {
        file_.setInteger(Property::Status, static_cast<std::int16_t>(NoteOffStatus + channel_));
        if (track_ == place_) file_.setInteger(Property::Data1, pitches_[static_cast<std::size_t>(string)]);
        addEvent(0, 0);
    }

    // A dead note has no pitch, and so ends the export in its first column.
    bool keepPitch(int string, std::optional<double> pitch) {
        const auto whole = pitch ? toInteger16(*pitch) : std::nullopt;
        if (whole) pitches_[static_cast<std::size_t>(string)] = *whole;
        return whole || passOver();
    }

    // The seventh row keeps the offset of the row before it.
    void setOffset(int string) {
        if (string < StringsPerTrack)
            offset_ = OpenStringNotes[static_cast<std::size_t>(string)] - StandardTuning;
        if (!guitar_) offset_ = -StandardTuning;
    }

    std::optional<double> pitchOf(std::string_view cell, int row) const {
        const auto index = static_cast<std::size_t>(row);
        if (index >= document_.TuningTable.size()) return std::nullopt;
        const auto number = toNumber(cell);
        return number ? std::optional(*number + document_.TuningTable[index] + offset_) : std::nullopt;
    }

    void addEvent(std::int16_t data2, std::int16_t time) {
        file_.setInteger(Property::Data2, data2);
        addEventAt(time);
    }

    void addEventAt(std::int16_t time) {
        file_.setInteger(Property::DeltaTime, time);
        file_.command(Command::AddEvent);
    }

    const Document& document_;
    MIDIFile& file_;
    bool noteOffs_;
    JumpColumns jumps_;
    RepeatState repeat_;
    bool passOver_ = false;
    int offset_ = 0;
    int place_ = 0;
    int track_ = 0;
    bool guitar_ = true;
    std::int16_t channel_ = 0;
    // Of the track's notes, and of its columns in milliseconds; none of what does not convert.
    std::optional<std::int16_t> loudness_;
    std::optional<std::int16_t> ghostLoudness_;
    std::optional<std::int16_t> time_;
    std::array<std::int16_t, RowsOfTrack> pitches_{}; // that each row sounded last
};

// So that it is written afresh. Nothing but a file is deleted; what else stands there takes nothing either.
void deleteFile(const std::filesystem::path& path) {
    std::error_code failed;
    if (std::filesystem::is_regular_file(std::filesystem::symlink_status(path, failed)))
        std::filesystem::remove(path, failed);
}

} // namespace

bool AddTracksToMidiFile(const Document& document, const MidiExport& what, MIDIFile& file) {
    Exporter exporter(document, what, file);
    const auto count = static_cast<double>(what.queue.size());
    for (std::size_t place = 0; place < what.queue.size(); ++place) {
        if (what.progress) what.progress(100.0 / count * static_cast<double>(place));
        file.command(Command::BeginTrack);
        file.setInteger(Property::Track, static_cast<std::int16_t>(place + 1));
        if (!exporter.addTrack(place, what.queue[place])) return false;
    }
    return true;
}

bool exportMidiFile(const Document& document, const MidiExport& what, MIDIFile& file) {
    deleteFile(file.fileName());
    file.command(Command::Start);
    file.command(Command::WholeFile);
    if (document.Tempo == 0) return false;
    file.setNumber(Property::Tempo, MillisecondsOfMinute / document.Tempo);
    file.command(Command::BeginTrack);
    if (!AddTracksToMidiFile(document, what, file)) return false;
    file.command(Command::WholeFile);
    file.command(Command::WriteAndClose);
    return true;
}

} // namespace tabrova
