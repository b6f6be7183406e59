// The virtual fretboard in the editor: clicks that write and remove notes, and when it is drawn.
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

class FretboardEntry : public EditorTest {
  protected:
    FretboardEntry() { view.picFretboard.resize(89, 465); } // pitch 15

    std::string_view noteOn(int string) { return document.note(document.CurrentColumn, string); }
    QRgb neck(int x, int y) { return colorAt(view.picFretboard.image(), x, y); }
};

TEST_F(FretboardEntry, ALeftClickWritesTheFretAndRedraws) {
    moveTo(1, 4);
    document.CurrentString = 2;
    window.redraws = 0;
    editor.picFretboard_MouseDown(MouseButton::Left, 40, 12 + 15 * 7);
    EXPECT_EQ(document.note(4, 3), "7");
    EXPECT_EQ(window.redraws, 1);
    EXPECT_EQ(document.CurrentString, 2);
    EXPECT_EQ(document.ColumnInStaff, 4);
    EXPECT_TRUE(device.take().empty());
    EXPECT_FALSE(stopperTimer().timerEnabled());
    EXPECT_EQ(neck(40, 15 * 7 + 15), CursorColor);
}

TEST_F(FretboardEntry, ARightClickEmptiesTheStringsCell) {
    document.setNote(0, 3, "9");
    document.setNote(0, 4, "9");
    window.redraws = 0;
    editor.picFretboard_MouseDown(MouseButton::Right, 40, 300);
    EXPECT_EQ(noteOn(3), "");
    EXPECT_EQ(noteOn(4), "9");
    EXPECT_EQ(window.redraws, 1);
}

TEST_F(FretboardEntry, OtherButtonsDoNothing) {
    window.redraws = 0;
    for (const MouseButton button : {MouseButton::Middle, MouseButton::None})
        editor.picFretboard_MouseDown(button, 40, 100);
    EXPECT_EQ(noteOn(3), "");
    EXPECT_EQ(window.redraws, 0);
}

TEST_F(FretboardEntry, ClicksBesideTheNeckDoNothing) {
    window.redraws = 0;
    for (const auto& [x, y] : {std::pair{15, 100}, {75, 100}, {40, 10}, {40, 450}, {-4, -4}, {40, 100000}})
        editor.picFretboard_MouseDown(MouseButton::Left, x, y);
    EXPECT_EQ(window.redraws, 0);
}

TEST_F(FretboardEntry, OnAPercussionTrackAClickDoesNothing) {
    makePercussionTrack();
    editor.picFretboard_MouseDown(MouseButton::Left, 40, 100);
    EXPECT_EQ(noteOn(3), "");
}

TEST_F(FretboardEntry, TheCurrentTracksRowIsWritten) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    editor.picFretboard_MouseDown(MouseButton::Left, 20, 12 + 15 * 12);
    EXPECT_EQ(document.note(0, 11), "12");
}

TEST_F(FretboardEntry, AnyHeightOfTheNeckTakesAClick) {
    for (const int height : {1, 16, 30, 44, 45, 100, 900, 1500}) {
        view.picFretboard.resize(89, height);
        for (int y = 0; y < height; ++y)
            editor.picFretboard_MouseDown(MouseButton::Left, 40, y);
    }
    view.picFretboard.resize(89, 30 + 29 * 30);
    editor.picFretboard_MouseDown(MouseButton::Left, 40, 29 * 30 + 14);
    EXPECT_EQ(noteOn(3), "30"); // one more than the neck shows, on a high window
}

TEST_F(FretboardEntry, TheNeckFollowsEveryMoveOfTheCursor) {
    document.setNote(1, 3, "7");
    editor.refreshdrawing();
    EXPECT_EQ(neck(42, 118), PaperColor);
    editor.MoveCursor(Direction::Right);
    EXPECT_EQ(neck(42, 118), CursorColor);
    editor.MoveCursor(Direction::Left);
    EXPECT_EQ(neck(42, 118), PaperColor);
}

TEST_F(FretboardEntry, TheDotsTakeTheCursorsColor) {
    document.setNote(0, 3, "7");
    editor.setCursorColor(0xFFFF8000);
    EXPECT_EQ(neck(42, 118), 0xFFFF8000);
}

TEST_F(FretboardEntry, ALowWindowKeepsTheOldImage) {
    editor.refreshdrawing();
    const QImage before = view.picFretboard.image().copy();
    around.clientHeight = 479;
    document.setNote(0, 3, "7");
    document.CurrentColumn = 20;
    editor.MoveCursor(Direction::Nowhere);
    EXPECT_EQ(document.CurrentColumn, 20);
    EXPECT_TRUE(sameImage(view.picFretboard.image(), before, "kept_neck"));
    // Clicks are taken all the same.
    editor.picFretboard_MouseDown(MouseButton::Left, 40, 12 + 15 * 9);
    EXPECT_EQ(noteOn(3), "9");
    EXPECT_TRUE(sameImage(view.picFretboard.image(), before, "kept_neck"));
    around.clientHeight = 480;
    editor.refreshdrawing();
    EXPECT_EQ(neck(42, 148), CursorColor);
}

TEST_F(FretboardEntry, ARedrawDrawsTheRhythmOfTheCursorsStaffOnly) {
    grow(2);
    document.setNote(0, 5, "0");
    document.setNote(32, 5, "0");
    editor.refreshdrawing();
    EXPECT_EQ(colorAt(view.picDocument.image(), 27, 100), 0xFF000000);
    EXPECT_EQ(colorAt(view.picDocument.image(), 27, 200), PaperColor);
}

TEST_F(FretboardEntry, TheNotationPassBringsTheColumnUpToDateOnGuitarTracksOnly) {
    around.clientHeight = 100; // the neck does not do it
    document.CurrentColumn = 77;
    editor.refreshdrawing();
    EXPECT_EQ(document.CurrentColumn, 0);
    makePercussionTrack();
    document.CurrentColumn = 77;
    editor.refreshdrawing();
    EXPECT_EQ(document.CurrentColumn, 77);
}

} // namespace
} // namespace tabrova::testing
