// The cursor's colors, the stored device position and the hidden debug box.
#include "organisers/options/options_rules.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

constexpr QRgb Highlight = 0xFF308CC6;

TEST(CursorColors, StandInTheirOrderWithTheirValues) {
    const std::vector<std::pair<std::string, QRgb>> wanted = {
        {"Red", 0xFFFF0000},   {"Blue", 0xFF0000FF},   {"Faded Blue", Highlight},
        {"Green", 0xFF008000}, {"Orange", 0xFFFF8000}, {"Black", 0xFF000000}};
    std::vector<std::pair<std::string, QRgb>> found;
    for (const CursorColorRow& row : CursorColors)
        found.emplace_back(row.name, cursorColor(row, Highlight));
    EXPECT_EQ(found, wanted);
}

TEST(StoredPosition, IsARowThatIsThere) {
    EXPECT_EQ(storedPosition("0", 2), 0);
    EXPECT_EQ(storedPosition(" 1 ", 2), 1);
    for (const char* gone : {"2", "-1", "", "first", "1.5", "99999999999999999999"})
        EXPECT_EQ(storedPosition(gone, 2), std::nullopt) << gone;
    EXPECT_EQ(storedPosition("0", 0), std::nullopt);
}

TEST(DeviceClicks, ShowTheDebugBoxAtTheTwoHundredthAlone) {
    DeviceClicks clicks;
    for (int click = 1; click <= 1000; ++click)
        EXPECT_EQ(clicks.count(), click == 200) << click;
}

} // namespace
} // namespace tabrova
