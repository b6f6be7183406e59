// How lines are shared out over pages, and that each character has its place.
#include "platform/fixed_font.h"
#include "platform/printed_pages.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

// Pages of ten characters and six lines.
QList<QStringList> pages(const QString& text) { return pagesOf(text, {10, 6}); }

using Pages = QList<QStringList>;

TEST(PrintedPages, AnEmptyTextIsOneEmptyPage) {
    EXPECT_EQ(pages(""), Pages{QStringList()});
    EXPECT_EQ(pages(" \n \n"), Pages{QStringList()});
}

TEST(PrintedPages, AShortTextStandsAsItIs) {
    EXPECT_EQ(pages("a\n\nb c\n d\n"), (Pages{{"a", "", "b c", " d"}}));
}

TEST(PrintedPages, ABlockThatDoesNotFitGoesToTheNextPage) {
    EXPECT_EQ(pages("1\n2\n3\n \n4\n5\n6\n"), (Pages{{"1", "2", "3", " "}, {"4", "5", "6"}}));
}

TEST(PrintedPages, ABlockThatJustFitsStays) {
    EXPECT_EQ(pages("1\n2\n3\n \n4\n5\n"), (Pages{{"1", "2", "3", " ", "4", "5"}}));
    EXPECT_EQ(pages("1\n2\n3\n4\n5\n6\n"), (Pages{{"1", "2", "3", "4", "5", "6"}}));
}

TEST(PrintedPages, BlankLinesAtTheFootOfAPageGoWithoutRoom) {
    EXPECT_EQ(pages("1\n2\n3\n4\n5\n6\n \n \n7\n"), (Pages{{"1", "2", "3", "4", "5", "6"}, {"7"}}));
}

TEST(PrintedPages, ABlockLongerThanAPageIsBrokenWhereThePageEnds) {
    EXPECT_EQ(pages("1\n2\n3\n4\n5\n6\n7\n8\n"), (Pages{{"1", "2", "3", "4", "5", "6"}, {"7", "8"}}));
    EXPECT_EQ(pages("0\n\n1\n2\n3\n4\n5\n6\n7\n"), (Pages{{"0", ""}, {"1", "2", "3", "4", "5", "6"}, {"7"}}));
}

TEST(PrintedPages, TheFirstPageMayBeginWithBlankLines) {
    EXPECT_EQ(pages("\n \na\n"), (Pages{{"", " ", "a"}}));
}

TEST(PrintedPages, ALongLineGoesOnInTheNext) {
    EXPECT_EQ(pages("0123456789abcde\nf"), (Pages{{"0123456789", "abcde", "f"}}));
    EXPECT_EQ(pages("0123456789\n"), (Pages{{"0123456789"}}));
}

TEST(PrintedPages, BlanksBehindALongLineNeedNoRoom) {
    EXPECT_EQ(pages("012345678  \n0123456789   \na"), (Pages{{"012345678 ", "0123456789", "a"}}));
}

TEST(FixedFont, IsFixedWhateverTheFamily) {
    ASSERT_FALSE(QFontDatabase::families().isEmpty());
    for (const char* family : {"Courier New", "DejaVu Sans", "no such family"}) {
        const QFont font = fixedFont(family, 8);
        EXPECT_TRUE(isFixed(font)) << family << ": " << QFontInfo(font).family().toStdString();
        EXPECT_EQ(font.pointSize(), 8);
    }
    EXPECT_FALSE(isFixed(QFont("DejaVu Sans")));
}

// The columns of pixels that are painted, from the left.
std::vector<int> inked(const QImage& image) {
    std::vector<int> columns;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                columns.push_back(x);
                break;
            }
    return columns;
}

// Of a page of one line.
std::vector<int> inkOf(const QString& line, const QFont& font) {
    QImage image(400, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPage(painter, {line}, font);
    painter.end();
    return inked(image);
}

// In a font without a fixed width too.
TEST(PrintedPages, ACharacterHasItsPlaceWhateverStandsBeforeIt) {
    for (const QFont& font : {QFont("DejaVu Sans", 12), fixedFont("Courier New", 12)}) {
        const std::vector<int> behindNarrow = inkOf("    |", font);
        ASSERT_FALSE(behindNarrow.empty());
        for (const char* line : {"WWWW|", "iiii|", "-12-|"}) {
            const std::vector<int> ink = inkOf(line, font);
            EXPECT_EQ(ink.back(), behindNarrow.back()) << font.family().toStdString() << line;
        }
    }
}

TEST(PrintedPages, LinesStandBelowEachOther) {
    QImage image(100, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QFont font = fixedFont("Courier New", 10);
    QPainter painter(&image);
    paintPage(painter, {"M", "", "M"}, font);
    painter.end();
    const double height = characterSize(font, image).height();
    EXPECT_DOUBLE_EQ(height, QFontMetricsF(font, &image).lineSpacing());
    const int step = qRound(2 * height);
    EXPECT_EQ(image.copy(0, 0, 100, step), image.copy(0, step, 100, step));
}

} // namespace
} // namespace tabrova
