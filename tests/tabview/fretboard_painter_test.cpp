// The fretboard's pixels: lines, inlays, labels, and dots in every cursor color.
#include "tabview/tab_view.h"
#include "tests/tabview/page_helpers.h"
#include "tests/tabview/plain_blitter.h"

#include <QPainter>

#include <cmath>
#include <set>

namespace tabrova::testing {
namespace {

constexpr QRgb Black = 0xFF000000;
constexpr QRgb Grey = 0xFFB8B8B8;
constexpr QRgb CursorColors[] = {0xFFFF0000, 0xFF0000FF, 0xFF308CC6, 0xFF008000, 0xFFFF8000, 0xFF000000};

class NeckPixels : public ::testing::Test {
  protected:
    NeckPixels() {
        makePage(document, 1, 1, 984, 472);
        view.picFretboard.resize(89, 465); // pitch 15
    }
    void draw(QRgb dot = CursorColor) { view.DrawFretBoard(document, {dot, Grey}); }
    QRgb at(int x, int y) const { return colorAt(view.picFretboard.image(), x, y); }
    // Something darker than the paper stands in this part.
    bool inkIn(const Rect& part) const {
        for (int y = part.top; y < part.bottom(); ++y)
            for (int x = part.left; x < part.right(); ++x)
                if (qGray(at(x, y)) < 128) return true;
        return false;
    }

    // Left of the neck and of every dot, where only numbers are.
    bool labelInRow(int y) const {
        for (int x = 0; x < 15 * view.picFretboard.scale(); ++x)
            if (at(x, y) != PaperColor) return true;
        return false;
    }
    // The most rows without a number that follow one another.
    int blankRowsBetween(int top, int bottom) const {
        int most = 0;
        int rows = 0;
        for (int y = top; y < bottom; ++y) {
            rows = labelInRow(y) ? 0 : rows + 1;
            most = std::max(most, rows);
        }
        return most;
    }

    // A neck without notes, from its rules alone.
    static QImage plainNeck(int height, int scale) {
        QImage image(89 * scale, height * scale, QImage::Format_RGB32);
        image.fill(PaperColor);
        const auto box = [&](int left, int y1, int right, int y2, QRgb color) {
            for (int y = std::max(0, std::min(y1, y2)); y <= std::min(height - 1, std::max(y1, y2)); ++y)
                for (int x = left * scale; x < (right + 1) * scale; ++x)
                    for (int line = y * scale; line < (y + 1) * scale; ++line)
                        image.setPixel(x, line, color);
        };
        const int pitch = static_cast<int>(std::nearbyint((height - 30) / 29.0));
        const std::set<int> inlaid = {3, 5, 7, 9, 12, 15, 17, 19, 21, 23, 25, 27, 29};
        for (int fret = 0; fret < 30; ++fret) {
            const int y = pitch * fret + 15;
            box(20, y, 70, y, Black);
            if (inlaid.contains(fret + 1)) box(35, y + 5, 55, y + pitch - 5, Grey);
        }
        for (int x = 20; x <= 70; x += 10)
            box(x, 15, x, 29 * (29 * pitch + 15), Black);
        if (pitch < 1) return image;
        const int step = static_cast<int>(std::ceil(8.0 / pitch));
        const int size = std::max(8, std::min(11, step * pitch - 2));
        QPainter painter(&image);
        QFont font;
        font.setFamilies({"Tahoma", "Verdana", "DejaVu Sans", "Noto Sans"});
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(size * scale);
        painter.setFont(font);
        for (int fret = step; fret < 30; fret += step)
            painter.drawText(4 * scale, (pitch * fret + 15 + (size > 9 ? 4 : 3)) * scale,
                             QString::number(fret));
        return image;
    }

    Document document;
    TabView view;
};

TEST_F(NeckPixels, LinesStringsAndInlays) {
    draw();
    for (int fret = 0; fret < 30; ++fret)
        for (int x = 20; x <= 70; ++x)
            EXPECT_EQ(at(x, 15 * fret + 15), Black) << x << " of " << fret;
    EXPECT_EQ(at(19, 15), PaperColor);
    EXPECT_EQ(at(71, 15), PaperColor);
    for (const int x : {20, 30, 40, 50, 60, 70}) {
        EXPECT_EQ(at(x, 14), PaperColor);
        for (int y = 15; y < 465; ++y)
            EXPECT_EQ(at(x, y), Black) << y;
    }
    EXPECT_EQ(at(45, 15 * 2 + 15 + 5), Grey);
    EXPECT_EQ(at(35, 15 * 2 + 15 + 10), Grey);
    EXPECT_EQ(at(55, 15 * 2 + 15 + 10), Grey);
    EXPECT_EQ(at(45, 15 * 2 + 15 + 4), PaperColor);
    EXPECT_EQ(at(45, 15 * 2 + 15 + 11), PaperColor);
    EXPECT_EQ(at(45, 15 * 3 + 15 + 7), PaperColor);
}

TEST_F(NeckPixels, EveryFretButTheOpenStringHasALabel) {
    draw();
    EXPECT_FALSE(inkIn({0, 0, 19, 23}));
    for (int fret = 1; fret < 30; ++fret)
        EXPECT_TRUE(inkIn({4, 15 * fret + 15 - 4, 15, 9})) << fret;
    EXPECT_FALSE(inkIn({0, 0, 4, 465}));
}

TEST_F(NeckPixels, DotsAreClearInEveryCursorColor) {
    document.setNote(0, 2, "7");
    for (const QRgb color : CursorColors) {
        draw(color);
        const int x = 50, y = 15 * 7 + 15;
        for (int offset = -3; offset < 3; ++offset) {
            EXPECT_EQ(at(x + offset, y), color);
            EXPECT_EQ(at(x, y + offset), color);
        }
        for (const int edge : {-5, 4}) {
            EXPECT_EQ(at(x + edge, y), Black);
            EXPECT_EQ(at(x, y + edge), Black);
        }
        EXPECT_EQ(at(x + 5, y - 3), PaperColor);
        EXPECT_EQ(at(x + 5, y + 3), PaperColor);
    }
}

TEST_F(NeckPixels, ARedrawClearsWhatStoodThere) {
    draw();
    const QImage empty = view.picFretboard.image();
    document.setNote(0, 2, "7");
    draw();
    EXPECT_NE(view.picFretboard.image(), empty);
    document.setNote(0, 2, "x");
    draw();
    EXPECT_TRUE(sameImage(view.picFretboard.image(), empty, "neck"));
}

TEST_F(NeckPixels, AnySurfaceAndAnyColumnIsDrawn) {
    for (const int column : {0, -5, 1 << 30}) {
        document.CurrentColumn = column;
        for (const int height : {1, 2, 15, 16, 30, 44, 45, 200, 1700})
            for (const int scale : {1, 2, 3, 4}) {
                view.setScale(scale);
                view.picFretboard.resize(89, height);
                draw();
                // Frets as close as this bring the dots of empty strings onto the neck.
                const bool dotsShown = fretPitch(height) == 0 || fretPitch(height) == 1;
                const QRect part(0, 0, (dotsShown ? 15 : 89) * scale, height * scale);
                ASSERT_TRUE(sameImage(view.picFretboard.image().copy(part),
                                      plainNeck(height, scale).copy(part), "any_neck"))
                    << height << " at scale " << scale << ", column " << column;
            }
    }
}

TEST_F(NeckPixels, LabelsStandFourFromTheLeftInTheMiddleOfTheirLines) {
    for (const int scale : {1, 2, 3, 4}) {
        view.setScale(scale);
        draw();
        const QImage expected = plainNeck(465, scale);
        const QRect labels(0, 0, 20 * scale, 465 * scale);
        ASSERT_TRUE(sameImage(view.picFretboard.image().copy(labels), expected.copy(labels), "labels"));
    }
}

TEST_F(NeckPixels, NumbersTouchAtNoHeight) {
    for (int scale = 1; scale <= FinestScale; ++scale) {
        view.setScale(scale);
        for (int height = 1; height <= 700; ++height) {
            view.picFretboard.resize(89, height);
            draw();
            int last = 0;
            for (const NeckFret& fret : layoutFretboard(document, height).frets) {
                if (!fret.labelled || fret.y >= height) continue;
                ASSERT_TRUE(labelInRow(fret.y * scale)) << fret.number << ", " << height << " at " << scale;
                ASSERT_GE(blankRowsBetween(last, fret.y * scale), scale) << height << " at " << scale;
                last = fret.y * scale;
            }
        }
    }
}

TEST_F(NeckPixels, LinesStandAtTheSamePlacesOnFinerScreens) {
    for (const int scale : {2, 3, 4}) {
        view.setScale(scale);
        document.setNote(0, 2, "7");
        draw();
        EXPECT_EQ(at(25 * scale, 30 * scale), Black);
        EXPECT_EQ(at(25 * scale, 31 * scale - 1), Black);
        EXPECT_EQ(at(25 * scale, 31 * scale), PaperColor);
        EXPECT_EQ(at(45 * scale, 52 * scale), Grey);
        EXPECT_EQ(at(50 * scale, 120 * scale), CursorColor);
    }
}

} // namespace
} // namespace tabrova::testing
