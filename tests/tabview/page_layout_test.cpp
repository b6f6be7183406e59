// A redraw's copies, exactly and in order, and the pixels that they make.
#include "tabview/tab_view.h"
#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"
#include "tests/tabview/plain_layout.h"

namespace tabrova::testing {
namespace {

TEST(PageLayout, AnEmptyStaffIsItsThreeCopies) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    const std::vector<SpriteCopy> expected = {
        {{12, 30, 20, 51}, {3, 24, 20, 51}, Raster::SrcCopy},
        {{22, 30, 950, 51}, {33, 24, 30, 51}, Raster::SrcCopy},
        {{970, 30, 2, 51}, {3, 24, 2, 51}, Raster::SrcCopy},
    };
    EXPECT_EQ(layout(document, 984), expected);
}

TEST(PageLayout, ATypedCellIsTheCopyThatTheNextRedrawMakesOfIt) {
    Document document;
    makePage(document, 1, 2, 984, 472);
    for (const char* text : {"0", "9", "10", "29", "x", ">"})
        for (const int string : {0, 5})
            for (const int column : {0, 31}) {
                document.setNote(ColumnsPerStaff + column, string, text);
                const Rect cursor = {document.ColumnWidth * column + 22, 125 + 10 * string, 13, 10};
                const auto copy = typedCell(text, cursor);
                const std::vector<SpriteCopy> drawn = layout(document, 984);
                ASSERT_TRUE(copy) << text;
                EXPECT_EQ(std::count(drawn.begin(), drawn.end(), *copy), 1) << text;
                document.setNote(ColumnsPerStaff + column, string, "");
            }
}

TEST(PageLayout, ATypedCellWithoutATextIsPaperAndAnUnknownTextLeavesItAsItIs) {
    EXPECT_EQ(typedCell("", {22, 25, 13, 10}), (SpriteCopy{{24, 26, 9, 7}, {331, 1, 9, 7}, Raster::SrcCopy}));
    for (const char* text : {"30", "no", "007"})
        EXPECT_EQ(typedCell(text, {22, 25, 13, 10}), std::nullopt) << text;
}

TEST(PageLayout, StopsAtTheLastStaffAndAtTheLastVisibleOne) {
    Document document;
    std::vector<SpriteCopy> copies;
    makePage(document, 1, 2, 984, 472);
    EXPECT_EQ(layoutPage(copies, document, 984), 2);
    makePage(document, 1, 9, 984, 472);
    EXPECT_EQ(layoutPage(copies, document, 984), 4);
    document.TopStaff = 7;
    EXPECT_EQ(layoutPage(copies, document, 984), 2);
    document.StaffCount = -3;
    EXPECT_EQ(layoutPage(copies, document, 984), 4);
}

TEST(PageLayout, VisitsOnlyTheVisibleStaves) {
    Document document;
    makePage(document, 1, 9, 984, 230);
    document.TopStaff = 3;
    for (int staff = 0; staff < 9; ++staff)
        document.setNote(staff * 32 + 1, 2, std::to_string(staff));
    std::vector<SpriteCopy> glyphs;
    for (const SpriteCopy& copy : layout(document, 984))
        if (copy.place.width == 9) glyphs.push_back(copy);
    EXPECT_EQ(glyphs, (std::vector<SpriteCopy>{{{53, 46, 9, 7}, {31, 1, 9, 7}, Raster::SrcCopy},
                                               {{53, 146, 9, 7}, {41, 1, 9, 7}, Raster::SrcCopy}}));
}

TEST(PageLayout, EmptiesItsListFirst) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    std::vector<SpriteCopy> copies(7);
    EXPECT_EQ(layoutPage(copies, document, 984), 1);
    EXPECT_EQ(copies.size(), 3u);
}

TEST(PageLayout, GoesColumnFirstStringSecondAndGlyphMarkTechniqueWithin) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.setNote(0, 0, "1");
    document.setTechnique(0, 0, "m");
    document.setNote(0, 5, "x");
    document.setBarMark(0, "r");
    document.setNote(1, 0, "29");
    document.setTechnique(1, 4, ".");
    const SpriteCopy repeat = {{8, 25, 12, 59}, {323, 25, 12, 59}, Raster::SrcAnd};
    const std::vector<SpriteCopy> expected = {
        {{24, 26, 9, 7}, {11, 1, 9, 7}, Raster::SrcCopy},
        repeat,
        {{32, 23, 26, 12}, {197, 107, 26, 12}, Raster::SrcAnd},
        repeat,
        repeat,
        repeat,
        repeat,
        {{24, 76, 9, 7}, {301, 1, 9, 7}, Raster::SrcCopy},
        repeat,
        {{53, 26, 9, 7}, {291, 1, 9, 7}, Raster::SrcCopy},
        {{66, 69, 4, 4}, {30, 85, 4, 4}, Raster::SrcAnd},
    };
    EXPECT_EQ(marksOf(document, 984), expected);
}

TEST(PageLayout, ABarMarkIsDrawnSixTimesInItsColumn) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.setBarMark(3, ".");
    EXPECT_EQ(marksOf(document, 984),
              std::vector<SpriteCopy>(6, {{29 * 3 + 16, 25, 12, 59}, {3, 19, 12, 59}, Raster::SrcAnd}));
}

TEST(PageLayout, OnlyTheCurrentTrackIsShown) {
    Document document;
    makePage(document, 2, 1, 984, 472);
    document.setNote(0, 0, "1");
    document.setNote(0, 11, "2");
    document.CurrentTrack = 2;
    const std::vector<SpriteCopy> marks = marksOf(document, 984);
    ASSERT_EQ(marks.size(), 1u);
    EXPECT_EQ(marks[0], (SpriteCopy{{24, 76, 9, 7}, {21, 1, 9, 7}, Raster::SrcCopy}));
}

TEST(PageLayout, DrumsAreDrawnOnPercussionTracksOnly) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.setNote(0, 0, "81");
    EXPECT_TRUE(marksOf(document, 984).empty());
    document.GuitarTrackFlags[0] = False16;
    EXPECT_EQ(marksOf(document, 984).at(0).source, (Rect{171, 9, 9, 7}));
}

TEST(PageLayout, FretsAndDeadNotesAreDrawnOnPercussionTracksToo) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.GuitarTrackFlags[0] = False16;
    document.setNote(0, 0, "12");
    document.setNote(0, 1, "x");
    const std::vector<SpriteCopy> marks = marksOf(document, 984);
    ASSERT_EQ(marks.size(), 2u);
    EXPECT_EQ(marks[0].source, (Rect{121, 1, 9, 7}));
    EXPECT_EQ(marks[1].source, (Rect{301, 1, 9, 7}));
}

TEST(PageLayout, TextsWithoutAGlyphDrawNothing) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.setNote(0, 0, "30");
    document.setNote(0, 1, "36");
    document.setNote(0, 2, "05");
    document.setNote(0, 3, "X");
    EXPECT_TRUE(marksOf(document, 984).empty());
}

TEST(PageLayout, AnArcLooksIntoTheNextStaffAndPastTheEnd) {
    for (const char* technique : {"h", "t"}) {
        for (int column = 55; column < 64; ++column) {
            Document document;
            makePage(document, 1, 2, 984, 472);
            document.setTechnique(column, 0, technique);
            document.setTechnique(31, 3, technique);
            document.setNote(34, 3, "7");
            EXPECT_EQ(layout(document, 984), PlainLayout(document, 984).run()) << technique << column;
        }
    }
}

TEST(PageLayout, AgreesWithAPlainRestatementOnRandomPages) {
    std::mt19937 random(5);
    for (int run = 0; run < 60; ++run) {
        const int pageWidth = 767 + run * 20;
        Document document;
        makePage(document, 1 + run % 3, 1 + run % 7, pageWidth, 120 + run * 15);
        fillAtRandom(document, random, run % 5 * 20 + 5);
        document.CurrentTrack = static_cast<std::int16_t>(1 + run % document.TrackCount);
        document.GuitarTrackFlags[0] = boolean16(run % 2 == 0);
        document.TopStaff = static_cast<std::int16_t>(run % document.StaffCount);
        ASSERT_EQ(layout(document, pageWidth), PlainLayout(document, pageWidth).run()) << "run " << run;
    }
}

// The page of `document` at this scale, and its copies carried out by the naive blitter.
void expectPixels(const Document& document, int pageWidth, int pageHeight, int scale,
                  const std::string& name) {
    TabView view;
    view.picDocument.resize(pageWidth, pageHeight);
    view.setScale(scale);
    view.picDocument.Cls();
    view.drawStaves(document);
    QImage expected(QSize(pageWidth, pageHeight) * scale, QImage::Format_RGB32);
    expected.fill(qRgb(255, 254, 242));
    for (const SpriteCopy& copy : PlainLayout(document, pageWidth).run())
        carryOut(expected, view.picSource().image(), copy, scale);
    ASSERT_TRUE(sameImage(view.picDocument.image(), expected, name));
}

TEST(PagePixels, AreThoseOfTheCopiesInOrder) {
    std::mt19937 random(8);
    int run = 0;
    for (const int pageWidth : {640, 767, 984, 1307, 1904})
        for (const bool guitar : {true, false}) {
            Document document;
            makePage(document, 1, 4, pageWidth, 330);
            fillAtRandom(document, random, 30);
            document.GuitarTrackFlags[0] = boolean16(guitar);
            expectPixels(document, pageWidth, 330, 1, "page" + std::to_string(run++));
        }
}

TEST(PagePixels, AreThoseOfTheCopiesAtScaleTwoAndThree) {
    std::mt19937 random(9);
    for (const int scale : {2, 3, 4}) {
        Document document;
        makePage(document, 1, 2, 984, 210);
        fillAtRandom(document, random, 40);
        expectPixels(document, 984, 210, scale, "page_scale" + std::to_string(scale));
    }
}

TEST(PagePixels, OfAPageLowerThanItsStaffAreCut) {
    std::mt19937 random(10);
    Document document;
    makePage(document, 1, 2, 984, 57);
    fillAtRandom(document, random, 40);
    expectPixels(document, 984, 57, 1, "page_low");
}

TEST(PagePixels, BelowTheLastStaffStayBlank) {
    TabView view;
    view.picDocument.resize(984, 472);
    Document document;
    makePage(document, 1, 1, 984, 472);
    view.picDocument.Cls();
    EXPECT_EQ(view.drawStaves(document), 1);
    for (int y = 100; y < 472; ++y)
        for (int x = 0; x < 984; ++x)
            ASSERT_EQ(view.picDocument.image().pixel(x, y), 0xFFFFFEF2) << x << ',' << y;
}

TEST(PageGeometry, ColumnWidthIsRoundedHalfToEven) {
    EXPECT_EQ(columnWidth(984), 29); // 28.875
    EXPECT_EQ(columnWidth(60), 0);
    EXPECT_EQ(columnWidth(60 + 32 * 20 + 16), 20); // 20.5
    EXPECT_EQ(columnWidth(60 + 32 * 21 + 16), 22); // 21.5
    EXPECT_EQ(columnWidth(1904), 58);              // 57.625
    EXPECT_EQ(columnWidth(767), 22);               // 22.09
    EXPECT_EQ(columnWidth(44), 0);                 // -0.5
    EXPECT_EQ(columnWidth(12), -2);                // -1.5
}

TEST(PageGeometry, VisibleStavesAreWholeAndAtLeastOne) {
    EXPECT_EQ(visibleStaves(-50), 1);
    EXPECT_EQ(visibleStaves(0), 1);
    EXPECT_EQ(visibleStaves(1), 1);
    EXPECT_EQ(visibleStaves(99), 1);
    EXPECT_EQ(visibleStaves(199), 1);
    EXPECT_EQ(visibleStaves(200), 2);
    EXPECT_EQ(visibleStaves(1080), 10);
}

TEST(PageGeometry, TheLinesFollowTheCursor) {
    PageObjects objects;
    objects.nCursor = {100, 155, 13, 10};
    objects.placeLines();
    EXPECT_EQ(objects.vLine1, (Line{106, 0, 106, 155}));
    EXPECT_EQ(objects.NoteLine.x1, 114);
    EXPECT_EQ(objects.NoteLine.x2, 114);
}

TEST(BeatRuler, EveryFourthColumnIsABeat) {
    for (const int width : {12, 22, 29, 58}) {
        const std::vector<RulerTick> ticks = beatRuler(width);
        ASSERT_EQ(ticks.size(), 32u);
        for (int column = 0; column < 32; ++column) {
            const RulerTick& tick = ticks[static_cast<std::size_t>(column)];
            EXPECT_EQ(tick.onBeat, column % 4 == 0);
            EXPECT_EQ(tick.x, width * column + (column % 4 == 0 ? 31 : 30));
            EXPECT_EQ(tick.whiteX, width * column + (column % 4 == 0 ? 33 : 32));
        }
    }
}

TEST(BeatRuler, FollowsTheRedrawsColumnWidth) {
    TabView view;
    Document document;
    document.ColumnWidth = 29;
    view.DrawNotationAndRhythm(document);
    ASSERT_EQ(view.ruler().size(), 32u);
    EXPECT_EQ(view.ruler().back().x, 29 * 31 + 30);
}

TEST(NotationStrip, ItsBackgroundIsTwoCopies) {
    const std::vector<SpriteCopy> expected = {{{9, 30, 45, 154}, {596, 0, 45, 154}, Raster::SrcCopy},
                                              {{39, 30, 934, 154}, {630, 0, 1, 154}, Raster::SrcCopy}};
    EXPECT_EQ(stripBackground(984), expected);
}

TEST(NotationStrip, ItsPixelsAreThoseOfItsCopies) {
    for (const int pageWidth : {400, 984}) {
        TabView view;
        view.picDocument.resize(pageWidth, 300);
        view.picStandardNotation.resize(pageWidth + 27, 168);
        view.drawStripBackground();
        QImage expected(pageWidth + 27, 168, QImage::Format_RGB32);
        expected.fill(0xFFFFFFFF);
        for (const SpriteCopy& copy : stripBackground(pageWidth))
            carryOut(expected, view.picSource().image(), copy);
        EXPECT_TRUE(sameImage(view.picStandardNotation.image(), expected, "strip"));
    }
}

} // namespace
} // namespace tabrova::testing
