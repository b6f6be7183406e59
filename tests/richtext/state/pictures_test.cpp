// The bytes and sizes of pictures; whether they are any is the document's to see.
#include "richtext/state/rtf_picture.h"
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_helpers.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

using namespace tests;
using namespace std::string_literals;

RichPicture pictureOf(const std::string& words) {
    const RichText text = readBody("{\\pict" + words + "}");
    return text.pictures.empty() ? RichPicture() : text.pictures[0];
}

TEST(Pictures, AreBytesOfTwoKinds) {
    EXPECT_EQ(pictureOf("\\pngblip 0aFF").bytes, QByteArray("\x0a\xff"));
    EXPECT_EQ(pictureOf("\\pngblip 0aFF").kind, PictureKind::Png);
    EXPECT_EQ(pictureOf("\\jpegblip 0aFF").kind, PictureKind::Jpeg);
}

TEST(Pictures, TheirDigitsMayComeInPieces) {
    EXPECT_EQ(pictureOf("\\pngblip 0\r\na f{}f 1\\picw5 2").bytes, QByteArray("\x0a\xff\x12"));
    EXPECT_EQ(pictureOf("\\pngblip 0a1").bytes, QByteArray("\x0a"));
    EXPECT_EQ(pictureOf("\\pngblip 0g-a").bytes, QByteArray("\x0a"));
    EXPECT_EQ(pictureOf("\\pngblip{\\*\\picprop{\\sp{\\sn ab}{\\sv cd}}}{\\*\\blipuid 0123}0a").bytes,
              QByteArray("\x0a"));
}

TEST(Pictures, MayBeBinary) {
    const RichText text = readBody("a{\\pict\\pngblip\\bin4 }{\\x}b"s);
    EXPECT_EQ(text.pictures.at(0).bytes, QByteArray("}{\\x"));
    EXPECT_EQ(shown(text), "a<0>b");
    EXPECT_EQ(pictureOf("\\pngblip 01\\bin1 a02").bytes, QByteArray("\x01\141\x02"));
    EXPECT_EQ(shownBody("a\\bin2 xyb"), "ab");
}

TEST(Pictures, OtherKindsAreNotShown) {
    for (const char* kind : {"wmetafile8", "emfblip", "dibitmap0", "wbitmap0", "macpict", ""})
        EXPECT_EQ(shownBody("a{\\pict\\"s + kind + " 0102}b"), "ab") << kind;
    EXPECT_EQ(shownBody("a{\\pict\\pngblip\\wmetafile8 0102}b"), "ab");
    EXPECT_EQ(shownBody("{\\pict\\pngblip 01}a{\\pict 02}b"), "<0>ab");
}

TEST(Pictures, WithoutBytesAreNotShown) {
    EXPECT_EQ(shownBody("a{\\pict\\pngblip}b"), "ab");
    EXPECT_EQ(shownBody("a{\\pict\\pngblip 1}b"), "ab");
    EXPECT_EQ(shown(readRichText("{\\rtf1{\\pict\\pngblip 01")), "");
}

TEST(Pictures, HaveASizeOfTheirAuthor) {
    const auto size = [](const std::string& words) {
        const RichPicture picture = pictureOf("\\pngblip" + words + " 01");
        return std::pair(picture.width, picture.height);
    };
    using Size = std::pair<int, int>;
    EXPECT_EQ(size(""), Size(0, 0));
    EXPECT_EQ(size("\\picw10\\pich20"), Size(0, 0));
    EXPECT_EQ(size("\\picwgoal1440\\pichgoal720"), Size(1440, 720));
    EXPECT_EQ(size("\\picwgoal1440\\pichgoal720\\picscalex50\\picscaley200"), Size(720, 1440));
    EXPECT_EQ(size("\\picwgoal1440\\pichgoal720\\picscalex\\picscaley"), Size(1440, 720));
    EXPECT_EQ(size("\\picwgoal1000\\pichgoal1000\\picscalex0\\picscaley-7"), Size(10, 10));
    EXPECT_EQ(size("\\picwgoal1000\\pichgoal1000\\picscalex9999\\picscaley1000"), Size(10000, 10000));
    EXPECT_EQ(size("\\picwgoal99999\\pichgoal31680\\picscaley200"), Size(31680, 31680));
    EXPECT_EQ(size("\\picwgoal-5\\pichgoal-99999"), Size(0, 0));
}

TEST(Pictures, ToldTwiceAreShownOnce) {
    EXPECT_EQ(shownBody("a{\\*\\shppict{\\pict\\pngblip 01}}{\\nonshppict{\\pict\\pngblip 02}}b"), "a<0>b");
    EXPECT_EQ(shownBody("a{\\object{\\*\\objdata 01}{\\result{\\pict\\jpegblip 02}}}b"), "a<0>b");
}

TEST(Pictures, StandInTheText) {
    const RichText text = readBody(
        "a{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt{\\pict\\pngblip 01}}}{\\v{\\pict\\pngblip 02}}"
        "\\par{\\pict\\pngblip 03}{\\pict\\pngblip 04}");
    EXPECT_EQ(shown(text), "a<0>/<1><2>");
    EXPECT_EQ(described(runAt(text, 1).look), "link=0");
    EXPECT_EQ(text.pictures.size(), 3U);
}

TEST(Pictures, ATextBehindOneIsARunOfItsOwn) {
    EXPECT_EQ(paragraphAt(readBody("a{\\pict\\pngblip 01}b"), 0).runs.size(), 3U);
}

TEST(Pictures, HaveABoundOfBytes) {
    const std::string half(static_cast<std::size_t>(RtfPicture::MostBytes) / 2, 'x');
    RtfPicture picture;
    picture.kind = PictureKind::Png;
    picture.addBytes(half);
    picture.addBytes(half);
    RtfPicture larger = picture;
    ASSERT_TRUE(picture.take());
    larger.addDigits("0");
    EXPECT_FALSE(larger.take());
    RtfPicture much;
    much.kind = PictureKind::Png;
    much.addBytes(half);
    much.addBytes(half + "x");
    much.addBytes("x");
    EXPECT_FALSE(much.take());
}

TEST(Pictures, HaveABoundOfBytesTogether) {
    const std::string body = "{\\pict\\pngblip\\bin12000000 " + std::string(12'000'000, 'x') + "}";
    EXPECT_EQ(readBody(repeated(body, 6)).pictures.size(), 5U);
}

TEST(Pictures, AreSoManyAtTheMost) {
    const RichText text = readBody(repeated("{\\pict\\pngblip 01}", 501) + "x");
    EXPECT_EQ(text.pictures.size(), 500U);
    EXPECT_EQ(shown(text).substr(shown(text).size() - 7), "<499>/x");
}

} // namespace
} // namespace tabrova
