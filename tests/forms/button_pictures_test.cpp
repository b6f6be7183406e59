// The pictures of buttons: each is another one, stands upright in its place, and suits the theme.
#include "forms/button_pictures.h"

#include "tests/shell/likeness.h"
#include "tests/tabview/plain_blitter.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <memory>

namespace tabrova {
namespace {

constexpr std::array AllPictures = {
    ButtonPicture::ArrowUp, ButtonPicture::ArrowLeft, ButtonPicture::ArrowDown, ButtonPicture::ArrowRight,
    ButtonPicture::Plus,    ButtonPicture::Bin,       ButtonPicture::Play};

QImage shown(ButtonPicture picture, QRgb text = 0xFF000000, int scale = 1) {
    const std::unique_ptr<PictureButton> button(pictureButton("picture", picture, nullptr));
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, QColor::fromRgb(text));
    button->setPalette(palette);
    button->resize(button->sizeHint());
    QImage image(button->size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    button->render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QRect inked(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 100) ink |= QRect(x, y, 1, 1);
    return ink;
}

TEST(ButtonPictures, StandInTheMiddleOfTheirButtonsAndFillThem) {
    for (const ButtonPicture picture : AllPictures) {
        const QImage image = shown(picture);
        EXPECT_EQ(image.size(), QSize(28, 28));
        const QRect ink = inked(image);
        EXPECT_TRUE(image.rect().adjusted(4, 4, -4, -4).contains(ink)) << static_cast<int>(picture);
        EXPECT_GE(std::max(ink.width(), ink.height()), 14) << static_cast<int>(picture);
        EXPECT_NEAR(ink.center().x(), 13.5, 2) << static_cast<int>(picture);
        EXPECT_NEAR(ink.center().y(), 13.5, 1) << static_cast<int>(picture);
    }
}

// One row of them, each at twice its size; a new one is looked at before it takes the fixture's place.
TEST(ButtonPictures, AreThoseThatWereLookedAt) {
    constexpr int Side = 56;
    QImage row(Side * static_cast<int>(AllPictures.size()), Side, QImage::Format_RGB32);
    row.fill(Qt::white);
    {
        QPainter painter(&row);
        for (std::size_t each = 0; each < AllPictures.size(); ++each) {
            QImage picture = shown(AllPictures[each], 0xFF000000, 2);
            picture.setDevicePixelRatio(1);
            painter.drawImage(Side * static_cast<int>(each), 0, picture);
        }
    }
    const QImage wanted =
        QImage(TABROVA_FIXTURES "/button_pictures.png").convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(
        testing::sameImage(testing::withSmallDifferencesTakenOut(row, wanted), wanted, "button_pictures"));
}

TEST(ButtonPictures, DifferFromEachOther) {
    for (const ButtonPicture one : AllPictures)
        for (const ButtonPicture other : AllPictures)
            EXPECT_EQ(one == other, shown(one) == shown(other))
                << static_cast<int>(one) << " " << static_cast<int>(other);
}

// The tip is narrower than the shaft's end.
TEST(ButtonPictures, ArrowsPointWhereTheyMove) {
    const auto widthOfRow = [](const QImage& image, int row) {
        int width = 0;
        for (int x = 0; x < image.width(); ++x)
            width += qAlpha(image.pixel(x, row)) > 100;
        return width;
    };
    const QImage up = shown(ButtonPicture::ArrowUp), down = shown(ButtonPicture::ArrowDown);
    EXPECT_LT(widthOfRow(up, inked(up).top()), widthOfRow(up, inked(up).bottom()));
    EXPECT_GT(widthOfRow(down, inked(down).top()), widthOfRow(down, inked(down).bottom()));
    const QTransform clockwise = QTransform().rotate(90), back = QTransform().rotate(-90);
    const QImage right = shown(ButtonPicture::ArrowRight).transformed(back);
    const QImage left = shown(ButtonPicture::ArrowLeft).transformed(clockwise);
    EXPECT_LT(widthOfRow(right, inked(right).top()), widthOfRow(right, inked(right).bottom()));
    EXPECT_LT(widthOfRow(left, inked(left).top()), widthOfRow(left, inked(left).bottom()));
}

TEST(ButtonPictures, HaveTheColorOfTheText) {
    EXPECT_EQ(shown(ButtonPicture::Plus, 0xFFF0E0D0).pixel(14, 14), 0xFFF0E0D0);
    EXPECT_EQ(shown(ButtonPicture::Plus, 0xFF102030).pixel(14, 14), 0xFF102030);
}

TEST(ButtonPictures, AreSharpOnFinerScreens) {
    const QImage plus = shown(ButtonPicture::Plus, 0xFF000000, 2);
    for (int y = 0; y < plus.height(); ++y)
        for (int x = 0; x < plus.width(); ++x)
            EXPECT_TRUE(qAlpha(plus.pixel(x, y)) == 0 || qAlpha(plus.pixel(x, y)) == 255) << x << "," << y;
}

} // namespace
} // namespace tabrova
