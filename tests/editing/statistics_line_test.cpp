// The statistics line in words and in debug mode.
#include "editing/statistics_line.h"

#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

#include <algorithm>

namespace tabrova::testing {
namespace {

using StatisticsLine = EditorTest;

TEST_F(StatisticsLine, CountsTracksAndStavesInTheLanguagesWords) {
    document.CurrentTrack = 2;
    document.TrackCount = 3;
    document.CurrentStaff = 40;
    document.StaffCount = 100;
    EXPECT_EQ(statisticsLine(document, LanguageWords()), "Track 2 of 3, Staff 40 of 100");
    LanguageWords german;
    german.track = "Spur";
    german.of = "von";
    german.staff = "Zeile";
    EXPECT_EQ(statisticsLine(document, german), "Spur 2 von 3, Zeile 40 von 100");
}

TEST_F(StatisticsLine, TellsTheFieldsInDebugMode) {
    document.ColumnWidth = 29;
    document.CurrentStaff = 3;
    document.ColumnInStaff = 5;
    document.CurrentString = 4;
    document.StaffCount = 7;
    document.RowCapacity = 18;
    document.ColumnCapacity = 224;
    document.CurrentColumn = 68;
    document.TopStaff = 2;
    document.VisibleStaves = 4;
    EXPECT_EQ(debugLine(document), "horizontal spacing: 29. note number: 69. String number: 4. Total Staves: "
                                   "7. Staffnum: 3 YSIZE 18 XSIZE 224 XPOS 68 Top Staff 2 visible Staffs 4");
}

TEST_F(StatisticsLine, FollowsTheDebugFlag) {
    grow(3);
    moveTo(2, 0);
    EXPECT_EQ(texts.statistics, "Track 1 of 1, Staff 2 of 3");
    around.debugMode = true;
    keys({key::Right, key::Down});
    EXPECT_EQ(texts.statistics, debugLine(document));
    around.debugMode = false;
    editor.SetDebugLabel();
    EXPECT_EQ(texts.statistics, "Track 1 of 1, Staff 2 of 3");
}

TEST_F(StatisticsLine, IsRewrittenByEveryKeyOfAGuitarTrack) {
    for (const int code : std::initializer_list<int>{key::Right, key::Down, '5', 'H', 27}) {
        window.take();
        keys({code});
        EXPECT_TRUE(window.take().statistics) << code;
        EXPECT_EQ(texts.statistics, statisticsLine(document, words)) << code;
    }
}

TEST_F(StatisticsLine, IsLeftAloneByArrowsAndIgnoredKeysOfAPercussionTrack) {
    makePercussionTrack();
    for (const int code : std::initializer_list<int>{key::Right, key::Down, key::Left, key::Up, '5', 27}) {
        window.take();
        keys({code});
        const Changes told = window.take();
        EXPECT_FALSE(told.statistics) << code;
        EXPECT_FALSE(told.page) << code;
    }
}

} // namespace
} // namespace tabrova::testing
