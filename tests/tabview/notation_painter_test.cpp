// The notation's pixels, on the strip and on the page, at every scale.
#include "tabview/tab_view.h"
#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"
#include "tests/tabview/plain_notation.h"

namespace tabrova::testing {
namespace {

constexpr QRgb Black = 0xFF000000;
constexpr QRgb White = 0xFFFFFFFF;

class NotationPixels : public ::testing::Test {
  protected:
    NotationPixels() {
        makePage(document, 1, 3, 984, 472);
        view.picDocument.resize(984, 472);
        view.picStandardNotation.resize(1010, 168);
    }

    void draw() {
        view.picDocument.Cls();
        view.picStandardNotation.Cls();
        view.DrawNotationAndRhythm(document);
    }
    QRgb strip(int x, int y) const { return colorAt(view.picStandardNotation.image(), x, y); }
    QRgb page(int x, int y) const { return colorAt(view.picDocument.image(), x, y); }

    Document document;
    TabView view;
};

TEST_F(NotationPixels, AHeadItsStemAndItsBeam) {
    document.setNote(0, 0, "0");
    document.setNote(1, 0, "0");
    document.setNote(2, 0, "0");
    draw();
    EXPECT_EQ(strip(40, 90), Black); // the filled head's middle
    for (int y = 65; y <= 89; ++y)
        EXPECT_EQ(strip(44, y), Black) << y;
    EXPECT_EQ(strip(44, 64), White);
    for (const int x : {45, 60, 72}) {
        EXPECT_EQ(strip(x, 65), Black);
        EXPECT_EQ(strip(x, 66), Black);
        EXPECT_EQ(strip(x, 67), White);
        EXPECT_EQ(strip(x, 74), Black); // the fourth beam
    }
}

TEST_F(NotationPixels, OpenHeadsAreOpenAndWholeNotesHaveNoStem) {
    document.setNote(0, 0, "0");
    document.setNote(8, 0, "0");
    draw();
    EXPECT_EQ(strip(41, 90), White); // the half note's middle
    EXPECT_EQ(strip(44, 70), Black);
    EXPECT_EQ(strip(37 + 8 * 29 + 4, 90), White);
    for (int y = 60; y < 85; ++y)
        EXPECT_EQ(strip(44 + 8 * 29, y), White) << y;
}

TEST_F(NotationPixels, TheRhythmBelowTheTab) {
    document.setNote(0, 5, "0");
    document.setNote(2, 5, "0"); // an eighth
    draw();
    for (int y = 85; y <= 102; ++y)
        EXPECT_EQ(page(27, y), Black) << y;
    for (int y = 85; y <= 102; ++y)
        EXPECT_EQ(page(27 + 58, y), Black) << y;
    EXPECT_EQ(page(50, 102), Black);
    EXPECT_EQ(page(50, 94), PaperColor);
}

TEST_F(NotationPixels, AWholeNoteWipesWhatStandsLeftOfIt) {
    document.setNote(4, 5, "0");
    view.picStandardNotation.Cls();
    view.picDocument.setBackground(WhitePaper);
    view.picDocument.Cls();
    view.picDocument.image().fill(Black);
    view.picDocument.image().setPixel(1, 1, 0xFF123456);
    view.DrawNotationAndRhythm(document);
    const int left = 29 * 3 + 35;
    EXPECT_EQ(page(left, 85), 0xFF123456);
    EXPECT_EQ(page(left + 20, 102), 0xFF123456);
    EXPECT_EQ(page(left - 1, 85), Black);
    EXPECT_EQ(page(left + 21, 85), Black);
    EXPECT_EQ(page(left, 103), Black);
}

TEST_F(NotationPixels, APageWithoutAPixelToWipeWith) {
    document.setNote(0, 5, "0");
    draw();
    const QImage strip = view.picStandardNotation.image().copy();
    for (const int width : {984, 1}) {
        view.picDocument.resize(width, 1);
        draw();
        EXPECT_TRUE(sameImage(view.picStandardNotation.image(), strip, "strip_of_a_flat_page"));
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(page(x, 0), PaperColor) << x;
    }
    document.CurrentStaff = 0; // its slot lies above the page
    draw();
    EXPECT_EQ(page(0, 0), PaperColor);
    QImage blank = strip;
    blank.fill(White);
    EXPECT_TRUE(sameImage(view.picStandardNotation.image(), blank, "strip_of_no_staff"));
}

TEST_F(NotationPixels, TechniquesStandBesideTheirHead) {
    document.setNote(0, 0, "0");
    document.setTechnique(0, 0, "r");
    draw();
    // The arrow's shaft is row 3 of its piece.
    EXPECT_EQ(strip(49 + 10, 76 + 3), Black);
}

TEST_F(NotationPixels, EqualTheCopiesCarriedOutPixelByPixelAtEveryScale) {
    std::mt19937 random(5);
    for (int round = 0; round < 9; ++round) {
        const int scale = 1 + round % 4;
        makePage(document, 1, 2, 700, 230);
        fillAtRandom(document, random, 4 + round * 6);
        view.setScale(scale);
        view.picDocument.resize(700, 230);
        view.picStandardNotation.resize(726, 168);
        const NotationLayout layout = PlainNotation(document, 0).run();
        TabView fresh;
        fresh.setScale(scale);
        fresh.picDocument.resize(700, 230);
        fresh.picStandardNotation.resize(726, 168);
        QImage page = fresh.picDocument.image();
        QImage strip = fresh.picStandardNotation.image();
        page.fill(PaperColor);
        strip.fill(White);
        const QImage& sheet = fresh.picSource().image();
        for (const SpriteCopy& copy : layout.page)
            carryOut(page, copy.from == CopyFrom::Page ? QImage(page) : sheet, copy, scale);
        for (const SpriteCopy& copy : layout.strip)
            carryOut(strip, sheet, copy, scale);
        for (const Line& line : layout.stems)
            for (int y = line.y2 * scale; y < (line.y1 + 1) * scale; ++y)
                for (int x = line.x1 * scale; x < (line.x1 + 1) * scale; ++x)
                    if (strip.rect().contains(x, y)) strip.setPixel(x, y, Black);
        fresh.picDocument.Cls();
        fresh.picStandardNotation.Cls();
        fresh.DrawNotationAndRhythm(document);
        ASSERT_TRUE(sameImage(fresh.picDocument.image(), page, "rhythm"));
        ASSERT_TRUE(sameImage(fresh.picStandardNotation.image(), strip, "notation"));
    }
}

} // namespace
} // namespace tabrova::testing
