// What the boxes of a new chord may hold, and what is stored.
#include "tools/chord_manager/new_chord.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(NewChord, AnEntryIsSilentABadOneOrAFret) {
    for (const char* text : {"", " ", "x"}) {
        EXPECT_TRUE(isSilentEntry(text));
        EXPECT_FALSE(isBadEntry(text));
        EXPECT_EQ(previewMark(text), SilentMark);
    }
    for (int fret = 0; fret <= 6; ++fret) {
        EXPECT_FALSE(isBadEntry(std::to_string(fret)));
        EXPECT_FALSE(isSilentEntry(std::to_string(fret)));
        EXPECT_EQ(previewMark(std::to_string(fret)), static_cast<std::size_t>(fret));
    }
    for (const char* text : {"7", "8", "9", "X", "a", "-", ".", "?"})
        EXPECT_TRUE(isBadEntry(text)) << text;
}

TEST(NewChord, ThePreviewShowsWhatCannotBeShownAsSilent) {
    for (const char* text : {"7", "a", "-1"})
        EXPECT_EQ(previewMark(text), SilentMark) << text;
}

TEST(NewChord, TheLineIsTheSixTexts) {
    EXPECT_EQ(chordLine({"x", "3", "2", "0", "1", "0"}), "x32010");
    EXPECT_EQ(chordLine({"x", "x", "x", "x", "x", "x"}), "xxxxxx");
    EXPECT_EQ(chordLine({"x", "3", "2", "0", "1", "7"}), std::nullopt);
    EXPECT_EQ(chordLine({"y", "3", "2", "0", "1", "0"}), std::nullopt);
}

} // namespace
} // namespace tabrova
