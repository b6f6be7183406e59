// How many staves and how wide columns a page has, and where the cursor's lines stand.
#include "tabview/page_geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace tabrova {
namespace {

TEST(PageGeometry, WholeStavesAreVisibleAndAtLeastOne) {
    for (const auto& [height, staves] :
         {std::pair{-50, 1}, {0, 1}, {1, 1}, {99, 1}, {100, 1}, {199, 1}, {200, 2}, {472, 4}, {1080, 10}})
        EXPECT_EQ(visibleStaves(height), staves) << height;
}

TEST(PageGeometry, AHigherPageThanStavesCanBeCountedShowsAsManyAsCanBe) {
    EXPECT_EQ(visibleStaves(3276699), 32766);
    EXPECT_EQ(visibleStaves(3276700), 32767);
    EXPECT_EQ(visibleStaves(3276800), 32767);
    EXPECT_EQ(visibleStaves(std::numeric_limits<int>::max()), 32767);
}

TEST(PageGeometry, ColumnsAreA32ndOfWhatTheMarginsLeaveRoundedHalfToEven) {
    for (const auto& [width, column] : {std::pair{984, 29},
                                        {60, 0},
                                        {60 + 16, 0},
                                        {60 + 48, 2},
                                        {60 + 80, 2},
                                        {60 + 81, 3},
                                        {60 + 32 * 13, 13},
                                        {60 - 32, -1}})
        EXPECT_EQ(columnWidth(width), column) << width;
}

TEST(PageGeometry, ColumnsTooWideToCountHaveNoWidth) {
    EXPECT_EQ(columnWidth(60 + 32 * 32767), 32767);
    EXPECT_EQ(columnWidth(60 + 32 * 32768), 0);
}

TEST(PageGeometry, TheLinesFollowTheCursor) {
    PageObjects objects;
    objects.nCursor = {167, 65, 13, 10};
    objects.placeLines();
    EXPECT_EQ(objects.vLine1, (Line{173, 0, 173, 65}));
    EXPECT_EQ(objects.NoteLine, (Line{181, 0, 181, 168}));
}

} // namespace
} // namespace tabrova
