#include "tabview/page_tiles.h"

#include <algorithm>

namespace tabrova {

namespace {

std::uint64_t mixed(std::uint64_t number, std::uint64_t with) {
    constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15; // 2 to the 64th divided by the golden ratio
    number = (number ^ with) * Spread;
    return number ^ (number >> 32U);
}

std::uint64_t numberOf(const SpriteCopy& copy) {
    const auto& [place, source, raster, from] = copy;
    std::uint64_t number = 0;
    for (const int part : {place.left, place.top, place.width, place.height, source.left, source.top,
                           source.width, source.height, static_cast<int>(raster), static_cast<int>(from)})
        number = mixed(number, static_cast<std::uint32_t>(part));
    return number;
}

} // namespace

void PageTiles::start(int width, int height, QRgb background) {
    width_ = width;
    height_ = height;
    columns_ = (width + TileSize - 1) / TileSize;
    rows_ = (height + TileSize - 1) / TileSize;
    numbers_.assign(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), background);
}

PageTiles::Tiles PageTiles::touchedBy(const Rect& place) const {
    const int left = std::max(place.left, 0);
    const int top = std::max(place.top, 0);
    const int right = std::min(place.right(), width_);
    const int bottom = std::min(place.bottom(), height_);
    if (left >= right || top >= bottom) return {};
    return {left / TileSize, top / TileSize, (right - 1) / TileSize + 1, (bottom - 1) / TileSize + 1};
}

void PageTiles::add(const SpriteCopy& copy) {
    std::uint64_t number = numberOf(copy);
    if (copy.from == CopyFrom::Page) {
        const Tiles source = touchedBy(copy.source);
        for (int row = source.top; row < source.bottom; ++row)
            for (int column = source.left; column < source.right; ++column)
                number = mixed(number, at(column, row));
    }
    const Tiles touched = touchedBy(copy.place);
    for (int row = touched.top; row < touched.bottom; ++row)
        for (int column = touched.left; column < touched.right; ++column)
            at(column, row) = mixed(at(column, row), number);
}

Rect PageTiles::difference(const PageTiles& other) const {
    if (width_ != other.width_ || height_ != other.height_) return {0, 0, width_, height_};
    Tiles found = {columns_, rows_, 0, 0};
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        if (numbers_[i] == other.numbers_[i]) continue;
        const int column = static_cast<int>(i) % columns_;
        const int row = static_cast<int>(i) / columns_;
        found = {std::min(found.left, column), std::min(found.top, row), std::max(found.right, column + 1),
                 std::max(found.bottom, row + 1)};
    }
    if (found.right == 0) return {};
    const int left = found.left * TileSize;
    const int top = found.top * TileSize;
    return {left, top, std::min(found.right * TileSize, width_) - left,
            std::min(found.bottom * TileSize, height_) - top};
}

} // namespace tabrova
