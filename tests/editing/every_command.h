// Every command of the editor, chosen at random and carried out on whatever document there is: nothing is
// compared, all must be borne.
#pragma once

#include "core/document/document_file.h"
#include "core/document/document_operations.h"
#include "core/document/text_tablature.h"
#include "core/document/track_table.h"
#include "editing/chord_entry.h"
#include "editing/clipboard.h"
#include "editing/editor.h"
#include "editing/key_codes.h"
#include "sound/midi_export.h"
#include "sound/playback.h"

#include <climits>
#include <random>
#include <streambuf>

namespace tabrova::testing {

class SilentDevice : public RecordingMidiDevice {
  public:
    int midiOutShortMsg(std::uint32_t, const ShortMessage&) override { return 0; }
};

class NoFile : public std::streambuf {
  protected:
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
    int overflow(int character) override { return character; }
};

class EveryCommand {
  public:
    EveryCommand(Document& itsDocument, unsigned seed) : document(itsDocument), random_(seed) {
        timers.setFrozen(true);
        document.RealtimeMode = 0;
        around.page = {0, 204, 984, 472};
        around.clientHeight = 100; // too low for the fretboard, whose labels would need a font
        view.picDocument.resize(200, 120);
        view.picStandardNotation.resize(20, 168);
        sound.OpenMidiDevice(MidiMapperId);
    }

    // A grid that has grown to millions of cells only costs time, and bears a few commands.
    void run(int commands) {
        constexpr std::int64_t ManyCells = 1'000'000;
        constexpr int Few = 8;
        for (int each = 0; each < commands; ++each) {
            step();
            const std::int64_t cells =
                static_cast<std::int64_t>(document.ColumnCapacity) * document.RowCapacity;
            if (cells > ManyCells) commands = std::min(commands, each + Few);
        }
    }

    void step() {
        switch (choose(0, 11)) {
        case 0:
        case 1:
            return key();
        case 2:
            return code();
        case 3:
            return mouse();
        case 4:
        case 5:
            return structure();
        case 6:
            return clipboard();
        case 7:
            return tracks();
        case 8:
            return play();
        case 9:
            return chord();
        case 10:
            return exports();
        default:
            return window();
        }
    }

  private:
    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }
    bool oneIn(int times) { return choose(1, times) == 1; }
    int place(int size) {
        const int far[] = {INT_MAX, INT_MIN, -1, 0};
        return oneIn(10) ? far[choose(0, 3)] : choose(0, size);
    }

    void key() { editor.picDocument_KeyDown(oneIn(3) ? choose(37, 40) : choose(0, 120), choose(0, 1)); }

    void code() {
        const int codes[] = {choose(0, 120), choose(1000, 1016), choose(1199, 1212), 3000, 4000, 13, 46};
        const int chosen = codes[choose(0, 6)];
        oneIn(2) ? editor.DrawAndStoreNote(chosen) : editor.StoreTechnique(chosen);
        if (oneIn(4)) editor.DrawAndStorePercussionNote(choose(-5, 130));
        if (oneIn(4)) editor.chooseFromPalette({place(240), place(90), 20, 18});
    }

    void mouse() {
        const MouseButton buttons[] = {MouseButton::Left, MouseButton::Right, MouseButton::Middle,
                                       MouseButton::None};
        editor.picDocument_MouseDown(buttons[choose(0, 3)], place(984), place(472));
        editor.picFretboard_MouseDown(buttons[choose(0, 3)], place(120), place(600));
    }

    void structure() {
        const Rows rows = oneIn(2) ? Rows::AllTracks : Rows::CurrentTrack;
        switch (choose(0, 9)) {
        case 0:
            return editor.clearCurrentStaff({rows, oneIn(2), oneIn(2), oneIn(2)});
        case 1:
            return editor.mnuEditNewBarAfterCurrentBar();
        case 2:
            return editor.mnuEditNewBarBeforeCurrent();
        case 3:
            return oneIn(2) ? editor.mnuEditnewBarAtEndofDocument() : editor.mnuDeleteBar();
        case 4:
            return editor.mnuDeleteBar();
        case 5:
            return editor.InsertColumnAllTracks();
        case 6:
            return editor.InsertColumnOnTrack();
        case 7:
            return editor.RemoveColumnAllTracks();
        case 8:
            return editor.RemoveColumnOnTrack();
        default:
            return editor.SetNoteLength(choose(1, 16));
        }
    }

    void clipboard() {
        if (oneIn(2)) oneIn(2) ? copyStaff(document) : copyColumns(document, choose(1, 8));
        if (oneIn(2)) editor.pasteColumns(oneIn(2) ? Rows::AllTracks : Rows::CurrentTrack);
    }

    void chord() {
        if (oneIn(4)) chords.RemoveChordFromDocument();
        StringFrets frets;
        for (std::string& fret : frets)
            fret = std::to_string(choose(-1, 7));
        chords.AddChordToDocument(frets);
    }

    void tracks() {
        if (oneIn(4) && growByOneTrack(document)) {
            document.CurrentTrack = static_cast<std::int16_t>(appendTrackRows(document) + 1);
            finishNewTrack(document, oneIn(2));
        } else if (oneIn(4)) {
            removeCurrentTrack(document);
            editor.MoveCursor(Direction::Nowhere);
        } else if (!document.TrackNames.empty()) {
            document.CurrentTrack =
                static_cast<std::int16_t>(choose(1, static_cast<int>(document.TrackNames.size())));
        }
        assignTuning(document, 13, 12, 11, 10, 9, 8);
        setCurrentTrackRow(document, document.TrackVolumes, "90");
        editor.refreshdrawing();
    }

    void play() {
        document.playback = playbackStart(document, oneIn(2) ? PlayFrom::Start : PlayFrom::Cursor);
        for (int ticks = choose(1, 20); ticks > 0; --ticks)
            if (playTick(document, document.playback, sound) == TickResult::Ended) break;
    }

    // A grid of very many columns only costs time.
    void exports() {
        constexpr int ManyColumns = 10'000;
        if (document.ColumnCapacity > ManyColumns) return;
        NoFile nowhere;
        std::ostream text(&nowhere);
        textTablature(document, {}).writeTo(text);
        MIDIFile file(100'000);
        file.command(MIDIFile::Command::Start);
        MidiExport what;
        what.noteOffs = oneIn(2);
        for (int track = choose(0, 3); track > 0; --track)
            what.queue.push_back(choose(0, std::max(document.TrackCount + 1, 0)));
        AddTracksToMidiFile(document, what, file);
        text << file.bytes();
    }

    void window() {
        editor.modes = {oneIn(2), oneIn(2)};
        editor.VScroll1_Change(place(20));
        if (oneIn(3)) editor.goTo(place(40), place(40));
        if (oneIn(2)) view.picDocument.resize(choose(1, 300), choose(1, 250));
        editor.pageResized();
        NoFile nowhere;
        std::ostream file(&nowhere);
        if (oneIn(3)) documentText(document).writeTo(file);
    }

    Document& document;
    TabView view;
    SilentDevice device;
    MidiOutput sound{device, [](int) {}};
    TimerList timers;
    SoundStopper stopper{timers, sound, nullptr};
    LanguageWords words;
    Acts acts; // nobody listens
    ShownTexts texts;
    Surroundings around;
    EditingParts parts{document, view, sound, stopper, words, acts, texts, around};
    Editor editor{parts};
    PlayerState player;
    ChordEntry chords{parts, editor, player};
    std::mt19937 random_;
};

} // namespace tabrova::testing
