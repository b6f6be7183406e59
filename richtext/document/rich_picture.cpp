#include "richtext/document/rich_picture.h"

#include <QBuffer>
#include <QImageReader>

namespace tabrova {

namespace {

constexpr int SharpScale = 3; // pixels of the picture to a shown one

// The kind is told: nothing is guessed from the bytes, so that no other decoder comes to see them.
void readAs(QImageReader& reader, PictureKind kind) {
    reader.setAutoDetectImageFormat(false);
    reader.setDecideFormatFromContent(false);
    reader.setFormat(kind == PictureKind::Png ? "png" : "jpeg");
}

qint64 pixels(QSize size) { return static_cast<qint64>(size.width()) * size.height(); }

} // namespace

QSizeF shownSize(const RichPicture& picture, int pixelsPerInch) {
    QBuffer buffer;
    buffer.setData(picture.bytes);
    QImageReader reader(&buffer);
    readAs(reader, picture.kind);
    const QSizeF own = reader.size();
    if (own.isEmpty()) return {};
    const qreal scale = pixelsPerInch / 1440.0;
    const QSizeF told(picture.width * scale, picture.height * scale);
    if (told.isEmpty()) return own;
    return told;
}

QImage RichPictures::decode(const RichPicture& picture, QSizeF shown) {
    QBuffer buffer;
    buffer.setData(picture.bytes);
    QImageReader reader(&buffer);
    readAs(reader, picture.kind);
    const QSize own = reader.size();
    if (own.isEmpty() || pixels(own) > MostPixels) return {};
    const QSize sharp = (shown * SharpScale).toSize().expandedTo({1, 1});
    if (sharp.width() < own.width() && sharp.height() < own.height()) reader.setScaledSize(sharp);
    const QImage image = reader.read();
    kept_ += pixels(image.size());
    return kept_ <= MostPixelsTogether ? image : QImage();
}

} // namespace tabrova
