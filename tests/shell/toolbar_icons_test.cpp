// The toolbar's icons: there for every word, told apart, inside their square, sharp at any size, and in the
// theme's colors.
#include "shell/icons/toolbar_icons.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

QIcon iconOf(std::string_view word) {
    return toolbarIcon(QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size())));
}

QImage imageOf(std::string_view word, int side, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal) {
    return iconOf(word)
        .pixmap(QSize(side, side), ratio, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// How much of the picture is ink, 0 to 1.
double coverage(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum / (image.width() * image.height());
}

int pixelsOf(const QImage& image, const QColor& color) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels += image.pixel(x, y) == color.rgb();
    return pixels;
}

bool holdsColor(const QImage& image, const QColor& color) { return pixelsOf(image, color) > 0; }

// How far the picture stands out from its ground: the sum over its pixels.
double contrast(const QImage& image, const QColor& ground) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            sum += std::abs(qGray(qUnpremultiply(pixel)) - qGray(ground.rgb())) * qAlpha(pixel) / 255.0;
        }
    return sum;
}

QPalette themeOf(const QColor& ground, const QColor& ink, const QColor& disabledInk) {
    QPalette theme(ground);
    theme.setColor(QPalette::Window, ground);
    theme.setColor(QPalette::ButtonText, ink);
    theme.setColor(QPalette::Disabled, QPalette::ButtonText, disabledInk);
    return theme;
}

class ToolbarIcons : public ::testing::Test {
  protected:
    ToolbarIcons() { QApplication::setPalette(light); }
    ~ToolbarIcons() override { QApplication::setPalette(before); }

    const QPalette before = QApplication::palette();
    const QPalette light =
        themeOf(QColor(0xef, 0xef, 0xef), QColor(0x20, 0x20, 0x20), QColor(0xa0, 0xa0, 0xa0));
    const QPalette dark =
        themeOf(QColor(0x2b, 0x2b, 0x2b), QColor(0xee, 0xee, 0xee), QColor(0x80, 0x80, 0x80));
};

TEST_F(ToolbarIcons, EveryWordHasOne) {
    for (const auto word : toolbarIconWords)
        EXPECT_FALSE(iconOf(word).isNull()) << word;
}

TEST_F(ToolbarIcons, OtherWordsHaveNone) {
    for (const char* word : {"", "New", "news", "undo"})
        EXPECT_TRUE(iconOf(word).isNull()) << word;
}

TEST_F(ToolbarIcons, NoTwoLookAlike) {
    for (const int side : {16, 20})
        for (size_t one = 0; one < toolbarIconWords.size(); ++one)
            for (size_t other = one + 1; other < toolbarIconWords.size(); ++other)
                EXPECT_NE(imageOf(toolbarIconWords[one], side, 1, QIcon::Disabled),
                          imageOf(toolbarIconWords[other], side, 1, QIcon::Disabled))
                    << toolbarIconWords[one] << " and " << toolbarIconWords[other] << " at " << side;
}

TEST_F(ToolbarIcons, TheInkStaysInsideTheSquare) {
    for (const auto word : toolbarIconWords)
        for (const int side : {16, 20, 24, 32, 40}) {
            QImage image(3 * side, 3 * side, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            const QRect square(side, side, side, side);
            iconOf(word).paint(&painter, square);
            painter.setCompositionMode(QPainter::CompositionMode_Clear);
            painter.fillRect(square, Qt::transparent);
            painter.end();
            EXPECT_EQ(coverage(image), 0) << word << " at " << side;
        }
}

TEST_F(ToolbarIcons, TheInkCoversAFairShare) {
    for (const auto word : toolbarIconWords)
        for (const int side : {16, 20, 40}) {
            const double share = coverage(imageOf(word, side));
            EXPECT_GT(share, 0.08) << word << " at " << side;
            EXPECT_LT(share, 0.45) << word << " at " << side;
        }
}

TEST_F(ToolbarIcons, LargerPicturesAreDrawnAnew) {
    for (const auto word : toolbarIconWords) {
        const QImage doubled = imageOf(word, 20).scaled(40, 40);
        const QImage large = imageOf(word, 40);
        ASSERT_EQ(large.size(), doubled.size());
        EXPECT_NE(large, doubled) << word;
    }
}

TEST_F(ToolbarIcons, AFinerScreenGetsAllItsPixels) {
    for (const auto word : toolbarIconWords) {
        QImage fine = imageOf(word, 20, 2);
        EXPECT_EQ(fine.devicePixelRatio(), 2) << word;
        fine.setDevicePixelRatio(1);
        EXPECT_EQ(fine, imageOf(word, 40)) << word;
    }
}

TEST_F(ToolbarIcons, PaintingIntoAPlaceIsTheSameAsThePixmap) {
    for (const auto word : toolbarIconWords) {
        QImage image(60, 40, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        iconOf(word).paint(&painter, QRect(7, 5, 40, 24));
        painter.end();
        EXPECT_EQ(image.copy(15, 5, 24, 24), imageOf(word, 24)) << word;
    }
}

TEST_F(ToolbarIcons, LinesAcrossAndDownAreSharpAtTheSizesInUse) {
    const QColor ink = light.color(QPalette::ButtonText);
    for (const char* word : {"open", "print", "properties"})
        for (const int side : {16, 20, 24, 32, 40})
            EXPECT_GE(pixelsOf(imageOf(word, side), ink), side) << word << " at " << side;
}

TEST_F(ToolbarIcons, AnIconFollowsTheThemeWithoutBeingMadeAnew) {
    for (const auto word : toolbarIconWords) {
        const QIcon icon = iconOf(word);
        for (const QPalette& theme : {light, dark}) {
            QApplication::setPalette(theme);
            const QColor ink = theme.color(QPalette::ButtonText);
            EXPECT_TRUE(holdsColor(icon.pixmap(40, 40).toImage(), ink)) << word;
        }
        EXPECT_FALSE(holdsColor(icon.pixmap(40, 40).toImage(), light.color(QPalette::ButtonText))) << word;
    }
}

TEST_F(ToolbarIcons, ADisabledIconIsWeaker) {
    for (const QPalette& theme : {light, dark}) {
        QApplication::setPalette(theme);
        const QColor ground = theme.color(QPalette::Window);
        for (const auto word : toolbarIconWords) {
            const QImage disabled = imageOf(word, 20, 1, QIcon::Disabled);
            EXPECT_LT(contrast(disabled, ground), contrast(imageOf(word, 20), ground)) << word;
            EXPECT_TRUE(holdsColor(imageOf(word, 40, 1, QIcon::Disabled),
                                   theme.color(QPalette::Disabled, QPalette::ButtonText)))
                << word;
        }
    }
}

TEST_F(ToolbarIcons, ADisabledIconIsSeenEvenInThemesWithoutAFittingInk) {
    const QColor ground(0x2b, 0x2b, 0x2b);
    const QColor ink(0xee, 0xee, 0xee);
    for (const QColor& unfit : {ink, ground, QColor(Qt::black)}) {
        QApplication::setPalette(themeOf(ground, ink, unfit));
        const double normal = contrast(imageOf("stop", 20), ground);
        const double disabled = contrast(imageOf("stop", 20, 1, QIcon::Disabled), ground);
        EXPECT_GT(disabled, 0.2 * normal);
        EXPECT_LT(disabled, 0.8 * normal);
    }
}

TEST_F(ToolbarIcons, ASelectedIconWearsTheSelectionsInk) {
    const QColor ink = light.color(QPalette::HighlightedText);
    EXPECT_TRUE(holdsColor(imageOf("stop", 20, 1, QIcon::Selected), ink));
}

} // namespace
} // namespace tabrova
