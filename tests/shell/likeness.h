// Pictures with smooth edges, which the toolkit's versions and its ways to the same pixels round a little
// differently.
#pragma once

#include <QImage>

#include <algorithm>

namespace tabrova::testing {

// What is wanted, wherever no channel of what is seen differs from it by more than six.
inline QImage withSmallDifferencesTakenOut(QImage seen, const QImage& wanted) {
    constexpr int Likeness = 6;
    for (int y = 0; y < std::min(seen.height(), wanted.height()); ++y)
        for (int x = 0; x < std::min(seen.width(), wanted.width()); ++x) {
            const QRgb a = seen.pixel(x, y), b = wanted.pixel(x, y);
            const int most = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                       std::abs(qBlue(a) - qBlue(b))});
            if (most <= Likeness) seen.setPixel(x, y, b);
        }
    return seen;
}

} // namespace tabrova::testing
