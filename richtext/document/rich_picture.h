// Decodes the pictures of a rich text, within bounds: a few bytes may claim to be a picture as large as
// memory.
#pragma once

#include "richtext/state/rich_text.h"

#include <QImage>
#include <QSizeF>

namespace tabrova {

class RichPictures {
  public:
    static constexpr qint64 MostPixels = 24'000'000;         // of one
    static constexpr qint64 MostPixelsTogether = 80'000'000; // as they are kept

    // As many pixels as it takes to show it sharply at that size, at the most. Null if the bytes are no
    // picture of their kind or a bound is passed.
    QImage decode(const RichPicture& picture, QSizeF shown);

  private:
    qint64 kept_ = 0;
};

// How large it shows, in pixels: as its author told, or by its own. Empty if the bytes are no picture.
QSizeF shownSize(const RichPicture& picture, int pixelsPerInch);

} // namespace tabrova
