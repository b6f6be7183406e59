// The neck's geometry for a height, its dots, and every place of a click against the formula.
#include "tabview/fretboard_layout.h"
#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"

#include <cmath>
#include <set>

namespace tabrova::testing {
namespace {

class Neck : public ::testing::Test {
  protected:
    Neck() {
        makePage(document, 2, 2, 984, 472);
        document.CurrentColumn = 33;
    }
    FretboardLayout layout(int height) const { return layoutFretboard(document, height); }

    Document document;
};

TEST_F(Neck, TheFretPitchRoundsHalfToEven) {
    EXPECT_EQ(fretPitch(465), 15);
    EXPECT_EQ(fretPitch(30 + 29 * 15 + 14), 15);
    EXPECT_EQ(fretPitch(30 + 29 * 15 + 15), 16);
    for (int height = -100; height < 3000; ++height)
        EXPECT_EQ(fretPitch(height), static_cast<int>(std::nearbyint((height - 30) / 29.0))) << height;
}

TEST_F(Neck, FretLinesStandAPitchApart) {
    const FretboardLayout neck = layout(465);
    for (int number = 0; number < 30; ++number) {
        EXPECT_EQ(neck.frets[static_cast<std::size_t>(number)].number, number);
        EXPECT_EQ(neck.frets[static_cast<std::size_t>(number)].y, 15 * number + 15);
    }
}

TEST_F(Neck, FretsHaveTheirNumbersAsFarAsTheyFit) {
    for (int height = -100; height < 3000; ++height) {
        const FretboardLayout neck = layout(height);
        const int pitch = fretPitch(height);
        int last = -1000;
        for (const NeckFret& fret : neck.frets) {
            if (pitch >= 8) {
                ASSERT_EQ(fret.labelled, fret.number > 0) << height;
            }
            if (!fret.labelled) continue;
            ASSERT_GE(fret.y - last, 8) << height;
            ASSERT_GE(fret.y - last, neck.labelPixels) << height;
            last = fret.y;
        }
        ASSERT_EQ(last > 0, pitch > 0) << height;
        ASSERT_GE(neck.labelPixels, 8);
        ASSERT_EQ(neck.labelPixels == 11, pitch >= 13 || pitch == 7) << height;
    }
    EXPECT_TRUE(layout(30 + 29 * 7).frets[2].labelled);
    EXPECT_FALSE(layout(30 + 29 * 7).frets[3].labelled);
}

TEST_F(Neck, InlaysStandInTheSpaceAboveTheirFret) {
    const std::set<int> inlaid = {3, 5, 7, 9, 12, 15, 17, 19, 21, 23, 25, 27, 29};
    const FretboardLayout neck = layout(465);
    for (int number = 0; number < 30; ++number) {
        const NeckFret& fret = neck.frets[static_cast<std::size_t>(number)];
        ASSERT_EQ(fret.inlay.has_value(), inlaid.count(number + 1) == 1) << number;
        if (fret.inlay) {
            EXPECT_EQ(*fret.inlay, (Rect{35, fret.y + 5, 21, 15 - 10 + 1}));
        }
    }
}

TEST_F(Neck, AnInlayWithoutRoomHasItsEdgesExchanged) {
    const NeckFret fret = layout(30 + 29 * 6).frets[2]; // pitch 6: from y + 5 to y + 1
    EXPECT_EQ(*fret.inlay, (Rect{35, fret.y + 1, 21, 5}));
}

TEST_F(Neck, StringsRunOutFarBelowTheSurface) {
    const FretboardLayout neck = layout(465);
    for (int string = 0; string < 6; ++string) {
        const int x = (7 - string) * 10;
        EXPECT_EQ(neck.strings[static_cast<std::size_t>(string)], (Line{x, 15, x, 29 * (15 * 29 + 15)}));
    }
    EXPECT_EQ(neck.strings[5].x1, 20);
    EXPECT_EQ(neck.strings[0].x1, 70);
}

TEST_F(Neck, DotsSitOnTheLinesOfTheCursorsColumn) {
    document.CurrentTrack = 2;
    for (int fret = 0; fret <= 29; ++fret)
        for (int string = 0; string < 6; ++string) {
            document.setNote(33, 6 + string, std::to_string(fret));
            const NeckDot dot = layout(465).dots[static_cast<std::size_t>(string)];
            EXPECT_EQ(dot.x, (7 - string) * 10);
            EXPECT_EQ(dot.y, 15 * fret + 15);
        }
}

TEST_F(Neck, WhatIsNoFretHasItsDotFarAboveThePicture) {
    for (const char* text : {"", "x", ">", "30", "35", "81", "-1", "07", "1.0", " 5", "5 ", "no"}) {
        document.setNote(33, 0, text);
        EXPECT_EQ(layout(465).dots[0].y, 15 * -20 + 15) << text;
    }
}

TEST_F(Neck, AColumnOutsideTheDocumentHasNoDots) {
    for (const int column : {-1, 64, 1 << 30, -(1 << 30)}) {
        document.CurrentColumn = column;
        for (const NeckDot& dot : layout(465).dots)
            EXPECT_EQ(dot.y, -285);
    }
}

// Every place of a surface a little larger than the neck, for all pitches that a window gives.
TEST_F(Neck, EveryClickFollowsTheFormula) {
    for (int pitch = -3; pitch <= 45; ++pitch)
        for (int y = -5; y < 29 * std::max(pitch, 0) + 40; ++y)
            for (int x = 0; x < 89; ++x) {
                const auto place = neckPlaceAt(x, y, pitch);
                const bool inside = x > 15 && x < 75 && y > 10 && y < 29 * pitch + 15 && pitch != 0;
                ASSERT_EQ(place.has_value(), inside) << x << ',' << y << " pitch " << pitch;
                if (!inside) continue;
                EXPECT_EQ(place->fret, static_cast<int>(std::nearbyint((y - 27) / double(pitch))) + 1);
                EXPECT_EQ(place->string, 5 - static_cast<int>(std::nearbyint((x - 20) / 10.0)));
                EXPECT_GE(place->string, 0);
                EXPECT_LE(place->string, 5);
            }
}

TEST_F(Neck, AClickAroundThreeAboveALineGivesItsFret) {
    for (int fret = 0; fret < 30; ++fret)
        for (int offset = -7; offset <= 7; ++offset) {
            const auto place = neckPlaceAt(40, 15 * fret + 12 + offset, 15);
            if (15 * fret + 12 + offset <= 10 || 15 * fret + 12 + offset >= 450) continue;
            EXPECT_EQ(place->fret, fret) << offset;
        }
}

TEST_F(Neck, TheOuterStringsReachBeyondTheNeck) {
    for (int x = 16; x <= 25; ++x)
        EXPECT_EQ(neckPlaceAt(x, 100, 15)->string, 5) << x;
    for (int x = 66; x <= 74; ++x)
        EXPECT_EQ(neckPlaceAt(x, 100, 15)->string, 0) << x;
    EXPECT_FALSE(neckPlaceAt(15, 100, 15));
    EXPECT_FALSE(neckPlaceAt(75, 100, 15));
}

TEST_F(Neck, AClickAboveTheNeckStillGivesAFret) {
    for (int y = 11; y < 20; ++y)
        EXPECT_EQ(neckPlaceAt(40, y, 15)->fret, 0) << y;
    EXPECT_EQ(neckPlaceAt(40, 19, 16)->fret, 1); // half a fret, to the even side
    EXPECT_EQ(neckPlaceAt(40, 11, 40)->fret, 1);
    EXPECT_EQ(neckPlaceAt(40, 11, 8)->fret, -1);
    EXPECT_EQ(neckPlaceAt(40, 29 * 30 + 14, 30)->fret, 30);
}

TEST_F(Neck, InlaysAreQuietInEveryTheme) {
    EXPECT_EQ(quietInlayColor(qRgb(184, 184, 184)), qRgb(184, 184, 184));
    EXPECT_EQ(quietInlayColor(qRgb(0, 0, 0)), qRgb(150, 150, 150));
    EXPECT_EQ(quietInlayColor(qRgb(255, 255, 255)), qRgb(200, 200, 200));
}

TEST(QuietInlay, KeepsAColorThatIsNeitherTooDarkNorTooLight) {
    for (const QRgb color : {0xFF969696u, 0xFFC8C8C8u, 0xFFA0B0C0u, 0xFFB8B8B8u})
        EXPECT_EQ(quietInlayColor(color), color);
}

TEST(QuietInlay, IsTheNextQuietGreyOtherwise) {
    for (const QRgb dark : {0xFF000000u, 0xFF808080u, 0xFF959595u, 0xFF0000FFu})
        EXPECT_EQ(quietInlayColor(dark), 0xFF969696u) << std::hex << dark;
    for (const QRgb light : {0xFFFFFFFFu, 0xFFC9C9C9u, 0xFFE0E4E8u})
        EXPECT_EQ(quietInlayColor(light), 0xFFC8C8C8u) << std::hex << light;
}

} // namespace
} // namespace tabrova::testing
