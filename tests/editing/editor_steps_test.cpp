// Steps of a command that its end mostly hides: what is brought up to date first, and in which order the
// window is told.
#include "editing/key_codes.h"
#include "tests/editing/fake_host.h"

namespace tabrova::testing {
namespace {

using Steps = EditorTest;

TEST_F(Steps, AKeyActsInTheCursorsColumnThoughNothingElseBroughtItUpToDate) {
    host.windowHeight = 100; // the neck does not do it
    makePercussionTrack();   // nor does the notation
    document.setBarMark(3, ".");
    document.setBarMark(9, ".");
    document.ColumnInStaff = 3;
    document.CurrentColumn = 9;
    editor.picDocument_KeyDown(key::U, 0);
    EXPECT_EQ(document.barMark(3), "");
    EXPECT_EQ(document.barMark(9), ".");
    EXPECT_EQ(document.CurrentColumn, 3);
}

TEST_F(Steps, ANewPageSizeMovesTheLinesAndWritesTheStatisticsBetweenTwoRedraws) {
    const std::vector<std::string> redraw = {"mirrorScrollBar",  "refreshStrip",           "refreshPage",
                                             "refreshFretboard", "UpdateTechniqueButtons", "setStatistics",
                                             "setTitle"};
    std::vector<std::string> expected = redraw;
    expected.insert(expected.end(), {"refreshFretboard", "setStatistics"});
    expected.insert(expected.end(), redraw.begin(), redraw.end());
    host.take();
    editor.pageResized();
    EXPECT_EQ(host.take(), expected);
}

TEST_F(Steps, AStructureEditWritesTheStatisticsBehindItsRedraw) {
    host.take();
    editor.InsertColumnOnTrack();
    const std::vector<std::string> calls = host.take();
    ASSERT_GE(calls.size(), 2u);
    EXPECT_EQ(calls[calls.size() - 2], "setTitle");
    EXPECT_EQ(calls.back(), "setStatistics");
}

} // namespace
} // namespace tabrova::testing
