// Carries a list of copies out one pixel at a time, by the meaning of the two raster operations alone, and
// compares images; of two that differ, the actual one and the difference are written beside the test program.
#pragma once

#include "tabview/sprites.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>

namespace tabrova {

inline void PrintTo(const Rect& rect, std::ostream* out) {
    *out << rect.left << ',' << rect.top << ' ' << rect.width << 'x' << rect.height;
}

inline void PrintTo(const Line& line, std::ostream* out) {
    *out << line.x1 << ',' << line.y1 << " to " << line.x2 << ',' << line.y2;
}

inline void PrintTo(const SpriteCopy& copy, std::ostream* out) {
    *out << "to ";
    PrintTo(copy.place, out);
    *out << " from ";
    PrintTo(copy.source, out);
    *out << (copy.raster == Raster::SrcCopy ? " copy" : " and");
}

namespace testing {

// The color channels, without what stands in the unused byte.
inline QRgb colorAt(const QImage& image, int x, int y) { return image.pixel(x, y) | 0xFF000000u; }

// All rectangles in logical pixels of `scale` image pixels. What falls outside either image is left out.
inline void carryOut(QImage& to, const QImage& from, const SpriteCopy& copy, int scale = 1) {
    const int width = copy.place.width * scale;
    const int height = copy.place.height * scale;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int toX = copy.place.left * scale + x;
            const int toY = copy.place.top * scale + y;
            const int fromX = copy.source.left * scale + x * copy.source.width / copy.place.width;
            const int fromY = copy.source.top * scale + y * copy.source.height / copy.place.height;
            if (!to.rect().contains(toX, toY) || !from.rect().contains(fromX, fromY)) continue;
            const int nextX = copy.source.left * scale + (x + 1) * copy.source.width / copy.place.width;
            const int nextY = copy.source.top * scale + (y + 1) * copy.source.height / copy.place.height;
            QRgb source = colorAt(from, fromX, fromY);
            for (int alsoY = fromY; alsoY == fromY || alsoY < nextY; ++alsoY)
                for (int alsoX = fromX; alsoX == fromX || alsoX < nextX; ++alsoX)
                    source &= colorAt(from, alsoX, alsoY);
            const QRgb under = colorAt(to, toX, toY);
            to.setPixel(toX, toY, copy.raster == Raster::SrcCopy ? source : source & under);
        }
}

inline QImage differenceOf(const QImage& actual, const QImage& expected) {
    QImage difference(actual.size().expandedTo(expected.size()), QImage::Format_RGB32);
    for (int y = 0; y < difference.height(); ++y)
        for (int x = 0; x < difference.width(); ++x) {
            const bool inside = actual.rect().contains(x, y) && expected.rect().contains(x, y);
            const bool same = inside && colorAt(actual, x, y) == colorAt(expected, x, y);
            difference.setPixel(x, y, same ? qRgb(255, 255, 255) : qRgb(255, 0, 0));
        }
    return difference;
}

inline ::testing::AssertionResult sameImage(const QImage& actual, const QImage& expected,
                                            const std::string& name) {
    if (actual == expected) return ::testing::AssertionSuccess();
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const std::string start = (folder / name).string();
    actual.save(QString::fromStdString(start + "_actual.png"));
    differenceOf(actual, expected).save(QString::fromStdString(start + "_difference.png"));
    return ::testing::AssertionFailure() << "see " << start << "_actual.png and _difference.png";
}

} // namespace testing
} // namespace tabrova
