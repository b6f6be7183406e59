// Numbers outside the range of a double: how large they are does not follow from the sign of the exponent
// alone.
#include "core/conversions.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(Conversions, AFractionTooSmallForADoubleIsZeroWithoutAnExponentToo) {
    EXPECT_EQ(toNumber("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(toNumber("-." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(toNumber("0." + std::string(400, '0') + "1e+5"), 0.0);
}

TEST(Conversions, ANumberTooLargeForADoubleFailsWithANegativeExponentToo) {
    EXPECT_EQ(toNumber("1" + std::string(400, '0') + "e-1"), std::nullopt);
    EXPECT_EQ(toInteger16("1" + std::string(400, '0') + "e-1"), std::nullopt);
    EXPECT_EQ(toBoolean("1" + std::string(400, '0') + "e-1"), std::nullopt);
}

} // namespace
} // namespace tabrova
