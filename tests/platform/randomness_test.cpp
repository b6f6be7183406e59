// Chance gives fractions from 0 to below 1; a test gives its own.
#include "platform/randomness.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tabrova {
namespace {

TEST(Randomness, SpreadsItsFractionsFrom0ToBelow1) {
    SystemRandomness randomness;
    std::vector<int> tenths(10);
    for (int draw = 0; draw < 10000; ++draw) {
        const double fraction = randomness.fraction();
        ASSERT_GE(fraction, 0.0);
        ASSERT_LT(fraction, 1.0);
        ++tenths[static_cast<std::size_t>(fraction * 10)];
    }
    // Ten standard deviations below the mean of 1000.
    EXPECT_GT(*std::min_element(tenths.begin(), tenths.end()), 700);
}

TEST(Randomness, AnswersTheNumbersThatItWasGivenAndThenRealOnes) {
    GivenRandomness randomness;
    randomness.given = {0.5, 0.25};
    EXPECT_EQ(randomness.fraction(), 0.5);
    EXPECT_EQ(randomness.fraction(), 0.25);
    EXPECT_NE(randomness.fraction(), randomness.fraction());
}

} // namespace
} // namespace tabrova
