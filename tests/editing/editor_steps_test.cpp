// Steps of a command that its end mostly hides: what is brought up to date first, and in which order the
// window is told.
#include "editing/key_codes.h"
#include "editing/statistics_line.h"
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

using Steps = EditorTest;

TEST_F(Steps, AKeyActsInTheCursorsColumnThoughNothingElseBroughtItUpToDate) {
    around.clientHeight = 100; // the neck does not do it
    makePercussionTrack();     // nor does the notation
    document.setBarMark(3, ".");
    document.setBarMark(9, ".");
    document.ColumnInStaff = 3;
    document.CurrentColumn = 9;
    editor.picDocument_KeyDown(key::U, 0);
    EXPECT_EQ(document.barMark(3), "");
    EXPECT_EQ(document.barMark(9), ".");
    EXPECT_EQ(document.CurrentColumn, 3);
}

TEST_F(Steps, ANewPageSizeIsDrawnTwiceInOneAct) {
    window.take();
    editor.pageResized();
    const Changes told = window.take();
    EXPECT_EQ(told.redraws, 2);
    EXPECT_EQ(window.lastAct, "pageResized");
    EXPECT_EQ(texts.statistics, statisticsLine(document, words));
}

TEST_F(Steps, AStructureEditLeavesTheStatisticsOfItsEnd) {
    moveTo(1, 31);
    document.setNote(31, 0, "5");
    editor.InsertColumnOnTrack();
    EXPECT_EQ(texts.statistics, "Track 1 of 1, Staff 1 of 2");
}

} // namespace
} // namespace tabrova::testing
