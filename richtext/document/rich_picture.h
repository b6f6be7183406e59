// Decodes the pictures of a rich text, within bounds: a few bytes may claim to be a picture as large as
// memory.
#pragma once

#include "richtext/state/rich_text.h"

#include <QImage>
#include <QSize>

namespace tabrova {

class RichPictures {
  public:
    static constexpr qint64 MostPixels = 24'000'000;         // of one
    static constexpr qint64 MostPixelsTogether = 80'000'000; // as they are kept

    static constexpr qint64 MostPixelsDecoded = 200'000'000; // which takes about two seconds

    // `mostDecoded`: pixels of all together, before they are made smaller, by the passes over them.
    explicit RichPictures(qint64 mostDecoded = MostPixelsDecoded) : mostDecoded_(mostDecoded) {}

    // With the very pixels that it shows as, so many to a pixel of the page: a document would leave out lines
    // of a larger picture. Null if the bytes are no picture of their kind or a bound is passed.
    QImage decode(const RichPicture& picture, QSize shown, qreal pixelRatio);

  private:
    qint64 mostDecoded_;
    qint64 kept_ = 0;
    qint64 decoded_ = 0;
};

// How large it shows, in pixels of the page: as its author told, or by its own. Empty if the bytes are no
// picture.
QSize shownSize(const RichPicture& picture, int pixelsPerInch);

} // namespace tabrova
