// A slow plain reading of the player: one tick as a list of steps that calls itself, both for a jump back and
// for a column that takes no time. A passage that follows itself in no time for ever is told by TooDeep.
#pragma once

#include "core/document/document.h"
#include "platform/midi_device.h"

#include <cmath>
#include <string>
#include <vector>

namespace tabrova::testing {

class PlainPlayer {
  public:
    struct TooDeep {};

    explicit PlainPlayer(const Document& played, int deepestCall = 2000)
        : document(played), deepest(deepestCall) {}

    int PlaybackPosition = 0;
    int RepeatStartColumn = 0;
    int RepeatsLeft = 0;
    bool InRepeat = false;
    bool ended = false;
    std::vector<ShortMessage> messages;

    void tick() {
        depth = 0;
        HiTime1_Timer();
    }

  private:
    // What does not convert, or is not there, has no value; a statement that needs it does nothing.
    using Value = std::optional<double>;

    void HiTime1_Timer() {
        if (++depth > deepest) throw TooDeep();
        if (PlaybackPosition > document.ColumnCapacity - 1) {
            ended = true; // and nothing more happens in any of the calls that led here
            return;
        }
        int soundingGuitars = 0;
        for (int track = 0; track < document.TrackCount; ++track)
            if (isGuitar(track) && sounds(track)) ++soundingGuitars;
        if (soundingGuitars > 0 && document.PreventReverberations == 1) {
            send(0xB0, 120, 0);
            send(0xB0, 123, 0);
        }
        bool arrow = false;
        for (int track = 0; track < document.TrackCount; ++track) {
            if (isGuitar(track)) playGuitar(track);
            if (!isGuitar(track)) playPercussion(track);
            for (int string = 0; string < 6; ++string)
                if (cell(track, string) == ">") arrow = true;
        }
        PlaybackPosition = PlaybackPosition + 1;
        if (mark() == "r") RepeatStartColumn = PlaybackPosition - 1;
        for (int n = 1; n <= 15; ++n) {
            if (mark() == "r" + std::to_string(n) && !InRepeat && RepeatsLeft == 0) {
                RepeatsLeft = n;
                InRepeat = true;
            }
        }
        if (InRepeat && RepeatsLeft >= 1 && mark() != "r" && mark() != "." && mark() != "") {
            RepeatsLeft = RepeatsLeft - 1;
            PlaybackPosition = RepeatStartColumn;
            HiTime1_Timer();
            if (ended) return;
        }
        if (InRepeat && RepeatsLeft == 0 && mark() != "r" && mark() != "." && mark() != "") InRepeat = false;
        if (arrow && !InRepeat) HiTime1_Timer();
        --depth;
    }

    void playGuitar(int track) {
        for (const int channel : {0, 1})
            ProgramChange(channel, instrument(track));
        for (int string = 0; string < 6; ++string) {
            if (cell(track, string) == "x") {
                NoteOn(0, pitch(track, string, 0), volume(track));
                NoteOff(0, pitch(track, string, 0));
            }
        }
        for (int string = 0; string < 6; ++string) {
            const int divisor = technique(track, string) == "g" ? 2 : 1;
            const Value note = pitch(track, string, toNumber(cell(track, string)));
            if (technique(track, string) == "r") {
                NoteOn(1, note, volume(track));
            } else {
                NoteOn(0, note, quotient(volume(track), divisor));
            }
        }
        for (int string = 0; string < 6; ++string) {
            if (technique(track, string) == ".")
                NoteOff(0, pitch(track, string, toNumber(cell(track, string))));
        }
    }

    void playPercussion(int track) {
        for (int row = 0; row < 6; ++row) {
            const int divisor = technique(track, row) == "g" ? 2 : 1;
            NoteOn(9, toNumber(cell(track, row)), quotient(volume(track), divisor));
        }
    }

    void NoteOn(int channel, Value note, Value velocity) {
        if (fits(note) && fits(velocity)) send(0x90 + channel, whole(note), whole(velocity));
    }
    void NoteOff(int channel, Value note) {
        if (fits(note)) send(0x90 + channel, whole(note), 0);
    }
    void ProgramChange(int channel, Value program) {
        if (!fits(program)) return;
        send(0xB0 + channel, 0, 128);
        send(0xC0 + channel, whole(program), 0);
    }

    // A value over one byte, or under zero, runs on into the next.
    void send(int status, int data1, int data2) {
        const long long packed = status + data1 * 256LL + data2 * 65536LL;
        const auto byte = [packed](int shift) { return static_cast<std::uint8_t>((packed >> shift) & 255); };
        messages.push_back({byte(0), byte(8), byte(16)});
    }

    static bool fits(Value value) {
        return value && std::nearbyint(*value) >= -32768.0 && std::nearbyint(*value) <= 32767.0;
    }
    static int whole(Value value) { return static_cast<int>(std::nearbyint(*value)); }
    static Value quotient(Value value, int divisor) { return value ? Value(*value / divisor) : value; }

    bool isGuitar(int track) const {
        return document.GuitarTrackFlags[static_cast<std::size_t>(track)] == -1;
    }
    bool sounds(int track) const {
        int cells = 0;
        for (int string = 0; string < 6; ++string)
            if (cell(track, string) != "") ++cells;
        return cells > 0;
    }
    std::string cell(int track, int string) const {
        return std::string(document.note(PlaybackPosition, track * 6 + string));
    }
    std::string technique(int track, int string) const {
        return std::string(document.technique(PlaybackPosition, track * 6 + string));
    }
    // Of the column just played, or of the one before wherever a jump has led.
    std::string mark() const { return std::string(document.barMark(PlaybackPosition - 1)); }

    Value pitch(int track, int string, Value fret) const {
        static const int bases[] = {64, 59, 55, 50, 45, 40};
        const auto row = static_cast<std::size_t>(track * 6 + string);
        if (!fret || row >= document.TuningTable.size()) return {};
        return *fret + bases[string] + document.TuningTable[row] - 13;
    }
    Value volume(int track) const { return number(document.TrackVolumes, track); }
    Value instrument(int track) const { return number(document.TrackInstruments, track); }
    static Value number(const std::vector<std::string>& list, int track) {
        const auto row = static_cast<std::size_t>(track);
        return row < list.size() ? toNumber(list[row]) : Value();
    }

    const Document& document;
    int deepest;
    int depth = 0;
};

} // namespace tabrova::testing
