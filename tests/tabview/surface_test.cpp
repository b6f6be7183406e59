#include "tabview/sprites.h"
#include "tabview/tab_view.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

// Every pixel differs, so that a wrong place shows.
Surface numbered(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 3, y * 5, 200));
    return Surface(image, 1);
}

constexpr QRgb Paper = 0xFFFFFEF2;

TEST(Surface, KeepsItsImageWhenItGrowsAndShrinks) {
    Surface surface(4, 4, Paper);
    surface.image().setPixel(1, 2, qRgb(1, 2, 3));
    surface.resize(8, 9);
    EXPECT_EQ(surface.image().pixel(1, 2), qRgb(1, 2, 3));
    EXPECT_EQ(surface.image().pixel(7, 8), Paper);
    surface.resize(2, 3);
    EXPECT_EQ(surface.image().pixel(1, 2), qRgb(1, 2, 3));
    surface.Cls();
    EXPECT_EQ(surface.image().pixel(1, 2), Paper);
    surface.resize(0, -5);
    EXPECT_EQ(surface.image().size(), QSize(1, 1));
}

TEST(BitBlt, LeavesOutWhatFallsOutside) {
    const Surface source = numbered(20, 20);
    for (const auto& [x, y, sourceX, sourceY] : {std::tuple{-3, -4, 0, 0},
                                                 {6, 7, 0, 0},
                                                 {0, 0, 15, 16},
                                                 {0, 0, -2, -3},
                                                 {-100, 0, 0, 0},
                                                 {3, 3, 50, 50}}) {
        Surface surface(10, 10, Paper);
        BitBlt(surface, x, y, 8, 8, source, sourceX, sourceY, Raster::SrcCopy);
        for (int row = 0; row < 10; ++row)
            for (int column = 0; column < 10; ++column) {
                const int dx = column - x, dy = row - y;
                const QPoint from(sourceX + dx, sourceY + dy);
                const bool inside =
                    dx >= 0 && dx < 8 && dy >= 0 && dy < 8 && source.image().rect().contains(from);
                ASSERT_EQ(surface.image().pixel(column, row), inside ? source.image().pixel(from) : Paper);
            }
    }
}

TEST(BitBlt, AndKeepsWhatIsUnderWhiteAndBlackensUnderBlack) {
    QImage image(2, 1, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(255, 255, 255));
    image.setPixel(1, 0, qRgb(0, 0, 0));
    Surface surface(2, 1, Paper);
    BitBlt(surface, 0, 0, 2, 1, Surface(image, 1), 0, 0, Raster::SrcAnd);
    EXPECT_EQ(surface.image().pixel(0, 0), Paper);
    EXPECT_EQ(surface.image().pixel(1, 0), qRgb(0, 0, 0));
}

TEST(StretchBlt, TakesTheNearestPixel) {
    const Surface source = numbered(30, 10);
    for (const Raster raster : {Raster::SrcCopy, Raster::SrcAnd})
        for (const int width : {1, 5, 26, 27, 53, 79}) {
            Surface surface(60, 30, 0xFFFFFFFF);
            StretchBlt(surface, {-4, -3, width, 24}, source, {2, 1, 26, 8}, raster);
            for (int y = 0; y < 30; ++y)
                for (int x = 0; x < 60; ++x) {
                    const bool inside = x + 4 < width && y + 3 < 24;
                    const QRgb expected =
                        inside ? source.image().pixel(2 + (x + 4) * 26 / width, 1 + (y + 3) * 8 / 24)
                               : 0xFFFFFFFF;
                    ASSERT_EQ(surface.image().pixel(x, y), expected) << width << ' ' << x << ' ' << y;
                }
        }
}

TEST(StretchBlt, NoWidthDrawsNothing) {
    const Surface source = numbered(30, 10);
    Surface surface(20, 20, Paper);
    StretchBlt(surface, {5, 5, 0, 5}, source, {0, 0, 10, 5}, Raster::SrcCopy);
    StretchBlt(surface, {5, 5, -4, 5}, source, {0, 0, 10, 5}, Raster::SrcCopy);
    StretchBlt(surface, {5, 5, 4, 0}, source, {0, 0, 10, 5}, Raster::SrcCopy);
    Surface blank(20, 20, Paper);
    EXPECT_EQ(surface.image(), blank.image());
}

TEST(Scale, TheSameGeometryIsDrawnInFinerPixels) {
    for (const int scale : {2, 3}) {
        TabView view;
        view.picDocument.resize(100, 60);
        view.setScale(scale);
        EXPECT_EQ(view.picDocument.width(), 100);
        EXPECT_EQ(view.picDocument.image().size(), QSize(100, 60) * scale);
        EXPECT_EQ(view.picSource().image().size(), QSize(SheetWidth, SheetHeight) * scale);
        view.copyToPage({{24, 26, 9, 7}, {71, 1, 9, 7}, Raster::SrcCopy});
        EXPECT_EQ(view.picDocument.image().copy(24 * scale, 26 * scale, 9 * scale, 7 * scale),
                  view.picSource().image().copy(71 * scale, scale, 9 * scale, 7 * scale));
        EXPECT_EQ(view.picDocument.image().pixel(24 * scale - 1, 26 * scale), Paper);
    }
}

TEST(Sheet, IsAsLargeAsToldAndHoldsInkInEveryNoteCell) {
    const Surface sheet = loadSheet(1);
    EXPECT_EQ(sheet.image().size(), QSize(657, 160));
    const auto ink = [&sheet](const Rect& rect) {
        int dark = 0;
        for (int y = rect.top; y < rect.bottom(); ++y)
            for (int x = rect.left; x < rect.right(); ++x)
                dark += qGray(sheet.image().pixel(x, y)) < 128;
        return dark;
    };
    QList<QImage> cells;
    for (int fret = 0; fret <= 29; ++fret) {
        EXPECT_GT(ink(*noteGlyph(std::to_string(fret))), 5) << fret;
        const QImage cell = sheet.image().copy(1 + 10 * fret, 1, 9, 7);
        EXPECT_FALSE(cells.contains(cell)) << fret;
        cells.append(cell);
    }
    EXPECT_GT(ink(sprite::DeadNote), 4);
    EXPECT_GT(ink(sprite::JumpMark), 4);
    // The blank piece carries the string across its row 4 alone.
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 9; ++x)
            EXPECT_EQ(sheet.image().pixel(331 + x, 1 + y) != 0xFFFFFFFF, y == 4) << x << ',' << y;
}

TEST(Glyphs, EveryNoteTextHasItsCell) {
    for (int fret = 0; fret <= 29; ++fret)
        EXPECT_EQ(noteGlyph(std::to_string(fret)), (Rect{1 + 10 * fret, 1, 9, 7}));
    EXPECT_EQ(noteGlyph("x"), (Rect{301, 1, 9, 7}));
    EXPECT_EQ(noteGlyph(">"), (Rect{171, 9, 9, 7}));
    for (const char* text : {"", "30", "99", "05", "1.0", " 5", "5 ", "X", "-1", "290", "xx"})
        EXPECT_EQ(noteGlyph(text), std::nullopt) << text;
}

TEST(Glyphs, EveryDrumHasItsCell) {
    for (int drum = 35; drum <= 63; ++drum)
        EXPECT_EQ(percussionGlyph(std::to_string(drum)), (Rect{11 + 10 * (drum - 35), 1, 9, 7}));
    for (int drum = 64; drum <= 81; ++drum)
        EXPECT_EQ(percussionGlyph(std::to_string(drum)), (Rect{1 + 10 * (drum - 64), 9, 9, 7}));
    EXPECT_EQ(percussionGlyph("81"), noteGlyph(">"));
    for (const char* text : {"", "34", "82", "0", "x", "035"})
        EXPECT_EQ(percussionGlyph(text), std::nullopt) << text;
}

TEST(Glyphs, RepeatCountsShowOneMore) {
    for (int count = 1; count <= 8; ++count)
        EXPECT_EQ(repeatCountGlyph(count), (Rect{188 + 10 * (count - 1), 54, 9, 7}));
    for (int count = 9; count <= 15; ++count)
        EXPECT_EQ(repeatCountGlyph(count), (Rect{188 + 10 * (count - 9), 62, 9, 7}));
    EXPECT_EQ(closedRepeatCount("r15"), 15);
    for (const char* text : {"", "r", "r0", "r16", "r01", "x3", "rr"})
        EXPECT_EQ(closedRepeatCount(text), std::nullopt);
}

} // namespace
} // namespace tabrova
