// Which cell of the sheet belongs to which text, and that the sheet has something there.
#include "core/document/bar_marks.h"
#include "tabview/sprites.h"

#include "tabview/tab_view.h"
#include "tests/tabview/plain_blitter.h"

namespace tabrova::testing {
namespace {

constexpr QRgb Paper = 0xFFFFFEF2;

int ink(const Surface& sheet, const Rect& rect) {
    int dark = 0;
    for (int y = rect.top; y < rect.bottom(); ++y)
        for (int x = rect.left; x < rect.right(); ++x)
            dark += qGray(sheet.image().pixel(x, y)) < 128;
    return dark;
}

// Pixels that are not white: lines may be of a quiet color.
int drawn(const Surface& sheet, const Rect& rect) {
    int pixels = 0;
    for (int y = rect.top; y < rect.bottom(); ++y)
        for (int x = rect.left; x < rect.right(); ++x)
            pixels += colorAt(sheet.image(), x, y) != 0xFFFFFFFF;
    return pixels;
}

TEST(NoteGlyphs, EveryFretHasItsCellInTheFirstRow) {
    for (int fret = 0; fret <= 29; ++fret)
        EXPECT_EQ(noteGlyph(std::to_string(fret)), (Rect{1 + 10 * fret, 1, 9, 7})) << fret;
}

TEST(NoteGlyphs, TheDeadNoteAndTheJumpHaveTheirs) {
    EXPECT_EQ(noteGlyph("x"), (Rect{301, 1, 9, 7}));
    EXPECT_EQ(noteGlyph(">"), (Rect{171, 9, 9, 7}));
}

TEST(NoteGlyphs, TheBlankPieceBelongsToNoText) {
    EXPECT_EQ(sprite::BlankCell, (Rect{331, 1, 9, 7}));
    EXPECT_EQ(noteGlyph(""), std::nullopt);
}

TEST(NoteGlyphs, AnyOtherTextDrawsNothing) {
    for (const char* text : {" ",  "30", "31", "35", "81", "99", "100", "290", "00", "05", "029", "1.0",
                             "1.", " 5", "5 ", "+5", "-1", "X",  "xx",  ">>",  "<",  "h",  "1\n", "one"})
        EXPECT_EQ(noteGlyph(text), std::nullopt) << text;
    EXPECT_EQ(noteGlyph(std::string_view("5\0", 2)), std::nullopt);
}

TEST(DrumGlyphs, KeysUpToSixtyThreeShareTheCellsOfTheFrets) {
    for (int drum = 35; drum <= 63; ++drum) {
        const auto glyph = percussionGlyph(std::to_string(drum));
        EXPECT_EQ(glyph, (Rect{11 + 10 * (drum - 35), 1, 9, 7})) << drum;
        EXPECT_EQ(glyph, noteGlyph(std::to_string(drum - 34))) << drum;
    }
}

TEST(DrumGlyphs, KeysFromSixtyFourStandInTheSecondRow) {
    for (int drum = 64; drum <= 81; ++drum)
        EXPECT_EQ(percussionGlyph(std::to_string(drum)), (Rect{1 + 10 * (drum - 64), 9, 9, 7})) << drum;
}

TEST(DrumGlyphs, TheLastKeyDeliberatelyShowsTheArrowHead) {
    EXPECT_EQ(percussionGlyph("81"), noteGlyph(">"));
}

TEST(DrumGlyphs, AnyOtherTextDrawsNothing) {
    for (const char* text :
         {"", "0", "1", "29", "34", "82", "99", "135", "035", "35 ", " 35", "35.0", "x", ">", "-35"})
        EXPECT_EQ(percussionGlyph(text), std::nullopt) << text;
}

TEST(RepeatGlyphs, EveryCountHasItsCell) {
    for (int count = 1; count <= 15; ++count) {
        const Rect expected =
            count <= 8 ? Rect{188 + 10 * (count - 1), 54, 9, 7} : Rect{188 + 10 * (count - 9), 62, 9, 7};
        EXPECT_EQ(closedRepeatCount("r" + std::to_string(count)), count);
        EXPECT_EQ(repeatCountGlyph(count), expected) << count;
    }
}

TEST(RepeatGlyphs, OnlyOneToFifteenIsAClosedRepeat) {
    for (const char* text :
         {"", "r", ".", "r0", "r16", "r99", "r01", "r1 ", "r 1", "r-1", "R1", "x3", "rr", "r1.0", "15"})
        EXPECT_EQ(closedRepeatCount(text), std::nullopt) << text;
}

TEST(Sheet, IsAsLargeAsToldAtEveryScale) {
    for (const int scale : {1, 2, 3, 4}) {
        const Surface sheet = loadSheet(scale);
        EXPECT_EQ(sheet.image().size(), QSize(657, 160) * scale);
        EXPECT_EQ(sheet.width(), 657);
        EXPECT_EQ(sheet.height(), 160);
        EXPECT_EQ(sheet.scale(), scale);
    }
}

TEST(Sheet, ShowsAnotherNumberInEveryFretCell) {
    const Surface sheet = loadSheet(1);
    QList<QImage> cells;
    for (int fret = 0; fret <= 29; ++fret) {
        EXPECT_GT(ink(sheet, {1 + 10 * fret, 1, 9, 7}), 5) << fret;
        const QImage cell = sheet.image().copy(1 + 10 * fret, 1, 9, 7);
        EXPECT_FALSE(cells.contains(cell)) << fret;
        cells.append(cell);
    }
}

TEST(Sheet, ShowsAnotherNumberInEveryCellOfTheSecondRow) {
    const Surface sheet = loadSheet(1);
    QList<QImage> cells;
    for (int drum = 64; drum <= 81; ++drum) {
        EXPECT_GT(ink(sheet, {1 + 10 * (drum - 64), 9, 9, 7}), 4) << drum;
        const QImage cell = sheet.image().copy(1 + 10 * (drum - 64), 9, 9, 7);
        EXPECT_FALSE(cells.contains(cell)) << drum;
        cells.append(cell);
    }
}

// How dark a piece is, as the number of black logical pixels that would weigh as much.
double weight(const Surface& sheet, const Rect& rect) {
    const int scale = sheet.scale();
    int darkness = 0;
    for (int y = rect.top * scale; y < rect.bottom() * scale; ++y)
        for (int x = rect.left * scale; x < rect.right() * scale; ++x)
            darkness += 255 - qGray(sheet.image().pixel(x, y));
    return darkness / (255.0 * scale * scale);
}

// Strokes of one and a half pixels: thinner numbers would be lost beside the beams.
TEST(Sheet, ShowsBoldNumbersAtEveryScale) {
    for (const int scale : {1, 2, 3, 4}) {
        const Surface sheet = loadSheet(scale);
        for (int number = 0; number <= 46; ++number) {
            const Rect cell =
                number <= 29 ? Rect{1 + 10 * number, 1, 9, 7} : Rect{1 + 10 * (number - 30), 9, 9, 7};
            EXPECT_GT(weight(sheet, cell), number < 10 ? 11.5 : 23) << number << " at scale " << scale;
        }
        for (int count = 1; count <= 15; ++count)
            EXPECT_GT(weight(sheet, repeatCountGlyph(count)), count < 9 ? 11.5 : 23) << count;
        EXPECT_GT(weight(sheet, sprite::DeadNote), 11) << scale;
    }
}

TEST(Sheet, HasInkInEveryCellOfARepeatCount) {
    const Surface sheet = loadSheet(1);
    for (int count = 1; count <= 15; ++count)
        EXPECT_GT(ink(sheet, repeatCountGlyph(count)), 4) << count;
    EXPECT_GT(ink(sheet, sprite::RepeatTimes), 3);
    EXPECT_GT(ink(sheet, sprite::DeadNote), 4);
}

TEST(Sheet, CarriesTheStringAcrossRowFourOfTheBlankPiece) {
    const Surface sheet = loadSheet(1);
    for (int y = 0; y < 7; ++y)
        EXPECT_EQ(drawn(sheet, {331, 1 + y, 9, 1}) > 0, y == 4) << y;
}

TEST(Sheet, BringsTheStringAlongUnderTheArcAlone) {
    constexpr QRgb stringGrey = qRgb(144, 144, 144);
    for (const int scale : {1, 2, 3, 4}) {
        const Surface sheet = loadSheet(scale);
        const auto stringPixels = [&](const Rect& mark) {
            int pixels = 0;
            for (int x = mark.left * scale; x < mark.right() * scale; ++x)
                pixels += colorAt(sheet.image(), x, (mark.top + 7) * scale) == stringGrey;
            return pixels;
        };
        EXPECT_GT(stringPixels(sprite::HammerArc), 20 * scale);
        for (const Rect& mark : {sprite::Slide, sprite::Vibrato, sprite::WhammyBar, sprite::Dive})
            EXPECT_LT(stringPixels(mark), scale) << mark.left << " at scale " << scale;
    }
}

TEST(Sheet, HoldsSixStringLinesTenApart) {
    const Surface sheet = loadSheet(1);
    for (int y = 0; y < 51; ++y) {
        EXPECT_EQ(drawn(sheet, {33, 24 + y, 30, 1}) > 0, y % 10 == 0) << y;
        EXPECT_EQ(drawn(sheet, {5, 24 + y, 18, 1}) > 0, y % 10 == 0) << y;
        EXPECT_EQ(drawn(sheet, {3, 24 + y, 2, 1}), 2) << y;
    }
}

TEST(TabView, DrawsTheSameGeometryInFinerPixels) {
    for (const int scale : {1, 2, 3, 4}) {
        TabView view;
        view.picDocument.resize(100, 60);
        view.setScale(scale);
        EXPECT_EQ(view.picDocument.width(), 100);
        EXPECT_EQ(view.picDocument.image().size(), QSize(100, 60) * scale);
        view.copyToPage({{24, 26, 9, 7}, {71, 1, 9, 7}, Raster::SrcCopy});
        EXPECT_EQ(view.picDocument.image().copy(24 * scale, 26 * scale, 9 * scale, 7 * scale),
                  view.picSource().image().copy(71 * scale, scale, 9 * scale, 7 * scale));
        EXPECT_EQ(view.picDocument.image().pixel(24 * scale - 1, 26 * scale), Paper);
    }
}

TEST(TabView, HoldsItsScaleBetweenOneAndFour) {
    TabView view;
    view.setScale(0);
    EXPECT_EQ(view.picSource().scale(), 1);
    view.setScale(9);
    EXPECT_EQ(view.picSource().scale(), 4);
    EXPECT_EQ(view.picDocument.scale(), 4);
}

} // namespace
} // namespace tabrova::testing
