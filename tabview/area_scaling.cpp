#include "tabview/area_scaling.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace tabrova {

namespace {

constexpr int Whole = 256; // the sum of a pixel's weights
constexpr int Half = Whole / 2;
constexpr std::size_t Block = 16; // bytes that are added at once

// The weighted sum of rows and the mean that it becomes, for all bytes alike. The inner loops have a length
// that the compiler knows and touch nothing outside, so that it adds a whole block at once.
using Sums = std::array<std::uint16_t, Block>;
using Bytes = std::array<uchar, Block>;

void addBlock(Sums& sums, const uchar* row, std::size_t length, unsigned weight) {
    Bytes bytes{};
    std::memcpy(bytes.data(), row, length);
    for (std::size_t i = 0; i < Block; ++i)
        sums[i] = static_cast<std::uint16_t>(sums[i] + bytes[i] * weight);
}

void addRow(std::vector<Sums>& sums, const uchar* row, std::size_t length, unsigned weight) {
    const std::size_t whole = length / Block;
    for (std::size_t i = 0; i < whole; ++i)
        addBlock(sums[i], row + i * Block, Block, weight);
    if (whole < sums.size()) addBlock(sums[whole], row + whole * Block, length - whole * Block, weight);
}

void takeMeans(const std::vector<Sums>& sums, QRgb* means) {
    for (const Sums& block : sums) {
        Bytes bytes;
        for (std::size_t i = 0; i < Block; ++i)
            bytes[i] = static_cast<uchar>(block[i] / Whole);
        std::memcpy(means, bytes.data(), Block);
        means += Block / sizeof(QRgb);
    }
}

// The weighted mean of pixels, for all bytes alike, two of them in one number.
QRgb mean(const QRgb* pixels, const std::uint16_t* weights, int count) {
    constexpr QRgb Halves = 0x00800080, Low = 0x00FF00FF, High = 0xFF00FF00;
    QRgb even = Halves, odd = Halves;
    for (int i = 0; i < count; ++i) {
        even += (pixels[i] & Low) * weights[i];
        odd += (pixels[i] >> 8U & Low) * weights[i];
    }
    return (even >> 8U & Low) | (odd & High);
}

} // namespace

AreaScaling::Axis AreaScaling::axis(int length, double factor) {
    const double covered = 1.0 / factor;
    const int count = std::min(static_cast<int>(std::ceil(covered)) + 1, length);
    const int pixels = static_cast<int>(std::ceil(length * factor - 1e-9));
    Axis axis{count, {}, {}};
    for (int pixel = 0; pixel < pixels; ++pixel) {
        const double from = pixel * covered;
        const double to = std::min(from + covered, static_cast<double>(length));
        const int first = std::clamp(static_cast<int>(from), 0, length - count);
        axis.first.push_back(first);
        int rest = Whole;
        const std::size_t start = axis.weights.size();
        for (int i = first; i < first + count; ++i) {
            const double part = std::max(std::min(to, i + 1.0) - std::max(from, static_cast<double>(i)), 0.0);
            const int weight = static_cast<int>(std::lround(Whole * part / (to - from)));
            axis.weights.push_back(static_cast<std::uint16_t>(weight));
            rest -= weight;
        }
        auto& largest =
            *std::max_element(axis.weights.begin() + static_cast<std::ptrdiff_t>(start), axis.weights.end());
        largest = static_cast<std::uint16_t>(largest + rest);
    }
    return axis;
}

AreaScaling::AreaScaling(QSize from, double factor)
    : from_(from), columns_(axis(from.width(), factor)), rows_(axis(from.height(), factor)) {}

void AreaScaling::draw(QImage& to, const QRect& part, const QImage& from) const {
    const QRect drawn = part.intersected(QRect(QPoint(0, 0), size())).intersected(to.rect());
    if (drawn.isEmpty()) return;
    const auto first = [](const Axis& axis, int pixel) {
        return axis.first[static_cast<std::size_t>(pixel)];
    };
    const int left = first(columns_, drawn.left());
    const auto length = static_cast<std::size_t>(first(columns_, drawn.right()) + columns_.count - left);
    const std::size_t bytes = length * sizeof(QRgb);
    std::vector<Sums> sums((bytes + Block - 1) / Block);
    std::vector<QRgb> means(sums.size() * Block / sizeof(QRgb));
    Sums halves;
    halves.fill(Half);
    for (int y = drawn.top(); y <= drawn.bottom(); ++y) {
        std::ranges::fill(sums, halves);
        for (int i = 0; i < rows_.count; ++i) {
            const unsigned weight = rows_.weights[static_cast<std::size_t>(y * rows_.count + i)];
            const uchar* row =
                from.constScanLine(first(rows_, y) + i) + static_cast<std::size_t>(left) * sizeof(QRgb);
            if (weight != 0) addRow(sums, row, bytes, weight);
        }
        takeMeans(sums, means.data());
        auto* pixels = reinterpret_cast<QRgb*>(to.scanLine(y));
        const std::uint16_t* weights =
            &columns_.weights[static_cast<std::size_t>(drawn.left() * columns_.count)];
        for (int x = drawn.left(); x <= drawn.right(); ++x, weights += columns_.count)
            pixels[x] =
                mean(&means[static_cast<std::size_t>(first(columns_, x) - left)], weights, columns_.count);
    }
}

} // namespace tabrova
