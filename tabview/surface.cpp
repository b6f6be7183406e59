#include "tabview/surface.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace tabrova {

namespace {

QRgb* row(QImage& image, int y) { return reinterpret_cast<QRgb*>(image.scanLine(y)); }
const QRgb* row(const QImage& image, int y) { return reinterpret_cast<const QRgb*>(image.constScanLine(y)); }

void copyPixels(QRgb* to, const QRgb* from, int count, Raster raster) {
    if (raster == Raster::SrcCopy) {
        std::memcpy(to, from, static_cast<std::size_t>(count) * sizeof(QRgb));
        return;
    }
    for (int i = 0; i < count; ++i)
        to[i] &= from[i];
}

// The part of one axis that lies on both surfaces: positions first to end - 1 of the copy.
struct Span {
    int first;
    int end;
};

Span clip(int to, int toLimit, int from, int fromLimit, int length) {
    return {std::max({0, -to, -from}), std::min({length, toLimit - to, fromLimit - from})};
}

Rect scaled(const Rect& rect, int scale) {
    return {rect.left * scale, rect.top * scale, rect.width * scale, rect.height * scale};
}

// A stretch takes the same columns in every row, so their sources are found once.
void sourceColumns(std::vector<int>& columns, const Rect& place, const Rect& source, Span span) {
    columns.resize(static_cast<std::size_t>(span.end - span.first));
    const int whole = source.width / place.width;
    const int part = source.width % place.width;
    int at = static_cast<int>(static_cast<qint64>(span.first) * source.width / place.width);
    int rest = static_cast<int>(static_cast<qint64>(span.first) * source.width % place.width);
    for (int& column : columns) {
        column = source.left + at;
        at += whole;
        rest += part;
        if (rest >= place.width) {
            rest -= place.width;
            ++at;
        }
    }
}

// The source pixels that fall on one target pixel. A stretch that shrinks leaves none out.
Span sourcePixels(int target, int sourceLength, int targetLength) {
    const auto first = static_cast<int>(static_cast<qint64>(target) * sourceLength / targetLength);
    const auto next = static_cast<int>(static_cast<qint64>(target + 1) * sourceLength / targetLength);
    return {first, std::max(next, first + 1)};
}

// Pixels that fall together are combined as by SrcAnd: no stroke of a sprite is lost.
void shrink(QImage& image, const Rect& target, Span xs, Span ys, const QImage& from, const Rect& piece,
            Raster raster) {
    for (int line = ys.first; line < ys.end; ++line) {
        const Span lines = sourcePixels(line, piece.height, target.height);
        QRgb* to = row(image, target.top + line) + target.left;
        for (int column = xs.first; column < xs.end; ++column) {
            const Span columns = sourcePixels(column, piece.width, target.width);
            QRgb pixel = ~QRgb{0};
            for (int y = lines.first; y < lines.end; ++y)
                for (int x = columns.first; x < columns.end; ++x)
                    pixel &= row(from, piece.top + y)[piece.left + x];
            to[column] = raster == Raster::SrcAnd ? to[column] & pixel : pixel;
        }
    }
}

bool isOneColor(const QRgb* pixels, int count) {
    return count == 1 ||
           std::memcmp(pixels, pixels + 1, static_cast<std::size_t>(count - 1) * sizeof(QRgb)) == 0;
}

void stretchRow(QRgb* to, const QRgb* from, const Rect& source, const std::vector<int>& columns,
                Raster raster) {
    if (raster == Raster::SrcAnd) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            to[i] &= from[columns[i]];
    } else if (isOneColor(from + source.left, source.width)) {
        std::fill_n(to, columns.size(), from[source.left]);
    } else {
        for (std::size_t i = 0; i < columns.size(); ++i)
            to[i] = from[columns[i]];
    }
}

} // namespace

Surface::Surface(int width, int height, QRgb background)
    : width_(std::max(width, 1)), height_(std::max(height, 1)), background_(background),
      image_(blankImage()), changed_{0, 0, width_, height_} {}

Surface::Surface(const QImage& image, int scale)
    : width_(image.width() / scale), height_(image.height() / scale), scale_(scale),
      background_(qRgb(255, 255, 255)),
      image_(image.convertToFormat(QImage::Format_RGB32)), changed_{0, 0, width_, height_} {}

QImage& Surface::drawOn(const Rect& place) {
    const int left = std::max(place.left, 0);
    const int top = std::max(place.top, 0);
    const int right = std::min(place.right(), width_);
    const int bottom = std::min(place.bottom(), height_);
    if (left >= right || top >= bottom) return image_;
    if (changed_.width == 0) {
        changed_ = {left, top, right - left, bottom - top};
    } else {
        const int farRight = std::max(right, changed_.right());
        const int farBottom = std::max(bottom, changed_.bottom());
        changed_.left = std::min(left, changed_.left);
        changed_.top = std::min(top, changed_.top);
        changed_.width = farRight - changed_.left;
        changed_.height = farBottom - changed_.top;
    }
    return image_;
}

Rect Surface::takeChanged() { return std::exchange(changed_, {}); }

QImage Surface::blankImage() const {
    QImage image(width_ * scale_, height_ * scale_, QImage::Format_RGB32);
    image.fill(background_);
    return image;
}

void Surface::resize(int width, int height) {
    width = std::max(width, 1);
    height = std::max(height, 1);
    if (width == width_ && height == height_) return;
    const Surface old = *this;
    width_ = width;
    height_ = height;
    image_ = blankImage();
    changed_ = {0, 0, width_, height_};
    BitBlt(*this, 0, 0, old.width(), old.height(), old, 0, 0, Raster::SrcCopy);
}

void Surface::setScale(int scale) {
    if (scale == scale_) return;
    scale_ = scale;
    image_ = image_.scaled(width_ * scale_, height_ * scale_);
    changed_ = {0, 0, width_, height_};
}

void Surface::Cls() { image().fill(background_); }

void BitBlt(Surface& to, int x, int y, int width, int height, const Surface& from, int sourceX, int sourceY,
            Raster raster) {
    const int scale = to.scale();
    QImage& image = to.drawOn({x, y, width, height});
    const Rect place = scaled({x, y, width, height}, scale);
    const Rect source = scaled({sourceX, sourceY, width, height}, scale);
    const Span xs = clip(place.left, image.width(), source.left, from.image().width(), place.width);
    const Span ys = clip(place.top, image.height(), source.top, from.image().height(), place.height);
    if (xs.first >= xs.end) return;
    for (int line = ys.first; line < ys.end; ++line)
        copyPixels(row(image, place.top + line) + place.left + xs.first,
                   row(from.image(), source.top + line) + source.left + xs.first, xs.end - xs.first, raster);
}

void fillRect(Surface& to, const Rect& place, QRgb color) {
    const int left = std::max(place.left, 0);
    const int right = std::min(place.right(), to.width());
    const int top = std::max(place.top, 0);
    const int bottom = std::min(place.bottom(), to.height());
    if (left >= right || top >= bottom) return;
    const int scale = to.scale();
    QImage& image = to.drawOn(place);
    const qsizetype stride = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    QRgb* pixels = row(image, top * scale) + left * scale;
    for (int line = top * scale; line < bottom * scale; ++line, pixels += stride)
        std::fill_n(pixels, (right - left) * scale, color);
}

void StretchBlt(Surface& to, const Rect& place, const Surface& from, const Rect& source, Raster raster) {
    if (place.width < 1 || place.height < 1) return;
    if (place.width == source.width && place.height == source.height)
        return BitBlt(to, place.left, place.top, place.width, place.height, from, source.left, source.top,
                      raster);
    const Rect target = scaled(place, to.scale());
    const Rect piece = scaled(source, to.scale());
    QImage& image = to.drawOn(place);
    const Span xs = {std::max(0, -target.left), std::min(target.width, image.width() - target.left)};
    const Span ys = {std::max(0, -target.top), std::min(target.height, image.height() - target.top)};
    if (xs.first >= xs.end) return;
    if (target.width < piece.width || target.height < piece.height)
        return shrink(image, target, xs, ys, from.image(), piece, raster);
    static thread_local std::vector<int> columns;
    sourceColumns(columns, target, piece, xs);
    for (int line = ys.first; line < ys.end; ++line) {
        const int sourceLine =
            piece.top + static_cast<int>(static_cast<qint64>(line) * piece.height / target.height);
        stretchRow(row(image, target.top + line) + target.left + xs.first, row(from.image(), sourceLine),
                   piece, columns, raster);
    }
}

} // namespace tabrova
