// From the bytes of the text file to the box, and from the box to the saved file.
#include "organisers/text_export/export_text.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

const QString NewLine = " \r\n";

TEST(BoxText, EachLineEndsInTheExtraBlank) {
    EXPECT_EQ(boxText("first\r\n \r\n\r\nlast\r\n", NewLine), "first \n  \n \nlast \n");
    EXPECT_EQ(boxText("", NewLine), "");
    EXPECT_EQ(boxText("open end", NewLine), "open end \n");
}

TEST(BoxText, IsReadFromTheCodePage) {
    EXPECT_EQ(boxText("b\xBD\xDF\x80\r\n", NewLine), QString::fromUtf8("b½ß€ \n"));
}

TEST(BoxText, ShowsTheBeginningOfALineThatIsTooLong) {
    const std::string longest(LongestShownLine, 'x');
    EXPECT_EQ(boxText(longest + "\r\nb\r\n", NewLine), QString::fromStdString(longest) + " \nb \n");
    EXPECT_EQ(boxText(longest + "yz\r\nb\r\n", NewLine), QString::fromStdString(longest) + " \nb \n");
}

TEST(SavedText, HasTheLineEndsOfAFile) {
    EXPECT_EQ(savedText("first \n\nlast"), "first \r\n\r\nlast");
    EXPECT_EQ(savedText(""), "");
}

TEST(SavedText, IsInTheCodePage) { EXPECT_EQ(savedText(QString::fromUtf8("½→é")), "\xBD?\xE9"); }

TEST(SavedText, OfAnUnchangedBoxIsTheFileWithBlanksBehindItsLines) {
    EXPECT_EQ(savedText(boxText("a\xA0\r\n \r\n", NewLine)), "a\xA0 \r\n  \r\n");
}

} // namespace
} // namespace tabrova
