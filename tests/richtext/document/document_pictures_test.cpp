// The pictures of a rich text in the document: their sizes, and what is no picture.
#include "richtext/document/rich_picture.h"
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTextBlock>
#include <QUrl>

namespace tabrova {
namespace {

using namespace tests;

QByteArray written(const char* format, QSize size = {30, 20}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 0));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

RichPicture picture(const QByteArray& bytes, PictureKind kind = PictureKind::Png, int width = 0,
                    int height = 0) {
    return {kind, bytes, width, height};
}

std::unique_ptr<QTextDocument> documentOf(const QByteArray& bytes, const std::string& words,
                                          RichPage page = {96, 1.0}) {
    return richTextDocument(readBody("a{\\pict" + words + " " + bytes.toHex().toStdString() + "}b"), page);
}

QTextImageFormat imageOf(const QTextDocument& document) {
    for (auto at = document.begin().begin(); !at.atEnd(); ++at)
        if (at.fragment().charFormat().isImageFormat()) return at.fragment().charFormat().toImageFormat();
    return {};
}

QImage keptOf(const QTextDocument& document) {
    return document.resource(QTextDocument::ImageResource, QUrl(imageOf(document).name())).value<QImage>();
}

TEST(DocumentPictures, AreOfTwoKinds) {
    for (const auto& [format, words] : {std::pair("png", "\\pngblip"), std::pair("jpeg", "\\jpegblip")}) {
        const auto document = documentOf(written(format), words);
        EXPECT_EQ(imageOf(*document).width(), 30) << format;
        EXPECT_EQ(imageOf(*document).height(), 20) << format;
        EXPECT_EQ(keptOf(*document).size(), QSize(30, 20)) << format;
        EXPECT_NEAR(qRed(keptOf(*document).pixel(5, 5)), 200, 3) << format;
        EXPECT_EQ(document->begin().text(), QString("a") + QChar(0xFFFC) + "b");
    }
}

TEST(DocumentPictures, AreAsLargeAsTold) {
    EXPECT_EQ(shownSize(picture(written("png"), PictureKind::Png, 1440, 720), 96), QSize(96, 48));
    EXPECT_EQ(shownSize(picture(written("png"), PictureKind::Png, 1440, 720), 144), QSize(144, 72));
    EXPECT_EQ(shownSize(picture(written("png"), PictureKind::Png, 1, 1), 96), QSize(1, 1));
    EXPECT_EQ(shownSize(picture(written("png"), PictureKind::Png, 1440, 0), 96), QSize(30, 20));
    EXPECT_EQ(shownSize(picture(written("png"), PictureKind::Png, 0, 1440), 96), QSize(30, 20));
}

TEST(DocumentPictures, ThatTellNoSizeAreNotEndless) {
    EXPECT_EQ(shownSize(picture(written("png", {8000, 10})), 96), QSize(4000, 5));
    EXPECT_EQ(shownSize(picture(written("png", {2, 9000})), 96), QSize(1, 4000));
}

TEST(DocumentPictures, AreKeptWithThePixelsOfTheScreen) {
    const auto document = documentOf(written("png"), "\\pngblip\\picwgoal1500\\pichgoal750", {96, 1.5});
    EXPECT_EQ(imageOf(*document).width(), 100);
    EXPECT_EQ(imageOf(*document).height(), 50);
    EXPECT_EQ(keptOf(*document).size(), QSize(150, 75));
    EXPECT_EQ(keptOf(*document).devicePixelRatio(), 1.5);
}

TEST(DocumentPictures, KeepTheLookOfTheText) {
    const RichText text =
        readBody("{\\field{\\*\\fldinst HYPERLINK \"http://a\"}{\\fldrslt{\\pict\\pngblip " +
                 written("png").toHex().toStdString() + "}}}");
    EXPECT_EQ(imageOf(*richTextDocument(text, {96})).anchorHref(), "http://a");
}

TEST(DocumentPictures, OfOtherKindsAreNotDecoded) {
    const QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>";
    for (const QByteArray& bytes : {written("bmp"), written("ppm"), written("xpm"), svg, QByteArray("x")})
        for (const PictureKind kind : {PictureKind::Png, PictureKind::Jpeg}) {
            EXPECT_TRUE(shownSize(picture(bytes, kind), 96).isEmpty());
            EXPECT_TRUE(RichPictures().decode(picture(bytes, kind), {9, 9}, 1).isNull());
        }
    EXPECT_TRUE(RichPictures().decode(picture(written("jpeg"), PictureKind::Png), {9, 9}, 1).isNull());
    EXPECT_TRUE(RichPictures().decode(picture(written("png"), PictureKind::Jpeg), {9, 9}, 1).isNull());
}

TEST(DocumentPictures, ThatAreDamagedAreLeftOut) {
    const QByteArray whole = written("png");
    for (qsizetype size = 1; size < 60; ++size) {
        const auto document = documentOf(whole.left(size), "\\pngblip");
        EXPECT_TRUE(imageOf(*document).name().isEmpty()) << size;
        EXPECT_EQ(document->toPlainText(), "ab");
    }
}

QByteArray claiming(int width, int height) {
    QByteArray bytes = written("png");
    for (int byte = 0; byte < 4; ++byte) {
        bytes[16 + byte] = static_cast<char>(width >> (24 - 8 * byte));
        bytes[20 + byte] = static_cast<char>(height >> (24 - 8 * byte));
    }
    return bytes;
}

TEST(DocumentPictures, ThatClaimToBeHugeAreLeftOut) {
    EXPECT_TRUE(RichPictures().decode(picture(claiming(30'000, 30'000)), {9, 9}, 1).isNull());
    EXPECT_TRUE(RichPictures().decode(picture(claiming(2'000'000'000, 2'000'000'000)), {9, 9}, 1).isNull());
    EXPECT_TRUE(imageOf(*documentOf(claiming(30'000, 30'000), "\\pngblip")).name().isEmpty());
}

TEST(DocumentPictures, HaveABoundTogether) {
    RichPictures pictures;
    const RichPicture small = picture(written("png"));
    for (int time = 0; time < 80; ++time)
        ASSERT_FALSE(pictures.decode(small, {500, 500}, 2).isNull()) << time;
    EXPECT_TRUE(pictures.decode(small, {500, 500}, 2).isNull());
    EXPECT_TRUE(pictures.decode(small, {1, 1}, 1).isNull());
}

TEST(DocumentPictures, HaveABoundOfWork) {
    RichPictures pictures(30 * 20 * 10);
    const RichPicture small = picture(written("png"));
    for (int time = 0; time < 10; ++time)
        ASSERT_FALSE(pictures.decode(small, {5, 4}, 1).isNull()) << time;
    EXPECT_TRUE(pictures.decode(small, {5, 4}, 1).isNull());
}

// Some kinds are drawn in passes, of which a few bytes may be told.
TEST(DocumentPictures, OfThousandsOfPassesAreLeftOut) {
    const QByteArray bytes = written("jpeg");
    const auto decodes = [&](int passes, PictureKind kind, const QByteArray& whole) {
        return !RichPictures(30 * 20 * 10)
                    .decode(picture(whole + QByteArray("\xFF\xDA").repeated(passes), kind), {5, 4}, 1)
                    .isNull();
    };
    EXPECT_TRUE(decodes(118, PictureKind::Jpeg, bytes)); // and one of its own
    EXPECT_FALSE(decodes(119, PictureKind::Jpeg, bytes));
    EXPECT_TRUE(decodes(1000, PictureKind::Png, written("png")));
}

} // namespace
} // namespace tabrova
