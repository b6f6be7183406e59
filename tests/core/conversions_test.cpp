// Numbers and booleans as text: one table a rule.
#include "core/conversions.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(Conversions, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(roundHalfToEven(0.5), 0.0);
    EXPECT_EQ(roundHalfToEven(1.5), 2.0);
    EXPECT_EQ(roundHalfToEven(2.5), 2.0);
    EXPECT_EQ(roundHalfToEven(-0.5), 0.0);
    EXPECT_EQ(roundHalfToEven(-1.5), -2.0);
    EXPECT_EQ(roundHalfToEven(63.5), 64.0);
    EXPECT_EQ(roundHalfToEven(62.5), 62.0);
    EXPECT_EQ(roundHalfToEven(2.49), 2.0);
    EXPECT_EQ(roundHalfToEven(2.51), 3.0);
}

} // namespace
} // namespace tabrova
