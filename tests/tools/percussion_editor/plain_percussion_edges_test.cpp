// The percussion editor's rules at their edges, each by itself.
#include "tests/tools/percussion_editor/plain_percussion.h"
#include "tests/tools/random_window_acts.h"
#include "tools/percussion_editor/frmPercussion.h"

#include <QMouseEvent>

namespace tabrova::testing {
namespace {

class PlainPercussionEdges : public RandomWindowActs<frmPercussion> {
  protected:
    void SetUp() override {
        document().GuitarTrackFlags = {False16};
        open();
    }
    void open() {
        window.reset();
        window = std::make_unique<frmPercussion>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
        midi.take();
    }
    std::string noteHere() { return std::string(document().note(document().ColumnInStaff, 0)); }
};

TEST_P(PlainPercussionEdges, SeveralDrumsOverwriteTheSameCellEachSounding) {
    for (const std::size_t row : {0u, 45u, 45u, 7u})
        clickRow("List1", row);
    EXPECT_EQ(sentText(), midiText({{0x99, 35, 127}, {0x99, 80, 127}, {0x99, 80, 127}, {0x99, 42, 127}}));
    EXPECT_EQ(noteHere(), "42");
    EXPECT_EQ(document().ColumnInStaff, 0);
}

TEST_P(PlainPercussionEdges, EveryDrumWritesAndSoundsItsPlaceAnd35) {
    for (std::size_t row = 0; row < PlainDrums.size(); ++row) {
        clickRow("List1", row);
        const int drum = static_cast<int>(row) + 35;
        EXPECT_EQ(sentText(), midiText({{0x99, drum, 127}}));
        EXPECT_EQ(noteHere(), std::to_string(drum));
    }
}

TEST_P(PlainPercussionEdges, AGuitarTrackTakesTheNumberToo) {
    document().GuitarTrackFlags = {True16};
    document().RealtimeMode = 2;
    clickRow("List1", 3);
    EXPECT_EQ(noteHere(), "38");
    EXPECT_EQ(sentText(), midiText({{0x99, 38, 127}}));
    EXPECT_FALSE(timers.timers()["tmrsndStopper"]->timerEnabled());
}

TEST_P(PlainPercussionEdges, BehindTheLastColumnTheDocumentGrows) {
    QTest::keyClick(&at("chkAuto"), Qt::Key_Space);
    for (std::size_t drum = 0; drum < 33; ++drum)
        clickRow("List1", drum);
    EXPECT_EQ(document().StaffCount, 2);
    EXPECT_EQ(document().CurrentStaff, 2);
    EXPECT_EQ(document().ColumnInStaff, 1);
    EXPECT_EQ(document().note(31, 0), "66");
    EXPECT_EQ(document().note(32, 0), "67");
}

TEST_P(PlainPercussionEdges, DeletingLeavesTheTechnique) {
    clickRow("List1", 3);
    document().setTechnique(0, 0, "g");
    midi.take();
    press("Image6");
    EXPECT_EQ(noteHere(), "");
    EXPECT_EQ(document().technique(0, 0), "g");
    desk.AllNotesOff();
    EXPECT_EQ(sentText(), midiText(desk.midi));
}

TEST_P(PlainPercussionEdges, AtTheEdgesOfTheDocumentTheCursorStays) {
    press("Image3");
    press("Image4");
    EXPECT_EQ(document().ColumnInStaff, 0);
    EXPECT_EQ(document().CurrentString, 0);
    for (int presses = 0; presses < 7; ++presses)
        press("Image2");
    EXPECT_EQ(document().CurrentString, 5);
    EXPECT_EQ(document().StaffCount, 1);
}

TEST_P(PlainPercussionEdges, ADrumRedrawsThePage) {
    watcher.last = {};
    clickRow("List1", 3);
    EXPECT_GE(watcher.last.redraws, 1);
    EXPECT_TRUE(watcher.last.page);
    EXPECT_TRUE(watcher.last.statistics);
}

TEST_P(PlainPercussionEdges, OpenedWhileTheDocumentPlaysItChangesNothing) {
    commands.playback.play(PlayFrom::Start);
    open();
    clickRow("List1", 3);
    QTest::keyClick(&at("List1"), Qt::Key_Down);
    for (const PlainPicture& picture : PlainPictures) {
        EXPECT_FALSE(at(picture.name).isEnabled()) << picture.name;
        press(picture.name);
    }
    EXPECT_FALSE(at("List1").isEnabled());
    EXPECT_EQ(noteHere(), "");
    EXPECT_EQ(document().ColumnInStaff, 0);
    EXPECT_EQ(document().CurrentString, 0);
    EXPECT_TRUE(midi.take().empty());
    commands.playback.mnuPlaybackStop();
    midi.take();
    EXPECT_TRUE(at("List1").isEnabled());
    clickRow("List1", 3);
    EXPECT_EQ(noteHere(), "38");
}

TEST_P(PlainPercussionEdges, APictureActsOnceHoweverTheMouseIsLedWhileItIsDown) {
    QWidget& right = at("Image1");
    const auto move = [&right](QPoint place) {
        QMouseEvent event(QEvent::MouseMove, place, right.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&right, &event);
    };
    QTest::mousePress(&right, Qt::LeftButton);
    EXPECT_EQ(document().ColumnInStaff, 1);
    move({-20, 500});
    move(right.rect().center());
    EXPECT_EQ(document().ColumnInStaff, 1);
    QTest::mouseRelease(&right, Qt::LeftButton);
    EXPECT_EQ(document().ColumnInStaff, 1);
}

TEST_P(PlainPercussionEdges, AClickOnTheChosenDrumWritesItWhateverKeyIsHeldDown) {
    clickRow("List1", 3);
    press("Image1");
    auto& list = at<QListWidget>("List1");
    const QPoint place = list.visualItemRect(list.item(3)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    EXPECT_EQ(noteHere(), "38");
    EXPECT_EQ(chosenRow("List1"), 3);
}

// A column is as wide as that many share the list's width, and the next begins where one ends.
TEST_P(PlainPercussionEdges, TheListHasAColumnForEach110Pixels) {
    for (const int width : {269, 330, 440, 549, 550, 551, 660, 900}) {
        window->resize(width, 400);
        QApplication::processEvents();
        const auto& list = at<QListWidget>("List1");
        std::map<int, int> columns; // rows by left edge
        for (int row = 0; row < list.count(); ++row)
            ++columns[list.visualItemRect(list.item(row)).left()];
        ASSERT_GE(columns.size(), 2u) << width;
        const int step = std::next(columns.begin())->first - columns.begin()->first;
        EXPECT_NEAR(step, list.viewport()->width() / (window->width() / 110), 2) << width;
    }
}

INSTANTIATE_TEST_SUITE_P(One, PlainPercussionEdges, ::testing::Values(0u));

} // namespace
} // namespace tabrova::testing
