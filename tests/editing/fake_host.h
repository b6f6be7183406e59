// A window that only remembers what the editor asked of it, and an editor in it.
#pragma once

#include "core/document_operations.h"
#include "editing/editor.h"
#include "platform/midi_device.h"

#include <gtest/gtest.h>

namespace tabrova::testing {

class FakeHost : public EditorHost {
  public:
    void refreshPage() override { ++pageRefreshes; }
    void refreshStrip() override {}
    void refreshFretboard() override {}
    void mirrorScrollBar(int maximum, int value) override {
        scrollMaximum = maximum;
        scrollValue = value;
    }
    void setTitle(const std::string& text) override {
        title = text;
        ++redraws;
    }
    void setStatistics(const std::string& text) override { statistics = text; }
    void setTrackPanel(const std::string& text) override { trackPanel = text; }
    void UpdateTechniqueButtons(bool guitarTrack) override { guitarButtons = guitarTrack; }
    Rect pageGeometry() const override { return page; }
    Rect panelGeometry(Panel) const override { return {0, 0, 170, 62}; }
    void openPanel(Panel panel, const Rect& place) override {
        opened = panel;
        panelPlace = place;
    }
    Rect noteSelectorGeometry() const override { return {0, 0, 228, 82}; }
    void openNoteSelector(const Rect& place) override {
        selectorPlace = place;
        ++selectorsOpened;
    }
    void focusPage() override { ++focused; }
    void restartSoundStopper(int milliseconds) override { stopper = milliseconds; }
    void unloadFileProperties() override { ++unloaded; }
    bool debugMode() const override { return debug; }
    bool playing() const override { return false; }

    Rect page = {0, 204, 984, 472};
    std::string title, statistics, trackPanel;
    std::optional<Panel> opened;
    Rect panelPlace, selectorPlace;
    int pageRefreshes = 0, redraws = 0, selectorsOpened = 0, focused = 0, unloaded = 0;
    int scrollMaximum = 0, scrollValue = 0, stopper = 0;
    bool guitarButtons = false, debug = false;
};

class EditorTest : public ::testing::Test {
  protected:
    EditorTest() {
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
    // Staves in all; the cursor stays at the start.
    void grow(int staves) {
        while (document.StaffCount < staves)
            editor.AppendStaff();
    }
    void moveTo(int staff, int column) {
        while (document.CurrentStaff < staff || document.ColumnInStaff < column)
            editor.MoveCursor(Direction::Right);
    }

    Document document;
    TabView view;
    RecordingMidiDevice device;
    MidiOutput sound{device, [](int code) { ADD_FAILURE() << "MIDI failure " << code; }};
    FakeHost host;
    LanguageWords words;
    Editor editor{{document, view, sound, host, words}};
};

} // namespace tabrova::testing
