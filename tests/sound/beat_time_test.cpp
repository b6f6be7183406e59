// The interval of a beat in whole milliseconds, halves to the even neighbour.
#include "sound/beat_time.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(BeatTime, IsAMinutesShareRoundedHalfToEven) {
    const std::pair<int, int> times[] = {{20, 3000}, {30, 2000}, {110, 545}, {170, 353}, {220, 273},
                                         {480, 125}, {960, 62},  {1200, 50}, {1920, 31}, {64, 938},
                                         {600, 100}, {32, 1875}, {1600, 38}};
    for (const auto& [perMinute, milliseconds] : times)
        EXPECT_EQ(beatTime(perMinute), milliseconds) << perMinute;
}

} // namespace
} // namespace tabrova
