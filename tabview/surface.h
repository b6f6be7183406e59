// A drawing surface that keeps its image until it is cleared, and the two copy operations between surfaces.
// All coordinates are logical pixels; a surface of scale 2, 3 or 4 holds that many image pixels a logical
// pixel, so that one geometry serves screens of every resolution. A copy needs both surfaces at the same
// scale.
#pragma once

#include <QImage>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tabrova {

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    // Places beyond the numbers' range stop at its end.
    int right() const { return edge(left, width); }
    int bottom() const { return edge(top, height); }
    bool operator==(const Rect&) const = default;

  private:
    static int edge(int from, int length) {
        using Numbers = std::numeric_limits<int>;
        const std::int64_t place = static_cast<std::int64_t>(from) + length;
        return static_cast<int>(std::clamp<std::int64_t>(place, Numbers::min(), Numbers::max()));
    }
};

struct Line {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    bool operator==(const Line&) const = default;
};

enum class Raster : unsigned {
    SrcCopy = 0xCC0020,
    SrcAnd = 0x8800C6, // black goes onto what is there, white is transparent
};

class Surface {
  public:
    Surface(int width, int height, QRgb background);
    // An image whose pixels become the surface's, at its own size divided by `scale`.
    Surface(const QImage& image, int scale);

    int width() const { return width_; }
    int height() const { return height_; }
    int scale() const { return scale_; }
    const QImage& image() const { return image_; }
    // Counts as a change of the whole surface.
    QImage& image() { return drawOn({0, 0, width_, height_}); }
    // The image, to draw on within `place`; what lies off the surface is left out.
    QImage& drawOn(const Rect& place);

    // The smallest rectangle around all that was drawn since the last call, without width if nothing was. A
    // new surface and one of a new size or scale have changed as a whole.
    Rect takeChanged();

    // The kept image stays where it was; what is new shows the background. Sizes below 1 count as 1.
    void resize(int width, int height);
    // The kept image is enlarged or made smaller: not sharp, until it is drawn afresh.
    void setScale(int scale);
    void setBackground(QRgb background) { background_ = background; }
    QRgb background() const { return background_; }

    void Cls();

  private:
    QImage blankImage() const;

    int width_;
    int height_;
    int scale_ = 1;
    QRgb background_;
    QImage image_;
    Rect changed_;
};

// What falls outside either surface is left out.
void BitBlt(Surface& to, int x, int y, int width, int height, const Surface& from, int sourceX, int sourceY,
            Raster raster);

// What falls outside the surface is left out.
void fillRect(Surface& to, const Rect& place, QRgb color);

// Enlarges by nearest neighbour; pixels that fall together where it shrinks are combined as by SrcAnd. A
// width or height below 1 draws nothing. `source` must lie on `from`, which may be `to`.
void StretchBlt(Surface& to, const Rect& place, const Surface& from, const Rect& source, Raster raster);

} // namespace tabrova
