// A window that only remembers what the editor asked of it, in order, and an editor in it.
#pragma once

#include "core/document/document_operations.h"
#include "editing/editor.h"
#include "platform/midi_device.h"
#include "tests/tabview/plain_blitter.h"

#include <gtest/gtest.h>

namespace tabrova::testing {

class FakeHost : public EditorHost {
  public:
    void refreshPage() override {
        record("refreshPage");
        ++pageRefreshes;
    }
    void refreshStrip() override { record("refreshStrip"); }
    void refreshFretboard() override { record("refreshFretboard"); }
    void mirrorScrollBar(int maximum, int value) override {
        record("mirrorScrollBar");
        scrollMaximum = maximum;
        scrollValue = value;
    }
    void setTitle(const std::string& text) override {
        record("setTitle");
        title = text;
        ++redraws;
    }
    void setStatistics(const std::string& text) override {
        record("setStatistics");
        statistics = text;
    }
    void setTrackPanel(const std::string& text) override { trackPanel = text; }
    void UpdateTechniqueButtons(bool guitarTrack) override {
        record("UpdateTechniqueButtons");
        guitarButtons = guitarTrack;
    }
    int clientHeight() const override { return windowHeight; }
    QRgb inlayColor() const override { return 0xFFB4B4B4; }
    Rect pageGeometry() const override { return page; }
    Rect panelGeometry(Panel panel) const override { return panel == Panel::Bend ? bendPanel : repeatPanel; }
    void openPanel(Panel panel, const Rect& place) override {
        record("openPanel");
        opened = panel;
        panelPlace = place;
    }
    Rect noteSelectorGeometry() const override { return {0, 0, 228, 82}; }
    void openNoteSelector(const Rect& place) override {
        record("openNoteSelector");
        selectorPlace = place;
        ++selectorsOpened;
    }
    void focusPage() override {
        record("focusPage");
        ++focused;
    }
    void restartSoundStopper(std::optional<int> milliseconds) override {
        record("restartSoundStopper");
        ++stopperStarts;
        if (milliseconds) stopper = *milliseconds;
    }
    void unloadFileProperties() override { ++unloaded; }
    void tracksReplaced() override {}
    bool confirmClearingOnlyStaff() override {
        ++clearQuestions;
        return allowClearing;
    }
    bool debugMode() const override { return debug; }
    bool playing() const override { return false; }

    // What was asked since the last call.
    std::vector<std::string> take() { return std::exchange(calls_, {}); }

    Rect page = {0, 204, 984, 472};
    Rect bendPanel = {0, 0, 170, 62};
    Rect repeatPanel = {0, 0, 170, 62};
    std::string title, statistics, trackPanel;
    std::optional<Panel> opened;
    Rect panelPlace, selectorPlace;
    int pageRefreshes = 0, redraws = 0, selectorsOpened = 0, focused = 0, unloaded = 0;
    int scrollMaximum = 0, scrollValue = 0, stopper = 0, stopperStarts = 0;
    int clearQuestions = 0, windowHeight = 700;
    bool guitarButtons = false, debug = false, allowClearing = false;

  private:
    // A long random walk would fill the memory; the last calls are all that a test asks about.
    void record(const char* call) {
        if (calls_.size() > 1000) calls_.clear();
        calls_.push_back(call);
    }

    std::vector<std::string> calls_;
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
    // A page of this size: both the surface and what the window tells of it.
    void resizePage(int width, int height) {
        view.picDocument.resize(width, height);
        host.page.width = width;
        host.page.height = height;
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
    FakeHost host;
    LanguageWords words;
    Editor editor{{document, view, sound, host, words}};
};

} // namespace tabrova::testing
