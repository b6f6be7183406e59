// Numbers and booleans as text: one table a rule.
#include "core/text/conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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

TEST(Conversions, AnIntegerOfThirtyTwoBitsRoundsAndFailsBeyondThem) {
    EXPECT_EQ(toInteger32(" 40000 "), 40000);
    EXPECT_EQ(toInteger32("2.5"), 2);
    EXPECT_EQ(toInteger32("-3.5"), -4);
    EXPECT_EQ(toInteger32("2147483647"), 2147483647);
    EXPECT_EQ(toInteger32("-2147483648"), -2147483647 - 1);
    for (const char* none : {"2147483648", "-2147483649", "1e400", "", "x", "1,5"})
        EXPECT_EQ(toInteger32(none), std::nullopt) << none;
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

INSTANTIATE_TEST_SUITE_P(Signs, NumberText,
                         ::testing::Values(NumberRow{"-.5", -0.5}, NumberRow{"+.5e+1", 5.0},
                                           NumberRow{"-7.", -7.0}, NumberRow{"++1", {}}, NumberRow{"+-1", {}},
                                           NumberRow{"1-", {}}, NumberRow{"-", {}}, NumberRow{"+", {}},
                                           NumberRow{"-.", {}}, NumberRow{"- 1", {}}, NumberRow{"-x", {}}));

INSTANTIATE_TEST_SUITE_P(Exponents, NumberText,
                         ::testing::Values(NumberRow{"1e+", {}}, NumberRow{"1e-", {}}, NumberRow{"1e2.5", {}},
                                           NumberRow{"1e2e2", {}}, NumberRow{".e2", {}},
                                           NumberRow{"1 e2", {}}, NumberRow{"1d2", {}},
                                           NumberRow{"0e400", 0.0}, NumberRow{"1e308", 1e308},
                                           NumberRow{"-1e309", {}}, NumberRow{"1e99999999999999999999", {}},
                                           NumberRow{"1e-99999999999999999999", 0.0},
                                           NumberRow{"1e000002", 100.0}));

INSTANTIATE_TEST_SUITE_P(Rests, NumberText,
                         ::testing::Values(NumberRow{"1.2.3", {}}, NumberRow{"1..2", {}},
                                           NumberRow{"5\n", {}}, NumberRow{"\r5", {}}, NumberRow{"5\xA0", {}},
                                           NumberRow{"1;", {}}, NumberRow{"infinity", {}},
                                           NumberRow{"NaN", {}}, NumberRow{"0b1", {}}, NumberRow{"1_000", {}},
                                           NumberRow{"1'000", {}}, NumberRow{"r3", {}}));

TEST(Conversions, AZeroByteIsPartOfTheTextAndNoEnd) {
    EXPECT_EQ(toNumber(std::string_view("5\0", 2)), std::nullopt);
    EXPECT_EQ(toNumber(std::string_view("\0", 1)), std::nullopt);
}

TEST(Conversions, DigitsWithoutEndOverflow) {
    EXPECT_EQ(toNumber(std::string(308, '9')).has_value(), true);
    EXPECT_EQ(toNumber(std::string(400, '9')), std::nullopt);
    EXPECT_EQ(toNumber(std::string(100000, '0') + "7"), 7.0);
}

TEST(Conversions, WholeNumbersRoundToThemselves) {
    for (const double value : {0.0, 1.0, -1.0, 2147483647.0, -2147483648.0, 9007199254740993.0, 1e300})
        EXPECT_EQ(roundHalfToEven(value), value);
}

TEST(Conversions, TheNearestNeighboursOfOneHalfLeaveIt) {
    EXPECT_EQ(roundHalfToEven(0.49999999999999994), 0.0);
    EXPECT_EQ(roundHalfToEven(0.50000000000000011), 1.0);
    EXPECT_EQ(roundHalfToEven(-0.50000000000000011), -1.0);
}

TEST(Conversions, EveryHalfOfSixteenBitsGoesToAnEvenNumber) {
    for (int below = -32768; below < 32767; ++below) {
        const auto rounded = toInteger16(below + 0.5);
        ASSERT_TRUE(rounded.has_value()) << below;
        ASSERT_EQ(*rounded % 2, 0) << below;
        ASSERT_LE(std::abs(*rounded - (below + 0.5)), 0.5) << below;
    }
}

TEST(Conversions, TheEdgesOfSixteenBitsRoundIntoThem) {
    EXPECT_EQ(toInteger16("-32768.5"), -32768);
    EXPECT_EQ(toInteger16("-32768.51"), std::nullopt);
    EXPECT_EQ(toInteger16("32767.49"), 32767);
}

TEST(Conversions, WhatIsNoNumberIsNoInteger) {
    EXPECT_EQ(toInteger16(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(toInteger16(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(toInteger16(-std::numeric_limits<double>::infinity()), std::nullopt);
    for (const char* text : {"", "x", ">", "True", "12a"})
        EXPECT_EQ(toInteger16(text), std::nullopt) << text;
}

TEST(Conversions, APrintedIntegerConvertsBackForAllSixteenBits) {
    for (int value = -32768; value <= 32767; ++value)
        ASSERT_EQ(toInteger16(printedInteger(value)), value);
}

TEST(Conversions, APrintedBooleanConvertsBack) {
    for (const bool value : {true, false})
        EXPECT_EQ(toBoolean(printedBoolean(value)), value);
}

TEST(Conversions, ANumberThatOverflowsIsNoBoolean) { EXPECT_EQ(toBoolean("1e400"), std::nullopt); }

TEST(Conversions, ABlankInsideAWordIsNoBoolean) {
    EXPECT_EQ(toBoolean("Tr ue"), std::nullopt);
    EXPECT_EQ(toBoolean("True False"), std::nullopt);
}

TEST(Conversions, BooleansInFieldsAreMinusOneAndZero) {
    EXPECT_EQ(boolean16(true), -1);
    EXPECT_EQ(boolean16(false), 0);
}

} // namespace
} // namespace tabrova
