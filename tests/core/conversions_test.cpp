// Numbers and booleans as text: one table a rule.
#include "core/conversions.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

struct NumberRow {
    const char* text;
    std::optional<double> value;
};

class NumberText : public ::testing::TestWithParam<NumberRow> {};

TEST_P(NumberText, Converts) { EXPECT_EQ(toNumber(GetParam().text), GetParam().value) << GetParam().text; }

INSTANTIATE_TEST_SUITE_P(
    Table, NumberText,
    ::testing::Values(NumberRow{"0", 0.0}, NumberRow{"480", 480.0}, NumberRow{" 480 ", 480.0},
                      NumberRow{"\t7\t", 7.0}, NumberRow{"+5", 5.0}, NumberRow{"-5", -5.0},
                      NumberRow{"- 5", {}}, NumberRow{"1.5", 1.5}, NumberRow{".5", 0.5}, NumberRow{"5.", 5.0},
                      NumberRow{".", {}}, NumberRow{"1e2", 100.0}, NumberRow{"1E+2", 100.0},
                      NumberRow{"25e-1", 2.5}, NumberRow{"1e", {}}, NumberRow{"e5", {}},
                      NumberRow{"1e400", {}}, NumberRow{"1e-400", 0.0}, NumberRow{"", {}}, NumberRow{" ", {}},
                      NumberRow{"x", {}}, NumberRow{">", {}}, NumberRow{"1x", {}}, NumberRow{"1 2", {}},
                      NumberRow{"inf", {}}, NumberRow{"nan", {}}, NumberRow{"0x10", {}}, NumberRow{"1,5", {}},
                      NumberRow{"007", 7.0}, NumberRow{"--1", {}}, NumberRow{"True", {}}));

TEST(Conversions, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(roundHalfToEven(0.5), 0.0);
    EXPECT_EQ(roundHalfToEven(1.5), 2.0);
    EXPECT_EQ(roundHalfToEven(2.5), 2.0);
    EXPECT_EQ(roundHalfToEven(-0.5), 0.0);
    EXPECT_EQ(roundHalfToEven(-1.5), -2.0);
    EXPECT_EQ(roundHalfToEven(-2.5), -2.0);
    EXPECT_EQ(roundHalfToEven(63.5), 64.0);
    EXPECT_EQ(roundHalfToEven(62.5), 62.0);
    EXPECT_EQ(roundHalfToEven(2.49), 2.0);
    EXPECT_EQ(roundHalfToEven(2.51), 3.0);
}

TEST(Conversions, AnIntegerOverSixteenBitsFails) {
    EXPECT_EQ(toInteger16("32767"), 32767);
    EXPECT_EQ(toInteger16("-32768"), -32768);
    EXPECT_EQ(toInteger16("32768"), std::nullopt);
    EXPECT_EQ(toInteger16("-32769"), std::nullopt);
    EXPECT_EQ(toInteger16("32767.4"), 32767);
    EXPECT_EQ(toInteger16("32767.5"), std::nullopt);
    EXPECT_EQ(toInteger16("1e5"), std::nullopt);
    EXPECT_EQ(toInteger16("2.5"), 2);
    EXPECT_EQ(toInteger16("3.5"), 4);
}

TEST(Conversions, AnIntegerOverThirtyTwoBitsFails) {
    EXPECT_EQ(toInteger32("2147483647"), 2147483647);
    EXPECT_EQ(toInteger32("2147483648"), std::nullopt);
    EXPECT_EQ(toInteger32("-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(Conversions, BooleansAreTheTwoWordsOrANumber) {
    for (const char* text : {"True", "true", "TRUE", " True ", "-1", "1", "0.5", " 7 "})
        EXPECT_EQ(toBoolean(text), true);
    for (const char* text : {"False", "false", " FALSE", "0", "0.0", "-0"})
        EXPECT_EQ(toBoolean(text), false);
    for (const char* text : {"", "yes", "Tru", "Truee", "x"})
        EXPECT_EQ(toBoolean(text), std::nullopt) << text;
}

TEST(Conversions, APrintedIntegerHasABlankOrAMinusSignAndABlankBehind) {
    EXPECT_EQ(printedInteger(480), " 480 ");
    EXPECT_EQ(printedInteger(0), " 0 ");
    EXPECT_EQ(printedInteger(-12), "-12 ");
    EXPECT_EQ(printedBoolean(true), "True");
    EXPECT_EQ(printedBoolean(false), "False");
}

} // namespace
} // namespace tabrova
