// The notation of the cursor's staff: what is copied where, and a plain restatement over random documents.
#include "tabview/notation_layout.h"
#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"
#include "tests/tabview/plain_notation.h"

namespace tabrova::testing {
namespace {

constexpr int CW = 29;

class Notation : public ::testing::Test {
  protected:
    Notation() { makePage(document, 1, 3, 984, 472); }

    const NotationLayout& notation() {
        layoutNotation(layout, document, NoteTop);
        return layout;
    }
    // Copies of the strip from this place of the sheet.
    std::vector<Rect> placesOf(const Rect& source) {
        std::vector<Rect> places;
        for (const SpriteCopy& copy : layout.strip)
            if (copy.source == source) places.push_back(copy.place);
        return places;
    }

    Document document;
    NotationLayout layout;
    std::int16_t NoteTop = 0;
};

constexpr Rect Filled = {445, 2, 14, 18};
constexpr Rect Open = {459, 2, 14, 18};
constexpr Rect WholeNote = {482, 2, 14, 18};

TEST_F(Notation, AnEmptyStaffIsNothing) {
    EXPECT_TRUE(notation().strip.empty());
    EXPECT_TRUE(layout.page.empty());
    EXPECT_TRUE(layout.stems.empty());
}

TEST_F(Notation, APercussionTrackIsNothing) {
    document.setNote(0, 0, "35");
    document.setTechnique(0, 0, "h");
    NoteTop = 77;
    notation();
    EXPECT_FALSE(layout.strip.empty());
    document.GuitarTrackFlags[0] = False16;
    NoteTop = 77;
    EXPECT_TRUE(notation().strip.empty());
    EXPECT_TRUE(layout.page.empty());
    EXPECT_TRUE(layout.stems.empty());
    EXPECT_EQ(NoteTop, 77);
}

TEST_F(Notation, ANotesHeadStandsAtItsHeight) {
    document.setNote(2, 0, "0");
    document.setNote(3, 0, "0");
    EXPECT_EQ(notation().strip.front(),
              (SpriteCopy{{2 * CW + 37, 48 + 41 - 13, 14, 18}, Filled, Raster::SrcAnd}));
    EXPECT_EQ(NoteTop, 89);
}

TEST_F(Notation, ASharpStandsLeftOfItsHead) {
    document.setNote(2, 0, "2"); // p = 66, above step 3 of octave 5
    const int top = 159 - 3 * 38 + 41;
    EXPECT_EQ(notation().strip.front(),
              (SpriteCopy{{2 * CW + 28, top - 3, 8, 9}, {470, 35, 8, 9}, Raster::SrcAnd}));
    EXPECT_EQ(layout.strip[1].place, (Rect{2 * CW + 37, top - 13, 14, 18}));
}

TEST_F(Notation, TheTuningMovesTheHead) {
    document.setNote(0, 0, "0");
    document.TuningTable[0] = 12; // half a tone lower, which is a sharp
    notation();
    EXPECT_EQ(placesOf({470, 35, 8, 9}).size(), 1u);
    EXPECT_EQ(NoteTop, 159 - 3 * 36 + 41);
}

TEST_F(Notation, HeadsFollowTheValue) {
    document.setNote(0, 0, "0");  // a half note
    document.setNote(8, 0, "0");  // a whole one
    document.setNote(24, 0, "0"); // a quarter
    document.setNote(28, 0, "0"); // a dotted eighth
    document.setNote(31, 0, "0"); // an eighth, over the staff's end
    document.setNote(33, 0, "0");
    notation();
    EXPECT_EQ(placesOf(Open).size(), 1u);
    EXPECT_EQ(placesOf(WholeNote).size(), 1u);
    EXPECT_EQ(placesOf(Filled).size(), 3u);
    EXPECT_EQ(placesOf(WholeNote)[0].left, 8 * CW + 37);
}

TEST_F(Notation, ADeadNoteGoesOffTheStripButHasItsRhythm) {
    for (const char* text : {"x", ">"}) {
        document.setNote(0, 3, text);
        document.setNote(1, 3, "");
        notation();
        EXPECT_EQ(NoteTop, -1000);
        EXPECT_EQ(layout.strip.front().place.top, -1013);
        EXPECT_TRUE(layout.stems.empty());
        ASSERT_FALSE(layout.page.empty());
        EXPECT_EQ(layout.page[0].place, (Rect{27, 85 - 20, 1, 38}));
    }
}

TEST_F(Notation, APitchOutsideTheTableStands41BelowTheNoteBefore) {
    document.setNote(0, 0, "0");
    document.setNote(1, 0, "47");  // p = 111
    document.setNote(2, 0, "-65"); // p = -1
    notation();
    EXPECT_EQ(NoteTop, 89 + 41 + 41);
    EXPECT_TRUE(placesOf({470, 35, 8, 9}).empty());
    NoteTop = 0;
    document.setNote(0, 0, "");
    notation();
    EXPECT_EQ(NoteTop, 82);
    // It goes on in the next redraw, and stops where 16 bits end.
    notation();
    EXPECT_EQ(NoteTop, 164);
    for (int redraw = 0; redraw < 1000; ++redraw)
        notation();
    EXPECT_GT(NoteTop, 32767 - 41);
}

TEST_F(Notation, ATextThatIsNoNumberKeepsTheHeightOfTheNoteBefore) {
    document.setNote(0, 0, "0");
    document.setNote(1, 0, "no");
    notation();
    ASSERT_GE(layout.strip.size(), 2u);
    EXPECT_EQ(layout.strip[1].place, (Rect{CW + 37, 89 - 13, 14, 18}));
}

TEST_F(Notation, StemsRunFromTheLowestHeadTo24AboveTheHighestOfTheStaff) {
    document.setNote(0, 0, "0"); // 89, the highest
    document.setNote(0, 5, "0"); // 159 - 3 * 23 + 41 = 131
    document.setNote(1, 1, "0");
    notation();
    ASSERT_EQ(layout.stems.size(), 1u); // a whole note has none
    EXPECT_EQ(layout.stems[0], (Line{44, 131, 44, 65}));
    document.setNote(2, 1, "0");
    document.setNote(3, 1, "0");
    notation();
    ASSERT_EQ(layout.stems.size(), 3u);
    EXPECT_EQ(layout.stems[1].y2, 65);
    EXPECT_EQ(layout.stems[2].x1, 2 * CW + 44);
}

TEST_F(Notation, EachBeamOfTheStrip) {
    struct Row {
        int empty, height;
    };
    for (const Row& row : {Row{0, 11}, Row{1, 8}, Row{3, 5}, Row{2, 3}, Row{7, 3}}) {
        makePage(document, 1, 3, 984, 472);
        document.setNote(0, 0, "0");
        document.setNote(row.empty + 1, 0, "0");
        document.setNote(row.empty + 2, 0, "0");
        notation();
        const auto beams = placesOf({365, 30, 1, row.height});
        ASSERT_FALSE(beams.empty()) << row.empty;
        EXPECT_EQ(beams[0], (Rect{44, 65, CW, row.height}));
        // It goes on across the empty columns.
        for (int column = 0; column <= row.empty && row.empty != 0; ++column)
            EXPECT_EQ(beams[static_cast<std::size_t>(column)].left, column * CW + 44);
    }
}

TEST_F(Notation, NoBeamAheadOfAWholeNoteNorAfterTheLastColumn) {
    document.setNote(0, 0, "0");
    document.setNote(1, 0, "0"); // a whole note
    for (const int column : {30, 31, 32})
        document.setNote(column, 0, "0");
    notation();
    const auto beams = placesOf({365, 30, 1, 11});
    ASSERT_EQ(beams.size(), 1u);
    EXPECT_EQ(beams[0].left, 30 * CW + 44);
    EXPECT_EQ(layout.stems.back().x1, 31 * CW + 44);
}

TEST_F(Notation, EveryTechniqueOfTheStrip) {
    struct Row {
        const char* code;
        int sheetLeft;
    };
    for (const Row& row : {Row{"s", 57}, Row{"v", 85}, Row{"w", 113}, Row{"d", 141}, Row{"f", 225},
                           Row{"r", 337}, Row{"g", 169}, Row{"m", 197}, Row{"l", 281}, Row{"o", 309}}) {
        makePage(document, 1, 3, 984, 472);
        document.setNote(1, 0, "0");
        document.setTechnique(1, 0, row.code);
        notation();
        // 29 / 1.2 is 24.17
        EXPECT_EQ(layout.strip.back(),
                  (SpriteCopy{{CW + 49, 89 - 13, 24, 12}, {row.sheetLeft, 107, 26, 12}, Raster::SrcAnd}))
            << row.code;
    }
}

TEST_F(Notation, ArcsReachAsFarAsTheValue) {
    for (const auto& [code, left] : {std::pair{"h", 29}, std::pair{"t", 253}}) {
        makePage(document, 1, 3, 984, 472);
        document.setNote(0, 0, "0");
        document.setTechnique(0, 0, code);
        document.setNote(3, 0, "0");
        notation();
        EXPECT_EQ(placesOf({left, 107, 26, 12}),
                  (std::vector<Rect>{{49, 76, 72, 12}})); // 72.5 to the even 72
    }
}

TEST_F(Notation, TheStaccatoDotIsNotStretched) {
    document.setNote(0, 0, "0");
    document.setTechnique(0, 0, ".");
    notation();
    EXPECT_EQ(placesOf({30, 85, 4, 4}), (std::vector<Rect>{{49, 82, 4, 4}}));
}

TEST_F(Notation, BendsAndDoubleStrikesAreNotShown) {
    document.setNote(0, 0, "0");
    notation();
    const std::size_t alone = layout.strip.size();
    for (const char* code : {"\xB2", "p0.5", "p3.0", "b1.0", "b2.5", "?", "hh"}) {
        document.setTechnique(0, 0, code);
        EXPECT_EQ(notation().strip.size(), alone) << code;
    }
}

TEST_F(Notation, ATechniqueWithoutANoteTakesHeightAndValueOfTheLastOne) {
    document.setNote(0, 0, "0");
    document.setNote(2, 0, "0");
    document.setTechnique(1, 4, "h");
    notation();
    EXPECT_EQ(placesOf({29, 107, 26, 12}), (std::vector<Rect>{{CW + 49, 76, 48, 12}}));
    // Above the first note of its own column it does not know that column's value yet.
    document.setTechnique(1, 4, "");
    document.setNote(2, 0, "");
    document.setNote(2, 1, "0");
    document.setTechnique(2, 0, "h");
    notation();
    EXPECT_EQ(placesOf({29, 107, 26, 12}), (std::vector<Rect>{{2 * CW + 49, 76, 48, 12}}));
}

TEST_F(Notation, ATechniqueBeforeAnyNoteStandsAtTheLastRedrawsHeight) {
    document.setTechnique(0, 0, "v");
    document.setTechnique(0, 1, "h"); // no value, so no width
    NoteTop = 100;
    notation();
    ASSERT_EQ(layout.strip.size(), 1u);
    EXPECT_EQ(layout.strip[0].place, (Rect{49, 87, 24, 12}));
}

TEST_F(Notation, ABarMarkInTheNextColumnLeavesOutTheBeam) {
    document.setNote(0, 5, "0");
    notation();
    EXPECT_EQ(layout.page.size(), 2u);
    for (const char* mark : {".", "r", "r3", "?"}) {
        document.setBarMark(1, mark);
        EXPECT_EQ(notation().page.size(), 1u) << mark;
    }
    document.setBarMark(1, "");
    document.setBarMark(0, ".");
    EXPECT_EQ(notation().page.size(), 2u);
}

TEST_F(Notation, AColumnsNotesShareOneStemAndBeam) {
    document.setNote(0, 1, "0");
    document.setNote(0, 3, "x");
    document.setNote(1, 0, "0");
    notation();
    const std::vector<SpriteCopy> expected = {{{27, 65, 1, 38}, {346, 0, 1, 18}, Raster::SrcCopy},
                                              {{28, 86, CW, 17}, {347, 1, 10, 17}, Raster::SrcAnd},
                                              {{CW + 27, 85, 1, 18}, {346, 0, 1, 18}, Raster::SrcAnd}};
    EXPECT_EQ(std::vector<SpriteCopy>(layout.page.begin(), layout.page.begin() + 3), expected);
    EXPECT_EQ(layout.page[3].place.left, CW + 27);
}

TEST_F(Notation, OnlyTheCursorsStaffIsShownInItsOwnSlot) {
    document.StaffCount = 3;
    document.setNote(33, 5, "0");
    EXPECT_TRUE(notation().page.empty());
    document.CurrentStaff = 2;
    notation();
    EXPECT_EQ(layout.page[0].place, (Rect{CW + 27, 185, 1, 18}));
    document.TopStaff = 2; // scrolled away above the page
    notation();
    EXPECT_EQ(layout.page[0].place.top, -15);
}

// Any text, tuning, size and place of the cursor.
TEST_F(Notation, EqualsThePlainRestatement) {
    std::mt19937 random(20240611);
    const auto choose = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int round = 0; round < 400; ++round) {
        const int tracks = 1 + choose(2);
        const int staves = 1 + choose(3);
        makePage(document, tracks, staves, 40 + choose(1900), 472);
        document.TuningTable.assign(static_cast<std::size_t>(tracks * 6 - (choose(9) ? 0 : 3)), 13);
        for (std::int16_t& tuning : document.TuningTable)
            if (choose(3) == 0)
                tuning = static_cast<std::int16_t>(choose(20) ? choose(30) - 2 : choose(60000) - 30000);
        fillAtRandom(document, random, choose(4) ? 2 + choose(8) : 60);
        if (choose(4) == 0) document.setNote(choose(20), choose(5), choose(1) ? "1e5" : "-70");
        if (choose(5) == 0) ResizeGrids(document, 1 + choose(60), tracks * 6);
        if (choose(5) == 0) document.GuitarTrackFlags[0] = False16;
        document.CurrentTrack = static_cast<std::int16_t>(choose(tracks + 1));
        document.CurrentStaff =
            static_cast<std::int16_t>(choose(20) ? 1 + choose(staves) : choose(60000) - 30000);
        document.TopStaff = static_cast<std::int16_t>(choose(staves));
        if (choose(9) == 0) document.ColumnWidth = static_cast<std::int16_t>(choose(20) - 10);
        PlainNotation plain(document, NoteTop);
        const NotationLayout expected = plain.run();
        notation();
        ASSERT_EQ(layout.page, plain.pageOnce()) << round;
        ASSERT_EQ(layout.strip, expected.strip) << round;
        ASSERT_EQ(layout.stems, expected.stems) << round;
        ASSERT_EQ(NoteTop, plain.noteTop()) << round;
    }
}

} // namespace
} // namespace tabrova::testing
