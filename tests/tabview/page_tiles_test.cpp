// Which part of a page came out different, told from what it is made of.
#include "tabview/page_tiles.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

constexpr QRgb Paper = 0xFFFFFEF2;
constexpr SpriteCopy Cell = {{40, 20, 9, 7}, {71, 1, 9, 7}};

PageTiles page(const std::vector<SpriteCopy>& copies, int width = 100, int height = 60, QRgb paper = Paper) {
    PageTiles tiles;
    tiles.start(width, height, paper);
    for (const SpriteCopy& copy : copies)
        tiles.add(copy);
    return tiles;
}

SpriteCopy at(SpriteCopy copy, int left, int top) {
    copy.place.left = left;
    copy.place.top = top;
    return copy;
}

TEST(PageTiles, PagesOfTheSameCopiesDoNotDiffer) {
    EXPECT_EQ(page({}).difference(page({})), Rect());
    EXPECT_EQ(page({Cell, at(Cell, 3, 3)}).difference(page({Cell, at(Cell, 3, 3)})), Rect());
}

// Tiles of 16 by 16: columns 32 to 47 and 48 to 63, rows 16 to 31.
TEST(PageTiles, OneCopyMoreIsADifferenceOfItsTiles) {
    EXPECT_EQ(page({Cell}).difference(page({})), (Rect{32, 16, 32, 16}));
    EXPECT_EQ(page({}).difference(page({Cell})), (Rect{32, 16, 32, 16}));
}

TEST(PageTiles, EveryPartOfACopyCounts) {
    const auto changed = [](auto change) {
        SpriteCopy copy = Cell;
        change(copy);
        return page({Cell}).difference(page({copy})).width > 0;
    };
    EXPECT_FALSE(changed([](SpriteCopy&) {}));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.place.left; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.place.top; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.place.width; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.place.height; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.source.left; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.source.top; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.source.width; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { ++copy.source.height; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { copy.raster = Raster::SrcAnd; }));
    EXPECT_TRUE(changed([](SpriteCopy& copy) { copy.from = CopyFrom::Page; }));
}

TEST(PageTiles, TheOrderCountsWhereCopiesLieOnEachOtherAndElsewhereNot) {
    SpriteCopy other = Cell;
    other.source.left = 171;
    EXPECT_EQ(page({Cell, other}).difference(page({other, Cell})), (Rect{32, 16, 32, 16}));
    EXPECT_EQ(page({Cell, at(other, 0, 40)}).difference(page({at(other, 0, 40), Cell})), Rect());
}

TEST(PageTiles, ACopyOfThePageCarriesItsDifferenceAlong) {
    const SpriteCopy carried = {{64, 32, 16, 16}, {48, 16, 16, 16}, Raster::SrcCopy, CopyFrom::Page};
    EXPECT_EQ(page({Cell, carried}).difference(page({carried})), (Rect{32, 16, 48, 32}));
    // Tiles beside the one that differs.
    for (const Rect& source :
         {Rect{16, 16, 16, 16}, Rect{64, 16, 16, 16}, Rect{32, 0, 32, 16}, Rect{32, 32, 32, 16}}) {
        const SpriteCopy elsewhere = {{64, 32, 16, 16}, source, Raster::SrcCopy, CopyFrom::Page};
        EXPECT_EQ(page({Cell, elsewhere}).difference(page({elsewhere})), (Rect{32, 16, 32, 16}));
    }
    for (const Rect& source : {Rect{47, 16, 1, 1}, Rect{48, 31, 1, 1}, Rect{31, 15, 2, 2}}) {
        const SpriteCopy touching = {{64, 32, 16, 16}, source, Raster::SrcCopy, CopyFrom::Page};
        EXPECT_EQ(page({Cell, touching}).difference(page({touching})), (Rect{32, 16, 48, 32}));
    }
}

TEST(PageTiles, TheLastTilesEndWithThePage) {
    EXPECT_EQ(page({at(Cell, 95, 55)}).difference(page({})), (Rect{80, 48, 20, 12}));
    EXPECT_EQ(page({at(Cell, -5, -5)}).difference(page({})), (Rect{0, 0, 16, 16}));
    EXPECT_EQ(page({at(Cell, 100, 5)}).difference(page({})), Rect());
    EXPECT_EQ(page({at(Cell, 5, 60)}).difference(page({})), Rect());
    EXPECT_EQ(page({at(Cell, -9, 5)}).difference(page({})), Rect());
}

TEST(PageTiles, AnotherSizeOrPaperDiffersEverywhere) {
    EXPECT_EQ(page({}, 100, 60).difference(page({}, 101, 60)), (Rect{0, 0, 100, 60}));
    EXPECT_EQ(page({}, 100, 60).difference(page({}, 100, 61)), (Rect{0, 0, 100, 60}));
    EXPECT_EQ(page({}).difference(page({}, 100, 60, Paper - 1)), (Rect{0, 0, 100, 60}));
}

} // namespace
} // namespace tabrova
