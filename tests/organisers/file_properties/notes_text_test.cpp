// How much of the notes is shown.
#include "organisers/file_properties/notes_text.h"

#include <gtest/gtest.h>

#include <string>

namespace tabrova {
namespace {

const std::string LongParagraph(LongestShownParagraph, 'p');

TEST(ShownNotes, AreAllOfOrdinaryOnes) {
    EXPECT_EQ(shownNotes(""), "");
    EXPECT_EQ(shownNotes("one\r\ntwo"), "one\r\ntwo");
    std::string lines;
    for (int line = 0; line < 10'000; ++line)
        lines += "line\r\n";
    EXPECT_EQ(shownNotes(lines), lines);
    EXPECT_EQ(shownNotes(LongParagraph), LongParagraph);
    EXPECT_EQ(shownNotes(LongParagraph + "\r\n" + LongParagraph), LongParagraph + "\r\n" + LongParagraph);
    EXPECT_EQ(shownNotes(LongParagraph + "\n" + LongParagraph + "\n"),
              LongParagraph + "\n" + LongParagraph + "\n");
}

TEST(ShownNotes, EndInAParagraphThatIsTooLong) {
    EXPECT_EQ(shownNotes(LongParagraph + "q"), LongParagraph);
    EXPECT_EQ(shownNotes("short\r\n" + LongParagraph + "q\r\nmore"), "short\r\n" + LongParagraph);
    EXPECT_EQ(shownNotes("\n" + LongParagraph + "q"), "\n" + LongParagraph);
}

TEST(ShownNotes, AreNeverLongerThanCanBeLaidOutAtOnce) {
    std::string lines;
    while (lines.size() <= LongestShownNotes)
        lines += "line\n";
    EXPECT_EQ(shownNotes(lines), lines.substr(0, LongestShownNotes));
}

TEST(ShownNotes, DoNotCutALineEndInTwo) {
    std::string lines(LongestShownNotes / 2, '\n');
    lines += std::string(LongestShownNotes / 2 - 1, '\n') + "\r\nmore";
    EXPECT_EQ(shownNotes(lines).size(), LongestShownNotes - 1);
    EXPECT_EQ(shownNotes("ends with\r"), "ends with\r");
}

} // namespace
} // namespace tabrova
