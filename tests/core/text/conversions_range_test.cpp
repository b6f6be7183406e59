// Numbers outside the range of a double: how large they are does not follow from the sign of the exponent
// alone.
#include "core/text/conversions.h"

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

TEST(Conversions, ANumberCutOutOfALongerTextEndsWhereItIsCut) {
    const std::string_view longer = "12e5.75e3";
    for (const auto& [length, value] : {std::pair<std::size_t, std::optional<double>>{1, 1.0},
                                        {2, 12.0},
                                        {3, std::nullopt},
                                        {4, 12e5},
                                        {5, std::nullopt}})
        EXPECT_EQ(toNumber(longer.substr(0, length)), value) << length;
    for (const auto& [length, value] : {std::pair<std::size_t, std::optional<double>>{1, 5.0},
                                        {2, 5.0},
                                        {3, 5.7},
                                        {4, 5.75},
                                        {5, std::nullopt},
                                        {6, 5750.0}})
        EXPECT_EQ(toNumber(longer.substr(3, length)), value) << length;
    // Neither a point, an exponent's sign nor a blank is looked for behind the end.
    EXPECT_EQ(toNumber(std::string_view("7.5").substr(0, 1)), 7.0);
    EXPECT_EQ(toNumber(std::string_view("7e-1").substr(0, 3)), std::nullopt);
    EXPECT_EQ(toNumber(std::string_view("-5").substr(0, 1)), std::nullopt);
    EXPECT_EQ(toBoolean(std::string_view("Trueness").substr(0, 4)), true);
    EXPECT_EQ(toInteger16(std::string_view("127128").substr(0, 3)), 127);
}

} // namespace
} // namespace tabrova
