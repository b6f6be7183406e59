#include "richtext/document/rich_picture.h"

#include <QBuffer>
#include <QImageReader>

namespace tabrova {

namespace {

// The kind is told: nothing is guessed from the bytes, so that no other decoder comes to see them.
void readAs(QImageReader& reader, PictureKind kind) {
    reader.setAutoDetectImageFormat(false);
    reader.setDecideFormatFromContent(false);
    reader.setFormat(kind == PictureKind::Png ? "png" : "jpeg");
}

constexpr int Longest = 4000; // pixels of the page, for a picture that tells no size

qint64 pixels(QSize size) { return static_cast<qint64>(size.width()) * size.height(); }

// Pixels to be gone through: a picture may be told in thousands of passes over all of them, where a dozen is
// usual.
qint64 workOf(const RichPicture& picture, QSize own) {
    constexpr qint64 UsualPasses = 12;
    const qint64 passes = picture.kind == PictureKind::Jpeg ? picture.bytes.count("\xFF\xDA") : 0;
    return pixels(own) * (1 + passes / UsualPasses);
}

} // namespace

QSize shownSize(const RichPicture& picture, int pixelsPerInch) {
    QBuffer buffer;
    buffer.setData(picture.bytes);
    QImageReader reader(&buffer);
    readAs(reader, picture.kind);
    const QSize own = reader.size();
    if (own.isEmpty()) return {};
    const qreal scale = pixelsPerInch / 1440.0;
    const QSizeF told(picture.width * scale, picture.height * scale);
    if (told.isEmpty())
        return own.scaled(own.boundedTo({Longest, Longest}), Qt::KeepAspectRatio).expandedTo({1, 1});
    return told.toSize().expandedTo({1, 1});
}

QImage RichPictures::decode(const RichPicture& picture, QSize shown, qreal pixelRatio) {
    QBuffer buffer;
    buffer.setData(picture.bytes);
    QImageReader reader(&buffer);
    readAs(reader, picture.kind);
    const QSize own = reader.size();
    const QSize sharp = (QSizeF(shown) * pixelRatio).toSize().expandedTo({1, 1});
    if (own.isEmpty() || pixels(own) > MostPixels || kept_ + pixels(sharp) > MostPixelsTogether) return {};
    if ((decoded_ += workOf(picture, own)) > mostDecoded_) return {};
    QImage image = reader.read();
    if (image.isNull()) return {};
    kept_ += pixels(sharp);
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                .scaled(sharp, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(pixelRatio);
    return image;
}

} // namespace tabrova
