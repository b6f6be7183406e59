// A picture brought to another size is, pixel by pixel, the mean of what each pixel covers.
#include "tabview/area_scaling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace tabrova {
namespace {

constexpr int (*Colors[])(QRgb) = {qRed, qGreen, qBlue};

QImage randomPicture(int width, int height, std::mt19937& random) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, 0xFF000000U | (random() & 0xFFFFFFU));
    return image;
}

QImage scaled(const QImage& from, double factor) {
    const AreaScaling scaling(from.size(), factor);
    QImage to(scaling.size(), QImage::Format_RGB32);
    scaling.draw(to, to.rect(), from);
    return to;
}

// The mean of one colour over the area that a pixel covers.
double plainMean(const QImage& from, int x, int y, double covered, int (*color)(QRgb)) {
    const double right = std::min((x + 1) * covered, static_cast<double>(from.width()));
    const double bottom = std::min((y + 1) * covered, static_cast<double>(from.height()));
    double sum = 0.0;
    double area = 0.0;
    for (int row = static_cast<int>(y * covered); row < bottom; ++row)
        for (int column = static_cast<int>(x * covered); column < right; ++column) {
            const double width = std::min(column + 1.0, right) - std::max<double>(column, x * covered);
            const double height = std::min(row + 1.0, bottom) - std::max<double>(row, y * covered);
            if (width <= 0.0 || height <= 0.0) continue;
            sum += color(from.pixel(column, row)) * width * height;
            area += width * height;
        }
    return sum / area;
}

class AreaScalingBy : public ::testing::TestWithParam<double> {
  protected:
    std::mt19937 random{11};
};

TEST_P(AreaScalingBy, EveryPixelIsTheMeanOfWhatItCovers) {
    for (const QSize size : {QSize(40, 24), QSize(37, 23), QSize(2, 3)}) {
        const QImage from = randomPicture(size.width(), size.height(), random);
        const QImage to = scaled(from, GetParam());
        for (int y = 0; y < to.height(); ++y)
            for (int x = 0; x < to.width(); ++x)
                for (int (*const color)(QRgb) : Colors)
                    ASSERT_NEAR(color(to.pixel(x, y)), plainMean(from, x, y, 1.0 / GetParam(), color), 2.5)
                        << x << ", " << y << " of " << size.width() << " x " << size.height();
    }
}

TEST_P(AreaScalingBy, ThePictureHasItsSize) {
    for (const int length : {1, 7, 8, 40, 1001}) {
        const QSize size = AreaScaling({length, 2 * length}, GetParam()).size();
        EXPECT_EQ(size.width(), static_cast<int>(std::ceil(length * GetParam() - 1e-6)));
        EXPECT_EQ(size.height(), static_cast<int>(std::ceil(2 * length * GetParam() - 1e-6)));
    }
}

TEST_P(AreaScalingBy, OneColourStaysThatColour) {
    for (const QRgb color : {0xFFFFFFFFU, 0xFF000000U, 0xFFFFFEF2U, 0xFF010203U}) {
        QImage from(33, 21, QImage::Format_RGB32);
        from.fill(color);
        const QImage to = scaled(from, GetParam());
        for (int y = 0; y < to.height(); ++y)
            for (int x = 0; x < to.width(); ++x)
                ASSERT_EQ(to.pixel(x, y), color);
    }
}

TEST_P(AreaScalingBy, APartHasThePixelsOfTheWholeAndLeavesTheRestAlone) {
    constexpr QRgb Untouched = 0xFF123456;
    const QImage from = randomPicture(61, 43, random);
    const AreaScaling scaling(from.size(), GetParam());
    const QImage whole = scaled(from, GetParam());
    const auto choose = [this](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    for (int round = 0; round < 200; ++round) {
        const QRect part(choose(-3, whole.width() + 2), choose(-3, whole.height() + 2), choose(0, 30),
                         choose(0, 30));
        QImage to(whole.size(), QImage::Format_RGB32);
        to.fill(Untouched);
        scaling.draw(to, part, from);
        for (int y = 0; y < to.height(); ++y)
            for (int x = 0; x < to.width(); ++x)
                ASSERT_EQ(to.pixel(x, y), part.contains(x, y) ? whole.pixel(x, y) : Untouched)
                    << x << ", " << y << " of " << part.x() << ", " << part.y();
    }
}

TEST_P(AreaScalingBy, NothingIsDrawnBesideASmallerOrLargerPicture) {
    const QImage from = randomPicture(20, 20, random);
    const AreaScaling scaling(from.size(), GetParam());
    QImage small(scaling.size().width() - 1, scaling.size().height() - 1, QImage::Format_RGB32);
    scaling.draw(small, QRect(0, 0, 1000, 1000), from);
    EXPECT_EQ(small, scaled(from, GetParam()).copy(small.rect()));
    QImage large(scaling.size() + QSize(5, 5), QImage::Format_RGB32);
    large.fill(0xFF123456);
    scaling.draw(large, large.rect(), from);
    EXPECT_EQ(large.copy(QRect(QPoint(0, 0), scaling.size())), scaled(from, GetParam()));
    EXPECT_EQ(large.pixel(scaling.size().width(), 0), 0xFF123456);
    EXPECT_EQ(large.pixel(0, scaling.size().height()), 0xFF123456);
}

INSTANTIATE_TEST_SUITE_P(Factors, AreaScalingBy,
                         ::testing::Values(0.5, 0.625, 0.75, 0.8333, 0.9375, 1.0, 1.25, 2.0, 0.1));

} // namespace
} // namespace tabrova
