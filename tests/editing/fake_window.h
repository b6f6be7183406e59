// An editor, and in the window's place one that only remembers what it was told.
#pragma once

#include "core/document/document_operations.h"
#include "editing/editor.h"
#include "platform/midi_device.h"
#include "tests/tabview/plain_blitter.h"

#include <gtest/gtest.h>

namespace tabrova::testing {

// What a window of 1000 by 700 pixels says of itself, the strip above its page.
inline Surroundings ordinarySurroundings() {
    Surroundings around;
    around.clientWidth = 1000;
    around.clientHeight = 700;
    around.page = {0, 204, 984, 472};
    around.bendPanel = {170, 62};
    around.repeatPanel = {170, 62};
    around.fretPalette = {228, 82};
    return around;
}

class FakeWindow : public ActObserver {
  public:
    explicit FakeWindow(Acts& acts) : acts_(acts) { acts_.add(*this); }
    ~FakeWindow() override { acts_.remove(*this); }

    void actEnded(std::string_view act, const Changes& changes) override {
        lastAct = act;
        merge(changes);
        redraws += changes.redraws;
        pageRefreshes += changes.page;
        if (changes.panel) {
            opened = changes.panel->panel;
            panelPlace = changes.panel->place;
        }
        if (!changes.fretPalette) return;
        selectorPlace = *changes.fretPalette;
        ++selectorsOpened;
    }

    // What was told since the last call, all in one.
    Changes take() { return std::exchange(seen_, {}); }

    std::string lastAct;
    std::optional<Panel> opened;
    Rect panelPlace, selectorPlace;
    int pageRefreshes = 0, redraws = 0, selectorsOpened = 0;

  private:
    void merge(const Changes& changes) {
        seen_.redraws += changes.redraws;
        for (bool Changes::*flag :
             {&Changes::page, &Changes::strip, &Changes::cursor, &Changes::scrollBar, &Changes::title,
              &Changes::statistics, &Changes::trackPanel, &Changes::techniques, &Changes::tracks,
              &Changes::trackChosen, &Changes::tuning, &Changes::instrument, &Changes::language,
              &Changes::playing, &Changes::layout, &Changes::trackListOpens, &Changes::pageTakesKeyboard})
            seen_.*flag = seen_.*flag || changes.*flag;
        if (changes.panel) seen_.panel = changes.panel;
        if (changes.fretPalette) seen_.fretPalette = changes.fretPalette;
    }

    Acts& acts_;
    Changes seen_;
};

class EditorTest : public ::testing::Test {
  protected:
    EditorTest() {
        timers.setFrozen(true);
        document.RealtimeMode = 1;
        view.picDocument.resize(984, 472);
        sound.OpenMidiDevice(MidiMapperId);
        editor.MakeNewDocument();
        editor.refreshdrawing();
    }

    void keys(std::initializer_list<int> codes) {
        for (const int code : codes)
            editor.picDocument_KeyDown(code, 0);
    }
    std::string_view noteHere() { return document.note(document.CurrentColumn, document.cursorRow()); }
    std::string_view techniqueHere() {
        return document.technique(document.CurrentColumn, document.cursorRow());
    }
    std::string_view markHere() { return document.barMark(document.CurrentColumn); }
    void makePercussionTrack() { document.GuitarTrackFlags[0] = False16; }
    ListedTimer& stopperTimer() { return *timers.timers()["tmrsndStopper"]; }
    // Staves in all; the cursor stays at the start.
    void grow(int staves) {
        while (document.StaffCount < staves)
            editor.AppendStaff();
    }
    // A page of this size: both the surface and what the window tells of it.
    void resizePage(int width, int height) {
        view.picDocument.resize(width, height);
        around.page.width = width;
        around.page.height = height;
        editor.pageResized();
    }
    // Three tracks, the last one percussion.
    void makeThreeTracks() {
        document.TrackCount = 3;
        document.GuitarTrackFlags = {True16, True16, False16};
        document.TrackNames.assign(3, "Track");
        document.TrackVolumes = {"100", "90", "80"};
        document.TrackInstruments = {"24", "30", "0"};
        ResizeGrids(document, document.ColumnCapacity, 18);
        document.TuningTable.assign(18, StandardTuning);
    }
    void moveTo(int staff, int column) {
        while (document.CurrentStaff < staff || document.ColumnInStaff < column)
            editor.MoveCursor(Direction::Right);
    }

    // The cursor, the marker and the lines agree.
    void expectAt(int staff, int column, int string, int topStaff) {
        EXPECT_EQ(document.CurrentStaff, staff);
        EXPECT_EQ(document.ColumnInStaff, column);
        EXPECT_EQ(document.CurrentString, string);
        EXPECT_EQ(document.TopStaff, topStaff);
        EXPECT_EQ(editor.scroll().value, topStaff + 1);
        EXPECT_EQ(editor.page().nCursor, (Rect{document.ColumnWidth * column + 22,
                                               100 * (staff - topStaff - 1) + 10 * string + 25, 13, 10}));
        EXPECT_EQ(editor.page().vLine1, (Line{editor.page().nCursor.left + 6, 0,
                                              editor.page().nCursor.left + 6, editor.page().nCursor.top}));
        EXPECT_EQ(editor.page().NoteLine.x1, editor.page().nCursor.left + 14);
        EXPECT_EQ(editor.page().NoteLine.x2, editor.page().nCursor.left + 14);
    }

    Document document;
    TabView view;
    RecordingMidiDevice device;
    MidiOutput sound{device, [](int code) { ADD_FAILURE() << "MIDI failure " << code; }};
    TimerList timers;
    SoundStopper stopper{timers, sound, nullptr};
    LanguageWords words;
    Acts acts;
    ShownTexts texts;
    Surroundings around = ordinarySurroundings();
    EditingParts parts{document, view, sound, stopper, words, acts, texts, around};
    FakeWindow window{acts};
    Editor editor{parts};
};

} // namespace tabrova::testing
