// The sheet under construction at one scale. Every drawing is made in the logical pixels of the
// 657 by 160 sheet, inside one rectangle of it, and never leaves that rectangle.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPoint>
#include <QRect>

#include <functional>
#include <string_view>
#include <vector>

namespace sheet {

inline constexpr int sheetWidth = 657;
inline constexpr int sheetHeight = 160;

inline const QColor ink{0, 0, 0};
inline const QColor softInk{128, 128, 128};
inline const QColor lightInk{208, 208, 208};
inline const QColor stringGrey{144, 144, 144};
inline const QColor staffLineGrey{128, 128, 128};

// How the page takes a cell: in place of what is there, or bit by bit with it.
enum class Copying { Opaque, And };

// One string a row; '#' is ink, '+' softens a corner, '-' a counter, anything else is left alone.
using PixelRows = std::vector<std::string_view>;

class SheetCanvas {
  public:
    explicit SheetCanvas(int scale);

    int scale() const { return scale_; }
    const QImage& image() const { return image_; }

    // Runs draw with a painter whose origin is the cell's top left corner and whose unit is one
    // logical pixel. What is drawn only darkens what the sheet already shows.
    void paint(const QRect& cell, Copying copying, const std::function<void(QPainter&)>& draw);

    // The first place where two painted cells overlap and the sheet isn't blank; an empty rectangle
    // if there is none. Such ink would show up in both.
    QRect inkInOverlap() const;

  private:
    bool isBlank(const QRect& place) const;

    int scale_;
    QImage image_;
    std::vector<QRect> cells_;
};

// Square pixels of the painter's unit, the first one at the given place.
void drawPixels(QPainter& painter, const QPoint& at, const PixelRows& rows);

// A row of the string line, one unit high, from left to right edge of a cell of the given width.
void drawStringLine(QPainter& painter, int row, int left, int width);

// A path in ink, for the parts of glyphs and marks that keep one width.
void strokePath(QPainter& painter, const QPainterPath& path, double width,
                Qt::PenCapStyle ends = Qt::SquareCap);

} // namespace sheet
