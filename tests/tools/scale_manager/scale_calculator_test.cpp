// The scale calculator: each type in each key, files that are short or hold anything, and a new scale's line.
#include "tools/scale_manager/scale_calculator.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

constexpr std::string_view Major = "990249902499124991249924599999";

std::string labels(const ScaleDisplay& display, std::size_t string) {
    std::string all;
    for (const std::string& label : display.labels[string])
        all += (label.empty() ? "." : label) + " ";
    return all;
}

std::string marks(const ScaleDisplay& display, std::size_t string) {
    std::string all;
    for (std::size_t fret = 0; fret < ScaleMarks; ++fret)
        if (display.marks[string][fret]) all += std::to_string(fret) + " ";
    return all;
}

TEST(ScaleCalculator, MajorInEAndInA) {
    EXPECT_EQ(labels(layScale(0, Major), 0), ". . 0 2 4 ");
    EXPECT_EQ(marks(layScale(0, Major), 0), "0 2 4 ");
    EXPECT_EQ(labels(layScale(5, Major), 0), ". . 5 7 9 ");
    EXPECT_EQ(marks(layScale(5, Major), 4), "7 9 10 ");
    EXPECT_EQ(marks(layScale(5, Major), 5), "");
    EXPECT_EQ(labels(layScale(11, Major), 0), ". . 11 13 15 ");
}

// Each slot by itself: the fret of the box and the frets that the key lies above E.
TEST(ScaleCalculator, EveryTypeInEveryKeyIsItsBoxMovedUp) {
    for (const ScaleTypeRow& type : builtInScales())
        for (const ScaleKeyRow& key : ScaleKeyTable) {
            const std::string line = scaleLine(type.fields);
            ASSERT_EQ(line.size(), 30u) << type.name;
            const ScaleDisplay display = layScale(key.shift, line);
            for (std::size_t string = 0; string < ScaleStrings; ++string) {
                std::array<bool, ScaleMarks> expected{};
                for (std::size_t slot = 0; slot < ScaleSlots; ++slot) {
                    const int digit = line[string * 5 + slot] - '0';
                    const std::string label = digit < 6 ? std::to_string(digit + key.shift) : "";
                    EXPECT_EQ(display.labels[string][slot], label) << type.name << " " << key.name;
                    if (digit < 6) expected[static_cast<std::size_t>(digit + key.shift)] = true;
                }
                EXPECT_EQ(display.marks[string], expected) << type.name << " " << key.name;
            }
        }
}

TEST(ScaleCalculator, WhatIsNoNoteIsHidden) {
    const ScaleDisplay display = layScale(2, "6789x -,/:05");
    EXPECT_EQ(labels(display, 0), ". . . . . ");
    EXPECT_EQ(labels(display, 1), ". . . . . ");
    EXPECT_EQ(labels(display, 2), "2 7 . . . ");
    EXPECT_EQ(marks(layScale(0, std::string(30, '9')), 0), "");
}

TEST(ScaleCalculator, AShortLineLacksItsLastSlotsAndALongOneIsCut) {
    EXPECT_EQ(labels(layScale(0, "99024"), 0), ". . 0 2 4 ");
    EXPECT_EQ(labels(layScale(0, "99024"), 1), ". . . . . ");
    const ScaleDisplay all = layScale(11, std::string(100, '5'));
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        EXPECT_EQ(labels(all, string), "16 16 16 16 16 ");
    EXPECT_EQ(labels(layScale(0, ""), 3), ". . . . . ");
}

TEST(ScaleCalculator, FieldsAreFilledOnTheLeft) {
    EXPECT_EQ(paddedField(""), "99999");
    EXPECT_EQ(paddedField("9"), "99999");
    EXPECT_EQ(paddedField("02"), "99902");
    EXPECT_EQ(paddedField("024"), "99024");
    EXPECT_EQ(paddedField("0245"), "90245");
    EXPECT_EQ(paddedField("01245"), "01245");
    EXPECT_EQ(paddedField("0124512"), "0124512");
}

ScaleEntries entries(const std::string& text) {
    ScaleEntries all;
    for (auto& string : all)
        string.fill(text);
    return all;
}

TEST(NewScale, IsTheLineOfItsThirtyBoxes) {
    EXPECT_EQ(newScaleLine(entries("-")), std::string(30, '9'));
    ScaleEntries some = entries("-");
    some[0][3] = "0";
    some[5][4] = "5";
    EXPECT_EQ(newScaleLine(some), "999099999999999999999999999995");
    for (int fret = 0; fret <= 5; ++fret)
        EXPECT_EQ(newScaleLine(entries(std::to_string(fret))),
                  std::string(30, static_cast<char>('0' + fret)));
}

TEST(NewScale, TakesNothingElseInAnyBox) {
    for (const char* text :
         {"6", "7", "8", "9", "", " ", "x", "--", "-1", "10", "05", " 3", "1.5", "1e0", "5-"})
        for (const auto& [string, slot] : {std::pair(0, 0), {2, 4}, {5, 4}}) {
            ScaleEntries one = entries("-");
            one[static_cast<std::size_t>(string)][static_cast<std::size_t>(slot)] = text;
            EXPECT_EQ(newScaleLine(one), std::nullopt) << text;
        }
}

TEST(ScaleNote, IsTheOpenStringAndTheFretOrNothing) {
    EXPECT_EQ(scaleNote(0, "0"), 40);
    EXPECT_EQ(scaleNote(1, "16"), 61);
    EXPECT_EQ(scaleNote(5, "7"), 71);
    EXPECT_EQ(scaleNote(3, ""), std::nullopt);
}

} // namespace
} // namespace tabrova
