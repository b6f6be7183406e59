// What a page is made of, tile by tile: a number for its background and all copies that touched the tile, in
// their order. Two pages look alike wherever their numbers are alike, so that a page drawn afresh tells where
// it came out different without a look at its pixels.
#pragma once

#include "tabview/sprites.h"

#include <cstdint>
#include <vector>

namespace tabrova {

class PageTiles {
  public:
    static constexpr int TileSize = 16; // logical pixels, width and height

    // An empty page of this size, in logical pixels.
    void start(int width, int height, QRgb background);
    void add(const SpriteCopy& copy);

    // The smallest rectangle of whole tiles, cut at the page's edges, around all that differs; without width
    // if nothing does. Pages of different sizes differ everywhere.
    Rect difference(const PageTiles& other) const;

  private:
    struct Tiles {
        int left, top, right, bottom; // right and bottom are the first ones behind
    };
    Tiles touchedBy(const Rect& place) const;
    std::uint64_t& at(int column, int row) {
        return numbers_[static_cast<std::size_t>(row * columns_ + column)];
    }

    int width_ = 0;
    int height_ = 0;
    int columns_ = 0;
    int rows_ = 0;
    std::vector<std::uint64_t> numbers_;
};

} // namespace tabrova
