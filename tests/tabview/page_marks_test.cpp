// Every row of the two tables of marks, and how far an arc reaches.
#include "tabview/page_marks.h"

#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"

#include <map>

namespace tabrova::testing {
namespace {

constexpr int w = 13; // the cursor's width: a mark starts at the cursor's right edge
constexpr int PageWidth = 984;

struct TechniqueRow {
    const char* code;
    const char* left;
    int top;           // from 100 r + 10 s
    const char* width; // "" as the sprite
    Rect sprite;
    Raster raster;
};

constexpr Raster Copy = Raster::SrcCopy;
constexpr Raster And = Raster::SrcAnd;

constexpr TechniqueRow Rows[] = {
    {"h", "X + w", 23, "CW d - w", {29, 107, 26, 12}, Copy},
    {"s", "X + w", 23, "CW - w", {57, 107, 26, 12}, Copy},
    {"v", "X + w", 23, "CW - w", {85, 107, 26, 12}, Copy},
    {"w", "X + w", 23, "CW - w", {113, 107, 26, 12}, Copy},
    {"d", "X + w", 23, "CW - w", {141, 107, 26, 12}, Copy},
    {".", "X + w", 29, "", {30, 85, 4, 4}, And},
    {"g", "CW c + 21", 25, "", {212, 19, 3, 10}, And},
    {"g", "CW c + 20 + w", 25, "", {220, 19, 3, 10}, And},
    {"m", "CW c + 19 + w", 23, "", {197, 107, 26, 12}, And},
    {"f", "CW c + 22 + w", 23, "CW - w", {225, 107, 26, 12}, And},
    {"t", "CW c + 22 + w", 23, "CW d - w", {253, 107, 26, 12}, And},
    {"l", "CW c + 19 + w", 23, "", {281, 107, 26, 12}, And},
    {"o", "CW c + 19 + w", 23, "", {309, 107, 26, 12}, And},
    {"r", "CW c + 19 + w", 23, "CW - w", {337, 107, 26, 12}, And},
    {"\xB2", "CW c + 19 + w", 23, "", {448, 126, 10, 12}, And},
    {"p0.5", "CW c + 22 + w", 27, "", {425, 58, 10, 17}, And},
    {"p1.0", "CW c + 22 + w", 27, "", {437, 58, 12, 28}, And},
    {"p1.5", "CW c + 22 + w", 27, "", {451, 57, 13, 32}, And},
    {"p2.0", "CW c + 22 + w", 27, "", {464, 57, 14, 32}, And},
    {"p2.5", "CW c + 22 + w", 27, "", {480, 57, 14, 32}, And},
    {"p3.0", "CW c + 22 + w", 27, "", {493, 57, 14, 32}, And},
    {"b0.5", "CW c + 22 + w", 13, "", {423, 101, 10, 17}, And},
    {"b1.0", "CW c + 22 + w", 1, "", {435, 90, 12, 28}, And},
    {"b1.5", "CW c + 22 + w", -3, "", {448, 86, 13, 32}, And},
    {"b2.0", "CW c + 22 + w", -3, "", {461, 86, 14, 32}, And},
    {"b2.5", "CW c + 22 + w", -3, "", {476, 86, 14, 32}, And},
    {"b3.0", "CW c + 22 + w", -3, "", {490, 86, 14, 32}, And},
};

int leftOf(const std::string& formula, int CW, int c) {
    const std::map<std::string, int> places = {{"X + w", CW * c + 24 + w},
                                               {"CW c + 21", CW * c + 21},
                                               {"CW c + 20 + w", CW * c + 20 + w},
                                               {"CW c + 19 + w", CW * c + 19 + w},
                                               {"CW c + 22 + w", CW * c + 22 + w}};
    return places.at(formula);
}

int widthOf(const TechniqueRow& row, int CW, int d) {
    const std::map<std::string, int> widths = {
        {"", row.sprite.width}, {"CW - w", CW - w}, {"CW d - w", CW * d - w}};
    return widths.at(row.width);
}

// All rows of one code in their order; those of no width are left out.
std::vector<SpriteCopy> expectedTechnique(const std::string& code, int CW, int r, int c, int s, int d) {
    std::vector<SpriteCopy> copies;
    for (const TechniqueRow& row : Rows) {
        if (row.code != code || widthOf(row, CW, d) < 1) continue;
        const Rect place = {leftOf(row.left, CW, c), 100 * r + 10 * s + row.top, widthOf(row, CW, d),
                            row.sprite.height};
        copies.push_back({place, row.sprite, row.raster});
    }
    return copies;
}

std::vector<SpriteCopy> barMark(std::string_view mark, int r, int c, int CW) {
    std::vector<SpriteCopy> copies;
    addBarMark(copies, mark, r, c, CW);
    return copies;
}

class TechniqueMarks : public ::testing::Test {
  protected:
    TechniqueMarks() { makePage(document, 1, 4, PageWidth, 472); }

    std::vector<SpriteCopy> mark(const std::string& code, int r, int c, int s) {
        const int column = r * 32 + c;
        document.setTechnique(column, s, code);
        std::vector<SpriteCopy> copies;
        addTechniqueMark(copies, document, {r, c, s, column, s});
        document.setTechnique(column, s, "");
        return copies;
    }

    Document document;
};

TEST(BarMarks, TheSeparatorsPlace) {
    for (const int CW : {20, 29, 58})
        for (const int r : {0, 3})
            for (const int c : {0, 7, 31})
                EXPECT_EQ(
                    barMark(".", r, c, CW),
                    (std::vector<SpriteCopy>{{{CW * c + 16, 100 * r + 25, 12, 59}, {3, 19, 12, 59}, And}}));
}

TEST(BarMarks, TheOpenedRepeatsPlace) {
    for (const int CW : {20, 29, 58})
        for (const int r : {0, 3})
            for (const int c : {0, 7, 31})
                EXPECT_EQ(
                    barMark("r", r, c, CW),
                    (std::vector<SpriteCopy>{{{CW * c + 8, 100 * r + 25, 12, 59}, {323, 25, 12, 59}, And}}));
}

TEST(BarMarks, AClosedRepeatIsItsBarTheSmallCrossAndTheCount) {
    for (int n = 1; n <= 15; ++n)
        for (const int r : {0, 2})
            for (const int c : {0, 30}) {
                const Rect count =
                    n <= 8 ? Rect{188 + 10 * (n - 1), 54, 9, 7} : Rect{188 + 10 * (n - 9), 62, 9, 7};
                EXPECT_EQ(
                    barMark("r" + std::to_string(n), r, c, 29),
                    (std::vector<SpriteCopy>{{{29 * c + 12, 100 * r + 25, 12, 59}, {340, 25, 12, 59}, And},
                                             {{29 * c + 6, 100 * r + 17, 9, 7}, {258, 62, 9, 7}, And},
                                             {{29 * c + 14, 100 * r + 17, 9, 7}, count, And}}))
                    << n;
            }
}

TEST(BarMarks, AnUnknownMarkDrawsNothing) {
    for (const char* mark : {"", " ", "..", ". ", "R", "rr", "r0", "r16", "r01", "r 1", "r1 ", "r1.0", "|"})
        EXPECT_TRUE(barMark(mark, 0, 3, 29).empty()) << mark;
}

// The frame of the cursor on a cell.
Rect cursorOn(int r, int c, int s) { return {29 * c + 22, 100 * r + 25 + 10 * s, 13, 10}; }

TEST(TypedBarMarks, StandWhereTheNextRedrawPutsThemButThoseOfOneSprite8PixelsToTheLeft) {
    for (const char* mark : {".", "r", "r1", "r9", "r15"})
        for (const int r : {0, 3})
            for (const int c : {0, 7, 31})
                for (int s = 0; s < StringsPerTrack; ++s) {
                    std::vector<SpriteCopy> expected = barMark(mark, r, c, 29);
                    if (expected.size() == 1) expected.front().place.left -= 8;
                    EXPECT_EQ(typedBarMark(mark, cursorOn(r, c, s), s), expected) << mark;
                }
}

TEST(TypedBarMarks, OfNoKnownKindDrawNothing) {
    for (const char* mark : {"", "r16", "|"})
        EXPECT_TRUE(typedBarMark(mark, cursorOn(0, 3, 2), 2).empty()) << mark;
}

TEST_F(TechniqueMarks, EveryRowHasItsPlaceSizeSpriteAndRaster) {
    for (const TechniqueRow& row : Rows)
        for (const int CW : {14, 29, 39, 58})
            for (const int r : {0, 2})
                for (const int c : {0, 13, 31})
                    for (const int s : {0, 3, 5}) {
                        document.ColumnWidth = static_cast<std::int16_t>(CW);
                        EXPECT_EQ(mark(row.code, r, c, s), expectedTechnique(row.code, CW, r, c, s, 9))
                            << row.code << " in " << CW;
                    }
}

TEST_F(TechniqueMarks, AGhostNoteIsTwoBrackets) {
    EXPECT_EQ(mark("g", 0, 0, 0), (std::vector<SpriteCopy>{{{21, 25, 3, 10}, {212, 19, 3, 10}, And},
                                                           {{33, 25, 3, 10}, {220, 19, 3, 10}, And}}));
}

TEST_F(TechniqueMarks, AnUnknownCodeDrawsNothing) {
    for (const char* code :
         {"",   " ",    "H",    "hh", " h",    "h ",   "..",   "2",   "\xC2\xB2", "x",   "p",
          "p0", "p0.0", "p3.5", "p1", "p1.00", "b0.0", "b3.5", "b10", "B1.0",     "P1.0"})
        EXPECT_TRUE(mark(code, 0, 3, 2).empty()) << code;
}

TEST_F(TechniqueMarks, ATechniqueNeedsNoNote) {
    EXPECT_EQ(mark("s", 0, 3, 2).size(), 1u);
    document.setNote(3, 2, "7");
    EXPECT_EQ(mark("s", 0, 3, 2).size(), 1u);
}

TEST_F(TechniqueMarks, NothingIsLeftOfAStretchInANarrowColumn) {
    for (const char* code : {"s", "v", "w", "d", "f", "r"})
        for (const int CW : {0, 5, 12, 13}) {
            document.ColumnWidth = static_cast<std::int16_t>(CW);
            EXPECT_TRUE(mark(code, 0, 3, 2).empty()) << code << CW;
        }
}

TEST_F(TechniqueMarks, NothingIsLeftOfAnArcToTheNextColumnInANarrowPage) {
    document.setNote(4, 2, "5");
    for (const char* code : {"h", "t"}) {
        document.ColumnWidth = 13;
        EXPECT_TRUE(mark(code, 0, 3, 2).empty()) << code;
        document.ColumnWidth = 14;
        ASSERT_EQ(mark(code, 0, 3, 2).size(), 1u) << code;
        EXPECT_EQ(mark(code, 0, 3, 2).front().place.width, 1) << code;
    }
}

TEST_F(TechniqueMarks, AnArcIsStretchedOverItsReach) {
    for (int d = 1; d <= 9; ++d) {
        Document fresh;
        makePage(fresh, 1, 1, PageWidth, 472);
        fresh.setNote(3 + d, 2, "5");
        for (const char* code : {"h", "t"}) {
            fresh.setTechnique(3, 2, code);
            std::vector<SpriteCopy> copies;
            addTechniqueMark(copies, fresh, {0, 3, 2, 3, 2});
            EXPECT_EQ(copies, expectedTechnique(code, 29, 0, 3, 2, d)) << code << d;
        }
    }
}

TEST_F(TechniqueMarks, AnArcOfAStaffsLastColumnIsNotCutAtTheStaffsEnd) {
    document.setNote(34, 0, "5");
    EXPECT_EQ(mark("h", 0, 31, 0).front().place, (Rect{29 * 31 + 37, 23, 29 * 3 - 13, 12}));
}

TEST_F(TechniqueMarks, TheDeepestBendReachesBelowTheStaffAndTheHighestIntoTheSlotAbove) {
    EXPECT_EQ(mark("p3.0", 1, 0, 5).front().place.bottom(), 100 + 50 + 27 + 32);
    EXPECT_EQ(mark("b3.0", 1, 0, 0).front().place.top, 97);
}

TEST(Reach, EndsAtTheNextNoteOnTheString) {
    for (int distance = 1; distance <= 20; ++distance) {
        Document document;
        makePage(document, 1, 1, PageWidth, 472);
        document.setNote(2 + distance, 1, "5");
        EXPECT_EQ(hammerReach(document, 2, 1), std::min(distance, 9)) << distance;
        EXPECT_EQ(tapReach(document, 2, 1), std::min(distance, 9)) << distance;
    }
}

TEST(Reach, AnyTextIsANote) {
    for (const char* text : {"0", "x", ">", "30", "nonsense", " "}) {
        Document document;
        makePage(document, 1, 1, PageWidth, 472);
        document.setNote(5, 1, text);
        EXPECT_EQ(hammerReach(document, 2, 1), 3) << text;
        EXPECT_EQ(tapReach(document, 2, 1), 3) << text;
    }
}

TEST(Reach, IsNineColumnsWhenTheNextNoteIsOnAnotherString) {
    Document document;
    makePage(document, 2, 1, PageWidth, 472);
    for (const int row : {0, 2, 7})
        document.setNote(4, row, "5");
    EXPECT_EQ(hammerReach(document, 2, 1), 9);
    EXPECT_EQ(tapReach(document, 2, 1), 9);
}

TEST(Reach, NeitherItsOwnCellNorMarksEndIt) {
    Document document;
    makePage(document, 1, 1, PageWidth, 472);
    document.setNote(2, 1, "5");
    document.setTechnique(3, 1, "h");
    document.setBarMark(4, ".");
    EXPECT_EQ(hammerReach(document, 2, 1), 9);
    EXPECT_EQ(tapReach(document, 2, 1), 9);
}

TEST(Reach, RunsOnIntoTheNextStaff) {
    Document document;
    makePage(document, 1, 2, PageWidth, 472);
    document.setNote(35, 1, "5");
    EXPECT_EQ(hammerReach(document, 31, 1), 4);
    EXPECT_EQ(tapReach(document, 31, 1), 4);
}

TEST(Reach, StopsBehindTheDocumentsLastColumn) {
    Document document;
    makePage(document, 1, 1, PageWidth, 472);
    for (int column = 20; column < 31; ++column) {
        EXPECT_EQ(hammerReach(document, column, 0), std::min(9, 32 - column)) << column;
        EXPECT_EQ(tapReach(document, column, 0), std::min(9, 32 - column)) << column;
    }
}

// The order of the last two steps shows here alone: past the grid's end stands no note.
TEST(Reach, OfTheVeryLastColumnIsTwoForAHammerAndOneForATap) {
    Document document;
    makePage(document, 1, 1, PageWidth, 472);
    EXPECT_EQ(hammerReach(document, 31, 0), 2);
    EXPECT_EQ(tapReach(document, 31, 0), 1);
}

} // namespace
} // namespace tabrova::testing
