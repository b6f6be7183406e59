// Which marks close a repeat, and how often.
#include "core/document/bar_marks.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(BarMarks, AClosedRepeatIsAnRWithOneToFifteen) {
    for (int count = 1; count <= 15; ++count) {
        EXPECT_EQ(closedRepeatMark(count), "r" + std::to_string(count));
        EXPECT_EQ(closedRepeatCount(closedRepeatMark(count)), count);
    }
}

TEST(BarMarks, NoOtherTextIsOne) {
    for (const char* text : {"",   "r",   ".",   "1",   "r0",  "r01", "r16", "r99", "r100", "R3",
                             "s3", "r-1", "r+1", "r 1", "r1 ", "rr1", "r1x", "rx",  "r1.0", "15"})
        EXPECT_FALSE(closedRepeatCount(text)) << text;
}

} // namespace
} // namespace tabrova
