// The surface keeps its image, and the two copies do to every pixel what a naive blitter does.
#include "tabview/surface.h"

#include "tests/tabview/plain_blitter.h"

#include <limits>
#include <random>

namespace tabrova::testing {
namespace {

constexpr QRgb Paper = 0xFFFFFEF2;
constexpr QRgb White = 0xFFFFFFFF;
constexpr Raster Rasters[] = {Raster::SrcCopy, Raster::SrcAnd};

// Every pixel differs, so that a wrong place shows.
Surface numbered(int width, int height, int scale = 1) {
    QImage image(width * scale, height * scale, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 2 + 1, y * 3 + 1, 200 - x - y));
    return Surface(image, scale);
}

Surface pageOf(int width, int height, int scale) {
    Surface page(width, height, qRgb(0xAB, 0xCD, 0xEF));
    page.setScale(scale);
    return page;
}

// One stretch on a page of 20 by 16 against the naive blitter.
void expectStretch(const Surface& from, const Rect& place, const Rect& source, Raster raster, int scale) {
    Surface page = pageOf(20, 16, scale);
    QImage expected = page.image();
    carryOut(expected, from.image(), {place, source, raster}, scale);
    StretchBlt(page, place, from, source, raster);
    ASSERT_EQ(page.image(), expected)
        << ::testing::PrintToString(SpriteCopy{place, source, raster}) << " scale " << scale;
}

void expectBlit(const Surface& from, const Rect& place, int sourceX, int sourceY, Raster raster, int scale) {
    Surface page = pageOf(20, 16, scale);
    const SpriteCopy copy = {place, {sourceX, sourceY, place.width, place.height}, raster};
    QImage expected = page.image();
    carryOut(expected, from.image(), copy, scale);
    BitBlt(page, place.left, place.top, place.width, place.height, from, sourceX, sourceY, raster);
    ASSERT_EQ(page.image(), expected) << ::testing::PrintToString(copy) << " scale " << scale;
}

TEST(Surface, StartsInItsBackground) {
    const Surface surface(3, 2, Paper);
    EXPECT_EQ(surface.image().size(), QSize(3, 2));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(surface.image().pixel(x, y), Paper);
}

TEST(Surface, OneMadeOfAPictureIsWhiteWhereItGrows) {
    Surface surface = numbered(2, 2);
    EXPECT_EQ(surface.background(), White);
    surface.resize(3, 2);
    EXPECT_EQ(surface.image().pixel(2, 1), White);
}

TEST(Surface, KeepsItsImageWhenItGrows) {
    Surface surface(4, 4, Paper);
    surface.image().setPixel(1, 2, qRgb(1, 2, 3));
    surface.resize(8, 9);
    EXPECT_EQ(surface.image().pixel(1, 2), qRgb(1, 2, 3));
    EXPECT_EQ(surface.image().pixel(7, 8), Paper);
    EXPECT_EQ(surface.image().pixel(4, 0), Paper);
}

TEST(Surface, KeepsWhatFitsWhenItShrinks) {
    Surface surface(8, 9, Paper);
    surface.image().setPixel(1, 2, qRgb(1, 2, 3));
    surface.resize(2, 3);
    EXPECT_EQ(surface.image().size(), QSize(2, 3));
    EXPECT_EQ(surface.image().pixel(1, 2), qRgb(1, 2, 3));
}

TEST(Surface, KeepsItsImageAtEveryScaleWhenItIsResized) {
    for (const int scale : {2, 3, 4}) {
        Surface surface = pageOf(5, 5, scale);
        surface.image().setPixel(5 * scale - 1, 5 * scale - 1, qRgb(1, 2, 3));
        surface.resize(7, 8);
        EXPECT_EQ(surface.image().size(), QSize(7, 8) * scale);
        EXPECT_EQ(surface.image().pixel(5 * scale - 1, 5 * scale - 1), qRgb(1, 2, 3));
        EXPECT_EQ(surface.image().pixel(5 * scale, 0), qRgb(0xAB, 0xCD, 0xEF));
    }
}

TEST(Surface, CountsSizesBelowOneAsOne) {
    Surface surface(0, -7, Paper);
    EXPECT_EQ(surface.image().size(), QSize(1, 1));
    surface.resize(6, 6);
    surface.resize(0, -5);
    EXPECT_EQ(surface.image().size(), QSize(1, 1));
    EXPECT_EQ(surface.width(), 1);
    EXPECT_EQ(surface.height(), 1);
}

TEST(Surface, ClsLeavesNothingButTheBackground) {
    Surface surface(4, 4, Paper);
    surface.image().setPixel(1, 2, qRgb(1, 2, 3));
    surface.setBackground(White);
    EXPECT_EQ(surface.image().pixel(0, 0), Paper);
    surface.Cls();
    EXPECT_EQ(surface.image(), Surface(4, 4, White).image());
}

TEST(Surface, TakesAnImageAtItsScale) {
    const Surface surface = numbered(10, 8, 3);
    EXPECT_EQ(surface.width(), 10);
    EXPECT_EQ(surface.height(), 8);
    EXPECT_EQ(surface.image().size(), QSize(30, 24));
    EXPECT_EQ(surface.image().pixel(29, 23), qRgb(59, 70, 148));
}

TEST(BitBlt, CopiesEveryPixelToItsPlace) {
    const Surface source = numbered(20, 20);
    Surface page = pageOf(20, 16, 1);
    BitBlt(page, 4, 5, 3, 2, source, 7, 9, Raster::SrcCopy);
    EXPECT_EQ(page.image().copy(4, 5, 3, 2), source.image().copy(7, 9, 3, 2));
    EXPECT_EQ(page.image().pixel(3, 5), qRgb(0xAB, 0xCD, 0xEF));
    EXPECT_EQ(page.image().pixel(7, 6), qRgb(0xAB, 0xCD, 0xEF));
    EXPECT_EQ(page.image().pixel(4, 4), qRgb(0xAB, 0xCD, 0xEF));
    EXPECT_EQ(page.image().pixel(6, 7), qRgb(0xAB, 0xCD, 0xEF));
}

TEST(BitBlt, LeavesOutWhatFallsOutsideThePageOnAnySide) {
    for (const int scale : {1, 2, 3, 4}) {
        const Surface source = numbered(24, 24, scale);
        for (const Raster raster : Rasters)
            for (const int x : {-40, -8, -7, -3, 0, 12, 13, 19, 20, 90})
                for (const int y : {-40, -8, -3, 0, 8, 9, 15, 16, 90})
                    expectBlit(source, {x, y, 8, 8}, 5, 6, raster, scale);
    }
}

TEST(BitBlt, LeavesOutWhatFallsOutsideTheSourceOnAnySide) {
    for (const int scale : {1, 2, 3, 4}) {
        const Surface source = numbered(10, 9, scale);
        for (const Raster raster : Rasters)
            for (const int x : {-40, -8, -3, 0, 2, 3, 9, 10, 50})
                for (const int y : {-40, -8, -3, 0, 1, 2, 8, 9, 50})
                    expectBlit(source, {4, 3, 8, 8}, x, y, raster, scale);
    }
}

TEST(BitBlt, LargerThanBothSurfacesCopiesWhatBothHave) {
    for (const int scale : {1, 2})
        for (const Raster raster : Rasters)
            expectBlit(numbered(10, 9, scale), {-5, -6, 100, 100}, -2, -3, raster, scale);
}

TEST(BitBlt, NoSizeDrawsNothing) {
    const Surface source = numbered(20, 20);
    for (const auto& [width, height] : {std::pair{0, 5}, {5, 0}, {0, 0}, {-1, 5}, {5, -1}, {-30, -30}}) {
        Surface page = pageOf(20, 16, 1);
        BitBlt(page, 5, 5, width, height, source, 5, 5, Raster::SrcCopy);
        EXPECT_EQ(page.image(), pageOf(20, 16, 1).image()) << width << 'x' << height;
    }
}

TEST(BitBlt, AndKeepsWhatIsUnderWhiteAndBlackensUnderBlack) {
    QImage image(3, 1, QImage::Format_RGB32);
    image.setPixel(0, 0, White);
    image.setPixel(1, 0, qRgb(0, 0, 0));
    image.setPixel(2, 0, qRgb(0x0F, 0xFF, 0xF0));
    Surface surface(3, 1, Paper);
    BitBlt(surface, 0, 0, 3, 1, Surface(image, 1), 0, 0, Raster::SrcAnd);
    EXPECT_EQ(surface.image().pixel(0, 0), Paper);
    EXPECT_EQ(surface.image().pixel(1, 0), qRgb(0, 0, 0));
    EXPECT_EQ(surface.image().pixel(2, 0), qRgb(0x0F, 0xFE, 0xF0));
}

TEST(BitBlt, CopyPutsWhiteOverWhatIsThere) {
    Surface surface(3, 3, qRgb(0, 0, 0));
    BitBlt(surface, 1, 1, 1, 1, Surface(1, 1, White), 0, 0, Raster::SrcCopy);
    EXPECT_EQ(surface.image().pixel(1, 1), White);
    EXPECT_EQ(surface.image().pixel(0, 1), qRgb(0, 0, 0));
}

TEST(StretchBlt, EnlargesByTheNearestPixel) {
    const Surface source = numbered(30, 10);
    Surface page(8, 2, Paper);
    StretchBlt(page, {0, 0, 8, 2}, source, {3, 2, 2, 1}, Raster::SrcCopy);
    for (int x = 0; x < 8; ++x)
        for (int y = 0; y < 2; ++y)
            EXPECT_EQ(page.image().pixel(x, y), source.image().pixel(x < 4 ? 3 : 4, 2)) << x << ',' << y;
}

QRgb combined(const QImage& image, const QRect& piece) {
    QRgb pixel = White;
    for (int y = piece.top(); y <= piece.bottom(); ++y)
        for (int x = piece.left(); x <= piece.right(); ++x)
            pixel &= image.pixel(x, y);
    return pixel;
}

TEST(StretchBlt, ShrinksByCombiningThePixelsThatFallTogether) {
    const Surface source = numbered(30, 10);
    Surface page(3, 2, Paper);
    StretchBlt(page, {0, 0, 3, 2}, source, {0, 0, 9, 8}, Raster::SrcCopy);
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 2; ++y)
            EXPECT_EQ(page.image().pixel(x, y), combined(source.image(), {x * 3, y * 4, 3, 4}))
                << x << ',' << y;
}

TEST(StretchBlt, TakesItsPixelsAtEveryWidthAndScale) {
    for (const int scale : {1, 2, 3, 4}) {
        const Surface source = numbered(30, 12, scale);
        for (const Raster raster : Rasters)
            for (const int width : {1, 2, 5, 13, 16, 25, 26, 27, 45, 53, 79, 221, 509})
                for (const int height : {1, 11, 12, 13, 24})
                    expectStretch(source, {2, 1, width, height}, {1, 0, 26, 12}, raster, scale);
    }
}

TEST(StretchBlt, IsCutOnAnySideWithoutShiftingTheRest) {
    for (const int scale : {1, 2, 3, 4}) {
        const Surface source = numbered(30, 12, scale);
        for (const Raster raster : Rasters)
            for (const int x : {-60, -37, -20, -1, 0, 7, 19, 20, 50})
                for (const int y : {-30, -17, -5, 0, 3, 15, 16, 40})
                    expectStretch(source, {x, y, 37, 17}, {2, 1, 26, 8}, raster, scale);
    }
}

TEST(StretchBlt, OfOneColorFillsItsPlace) {
    Surface page = pageOf(20, 16, 1);
    StretchBlt(page, {3, 2, 30, 7}, Surface(4, 4, Paper), {0, 0, 4, 4}, Raster::SrcCopy);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 20; ++x)
            EXPECT_EQ(page.image().pixel(x, y) == Paper, x >= 3 && y >= 2 && y < 9) << x << ',' << y;
}

TEST(StretchBlt, NoWidthOrHeightDrawsNothing) {
    const Surface source = numbered(30, 10);
    for (const Raster raster : Rasters)
        for (const auto& [width, height] :
             {std::pair{0, 5}, {-4, 5}, {4, 0}, {4, -5}, {0, 0}, {-9, -9}, {-30, 51}}) {
            Surface page = pageOf(20, 16, 1);
            StretchBlt(page, {5, 5, width, height}, source, {0, 0, 10, 5}, raster);
            EXPECT_EQ(page.image(), pageOf(20, 16, 1).image()) << width << 'x' << height;
        }
}

TEST(StretchBlt, AgreesWithTheNaiveBlitterOnRandomCopies) {
    std::mt19937 random(17);
    const auto choose = [&random](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    for (int run = 0; run < 3000; ++run) {
        const int scale = choose(1, 4);
        const Surface source = numbered(30, 12, scale);
        const int left = choose(0, 25), top = choose(0, 9);
        const Rect piece = {left, top, choose(1, 30 - left), choose(1, 12 - top)};
        const Rect place = {choose(-30, 25), choose(-20, 20), choose(-2, 60), choose(-2, 40)};
        expectStretch(source, place, piece, Rasters[choose(0, 1)], scale);
    }
}

TEST(FillRect, FillsWhatLiesOnTheSurfaceAndNothingElse) {
    for (const int scale : {1, 2, 3, 4})
        for (const Rect& place : {Rect{2, 3, 4, 5},
                                  {-5, -5, 9, 9},
                                  {15, 12, 100, 100},
                                  {0, 0, 0, 5},
                                  {0, 0, 5, -1},
                                  {-9, 2, 5, 5},
                                  {2, 90, 5, 5},
                                  {0, -1000, 3, 100000}}) {
            Surface page = pageOf(20, 16, scale);
            QImage expected = page.image();
            for (int y = 0; y < expected.height(); ++y)
                for (int x = 0; x < expected.width(); ++x)
                    if (x >= place.left * scale && x < place.right() * scale && y >= place.top * scale &&
                        y < place.bottom() * scale)
                        expected.setPixel(x, y, 0xFF102030);
            fillRect(page, place, 0xFF102030);
            EXPECT_EQ(page.image(), expected) << place.left << ',' << place.top << " scale " << scale;
        }
}

// A piece of one dark column and one dark row, shrunk: both are still there.
TEST(StretchBlt, ThatShrinksKeepsEveryStroke) {
    QImage sheet(40, 20, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    for (int y = 0; y < 20; ++y)
        sheet.setPixel(13, y, qRgb(0, 0, 0));
    for (int x = 0; x < 40; ++x)
        sheet.setPixel(x, 7, qRgb(128, 128, 128));
    const Surface from(sheet, 1);
    for (int width = 1; width < 40; ++width) {
        for (const int height : {3, 11, 20, 33}) {
            Surface to(60, 60, qRgb(255, 255, 255));
            StretchBlt(to, {2, 3, width, height}, from, {0, 0, 40, 20}, Raster::SrcAnd);
            bool column = false, line = false;
            for (int x = 0; x < width; ++x)
                column = column || to.image().pixelColor(2 + x, 3).value() == 0;
            for (int y = 0; y < height; ++y)
                line = line || to.image().pixelColor(2, 3 + y).value() <= 128;
            EXPECT_TRUE(column && line) << width << " by " << height;
        }
    }
}

TEST(SurfaceChanges, ANewSurfaceHasChangedAsAWholeOnce) {
    Surface page = pageOf(20, 16, 1);
    EXPECT_EQ(page.takeChanged(), (Rect{0, 0, 20, 16}));
    EXPECT_EQ(page.takeChanged(), Rect());
    Surface sheet = numbered(8, 6, 2);
    EXPECT_EQ(sheet.takeChanged(), (Rect{0, 0, 8, 6}));
}

TEST(SurfaceChanges, EachWayToDrawTellsItsPlace) {
    const Surface sheet = numbered(20, 16, 2);
    Surface page = pageOf(20, 16, 2);
    page.takeChanged();
    BitBlt(page, 3, 4, 5, 6, sheet, 0, 0, Raster::SrcAnd);
    EXPECT_EQ(page.takeChanged(), (Rect{3, 4, 5, 6}));
    StretchBlt(page, {1, 2, 8, 3}, sheet, {0, 0, 4, 3}, Raster::SrcCopy);
    EXPECT_EQ(page.takeChanged(), (Rect{1, 2, 8, 3}));
    StretchBlt(page, {1, 2, 4, 3}, sheet, {0, 0, 4, 3}, Raster::SrcCopy);
    EXPECT_EQ(page.takeChanged(), (Rect{1, 2, 4, 3}));
    fillRect(page, {19, 15, 9, 9}, Paper);
    EXPECT_EQ(page.takeChanged(), (Rect{19, 15, 1, 1}));
    page.Cls();
    EXPECT_EQ(page.takeChanged(), (Rect{0, 0, 20, 16}));
    page.resize(30, 16);
    EXPECT_EQ(page.takeChanged(), (Rect{0, 0, 30, 16}));
    page.setScale(3);
    EXPECT_EQ(page.takeChanged(), (Rect{0, 0, 30, 16}));
    page.image().fill(Paper);
    EXPECT_EQ(page.takeChanged(), (Rect{0, 0, 30, 16}));
}

TEST(SurfaceChanges, WhatDrawsNothingTellsNothing) {
    const Surface sheet = numbered(20, 16);
    Surface page = pageOf(20, 16, 1);
    page.takeChanged();
    for (const Rect& off : {Rect{20, 0, 5, 5}, Rect{0, 16, 5, 5}, Rect{-5, 0, 5, 5}, Rect{0, -5, 5, 5}}) {
        fillRect(page, off, Paper);
        page.drawOn(off);
    }
    StretchBlt(page, {0, 0, 0, 5}, sheet, {0, 0, 4, 4}, Raster::SrcCopy);
    page.resize(20, 16);
    page.setScale(1);
    EXPECT_EQ(page.takeChanged(), Rect());
}

TEST(SurfaceChanges, SeveralPlacesAreOneRectangleAroundThem) {
    Surface page = pageOf(20, 16, 1);
    page.takeChanged();
    page.drawOn({5, 6, 2, 3});
    page.drawOn({2, 8, 1, 1});
    EXPECT_EQ(page.takeChanged(), (Rect{2, 6, 5, 3}));
    page.drawOn({5, 6, 2, 3});
    page.drawOn({-4, -4, 5, 5});
    EXPECT_EQ(page.takeChanged(), (Rect{0, 0, 7, 9}));
    page.drawOn({10, 10, 1, 1});
    page.drawOn({12, 13, std::numeric_limits<int>::max(), 9});
    EXPECT_EQ(page.takeChanged(), (Rect{10, 10, 10, 6}));
}

} // namespace
} // namespace tabrova::testing
