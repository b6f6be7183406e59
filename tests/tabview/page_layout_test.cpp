// A redraw's copies, exactly and in order, and the pixels that they make.
#include "core/document_operations.h"
#include "tabview/tab_view.h"
#include "tests/tabview/plain_layout.h"

#include <gtest/gtest.h>

#include <random>

namespace tabrova {

void PrintTo(const SpriteCopy& copy, std::ostream* out) {
    *out << "to " << copy.place.left << ',' << copy.place.top << ' ' << copy.place.width << 'x'
         << copy.place.height << " from " << copy.source.left << ',' << copy.source.top << ' '
         << copy.source.width << 'x' << copy.source.height
         << (copy.raster == Raster::SrcCopy ? " copy" : " and");
}

namespace testing {
namespace {

void makePage(Document& document, int tracks, int staves, int pageWidth, int pageHeight) {
    resetToNewDocument(document);
    document.TrackCount = static_cast<std::int16_t>(tracks);
    document.StaffCount = static_cast<std::int16_t>(staves);
    document.GuitarTrackFlags.assign(static_cast<std::size_t>(tracks), True16);
    ResizeGrids(document, staves * 32, tracks * 6);
    document.ColumnWidth = columnWidth(pageWidth);
    document.VisibleStaves = visibleStaves(pageHeight);
}

std::vector<SpriteCopy> layout(const Document& document, int pageWidth) {
    std::vector<SpriteCopy> copies;
    layoutPage(copies, document, pageWidth);
    return copies;
}

// Everything but the three copies of the staff itself.
std::vector<SpriteCopy> marksOf(const Document& document, int pageWidth) {
    std::vector<SpriteCopy> copies = layout(document, pageWidth);
    copies.erase(copies.begin(), copies.begin() + 2);
    copies.pop_back();
    return copies;
}

const char* const Techniques[] = {"h",    "s",    "v",    "w",    "d",    ".",    "g",    "m",
                                  "f",    "t",    "l",    "o",    "r",    "\xB2", "p0.5", "p1.0",
                                  "p1.5", "p2.0", "p2.5", "p3.0", "b0.5", "b1.0", "b1.5", "b2.0",
                                  "b2.5", "b3.0", "?",    "p4.0", "hh"};

void fillAtRandom(Document& document, std::mt19937& random, int filledOf100) {
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const char* const others[] = {"x", ">", "30", "34", "35", "64", "81", "82", "007", "1.5", "no"};
    for (int column = 0; column < document.ColumnCapacity; ++column) {
        if (choose(7) == 0)
            document.setBarMark(column, choose(3) ? "r" + std::to_string(choose(17)) : choose(1) ? "." : "r");
        for (int row = 0; row < document.RowCapacity; ++row) {
            if (choose(99) < filledOf100)
                document.setNote(column, row, choose(5) ? std::to_string(choose(85)) : others[choose(10)]);
            if (choose(99) < filledOf100) document.setTechnique(column, row, Techniques[choose(28)]);
        }
    }
}

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

TEST(PageLayout, ABarMarkIsDrawnSixTimesInItsColumn) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.setBarMark(3, ".");
    EXPECT_EQ(marksOf(document, 984),
              std::vector<SpriteCopy>(6, {{29 * 3 + 16, 25, 12, 59}, {3, 19, 12, 59}, Raster::SrcAnd}));
}

TEST(PageLayout, EachMarkStandsAtItsOwnDistance) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.setBarMark(0, ".");
    document.setBarMark(1, "r");
    document.setBarMark(2, "r1");
    document.setBarMark(3, "r15");
    document.setBarMark(4, "r16");
    document.setBarMark(5, "R");
    const std::vector<SpriteCopy> marks = marksOf(document, 984);
    ASSERT_EQ(marks.size(), 6u + 6 + 18 + 18);
    EXPECT_EQ(marks[0].place, (Rect{16, 25, 12, 59}));
    EXPECT_EQ(marks[6].place, (Rect{29 + 8, 25, 12, 59}));
    EXPECT_EQ(marks[12].place, (Rect{58 + 12, 25, 12, 59}));
    EXPECT_EQ(marks[13], (SpriteCopy{{58 + 6, 17, 9, 7}, {258, 62, 9, 7}, Raster::SrcAnd}));
    EXPECT_EQ(marks[14], (SpriteCopy{{58 + 14, 17, 9, 7}, {188, 54, 9, 7}, Raster::SrcAnd}));
    EXPECT_EQ(marks[32], (SpriteCopy{{87 + 14, 17, 9, 7}, {248, 62, 9, 7}, Raster::SrcAnd}));
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
    document.setNote(0, 0, "12");
    EXPECT_EQ(marksOf(document, 984).at(0).source, (Rect{121, 1, 9, 7}));
}

TEST(PageLayout, EveryTechniqueHasItsRow) {
    for (const char* technique : Techniques) {
        Document document;
        makePage(document, 1, 1, 984, 472);
        document.setTechnique(4, 2, technique);
        EXPECT_EQ(layout(document, 984), PlainLayout(document, 984).run()) << technique;
    }
}

TEST(PageLayout, AnArcEndsOverTheNextNoteOrTheNinthColumn) {
    for (const char* technique : {"h", "t"}) {
        for (int distance = 1; distance < 14; ++distance) {
            Document document;
            makePage(document, 1, 1, 984, 472);
            document.setTechnique(2, 1, technique);
            document.setNote(2 + distance, 1, "5");
            document.setNote(3, 2, "5"); // another string does not count
            const int left = 2 * 29 + (*technique == 'h' ? 37 : 35);
            const int reach = std::min(distance, 9);
            bool found = false;
            for (const SpriteCopy& copy : layout(document, 984))
                found |= copy.place == Rect{left, 33, 29 * reach - 13, 12};
            EXPECT_TRUE(found) << technique << distance;
        }
    }
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

TEST(PageLayout, NothingIsLeftOfAMarkInANarrowColumn) {
    Document document;
    makePage(document, 1, 1, 984, 472);
    document.ColumnWidth = 13;
    document.setTechnique(0, 0, "s");
    document.setTechnique(1, 0, "h");
    document.setNote(2, 0, "5");
    EXPECT_EQ(marksOf(document, 984).size(), 1u);
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

// One pixel at a time, by the meaning of the two raster operations.
void blit(QImage& to, const QImage& from, const SpriteCopy& copy) {
    for (int y = 0; y < copy.place.height; ++y)
        for (int x = 0; x < copy.place.width; ++x) {
            const QPoint at(copy.place.left + x, copy.place.top + y);
            if (!to.rect().contains(at)) continue;
            const QRgb source = from.pixel(copy.source.left + x * copy.source.width / copy.place.width,
                                           copy.source.top + y * copy.source.height / copy.place.height);
            to.setPixel(at, copy.raster == Raster::SrcCopy ? source : source & to.pixel(at));
        }
}

TEST(PagePixels, AreThoseOfTheCopiesInOrder) {
    std::mt19937 random(8);
    for (int run = 0; run < 8; ++run) {
        TabView view;
        view.picDocument.resize(984, 330);
        Document document;
        makePage(document, 1, 4, 984, 330);
        fillAtRandom(document, random, 30);
        document.GuitarTrackFlags[0] = boolean16(run % 2 == 0);
        view.picDocument.Cls();
        view.drawStaves(document);
        QImage expected(984, 330, QImage::Format_RGB32);
        expected.fill(qRgb(255, 254, 242));
        for (const SpriteCopy& copy : PlainLayout(document, 984).run())
            blit(expected, view.picSource().image(), copy);
        if (view.picDocument.image() == expected) continue;
        view.picDocument.image().save("page_actual.png");
        expected.save("page_expected.png");
        FAIL() << "see page_actual.png and page_expected.png, run " << run;
    }
}

TEST(PageGeometry, ColumnWidthIsRoundedHalfToEven) {
    EXPECT_EQ(columnWidth(984), 29); // 28.875
    EXPECT_EQ(columnWidth(60), 0);
    EXPECT_EQ(columnWidth(60 + 32 * 20 + 16), 20); // 20.5
    EXPECT_EQ(columnWidth(60 + 32 * 21 + 16), 22); // 21.5
    EXPECT_EQ(columnWidth(1904), 58);
}

TEST(PageGeometry, VisibleStavesAreWholeAndAtLeastOne) {
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
    const std::vector<RulerTick> ticks = beatRuler(29);
    ASSERT_EQ(ticks.size(), 32u);
    for (int column = 0; column < 32; ++column) {
        const RulerTick& tick = ticks[static_cast<std::size_t>(column)];
        EXPECT_EQ(tick.onBeat, column % 4 == 0);
        EXPECT_EQ(tick.x, 29 * column + (column % 4 == 0 ? 31 : 30));
        EXPECT_EQ(tick.whiteX, tick.x + 2);
    }
}

TEST(NotationStrip, ItsBackgroundIsTwoCopies) {
    const std::vector<SpriteCopy> expected = {{{9, 30, 45, 154}, {596, 0, 45, 154}, Raster::SrcCopy},
                                              {{39, 30, 934, 154}, {630, 0, 1, 154}, Raster::SrcCopy}};
    EXPECT_EQ(stripBackground(984), expected);
}

} // namespace
} // namespace testing
} // namespace tabrova
