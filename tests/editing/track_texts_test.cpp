// The texts and numbers that a track's properties show, from documents that are as they should be and others.
#include "editing/track_texts.h"

#include "core/document/document_operations.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class TrackTexts : public ::testing::Test {
  protected:
    TrackTexts() {
        resetToNewDocument(document);
        document.TrackCount = 2;
        document.TuningTable = {13, 13, 13, 13, 13, 13, 12, 14, 13, 25, 1, 11};
        document.TrackInstruments = {"24", "30"};
        document.TrackVolumes = {"100", "59"};
    }
    Document document;
};

TEST_F(TrackTexts, NamesTheStringsFromTheLowestOn) {
    EXPECT_EQ(tuningNames(document, 1), "E A D G B E");
    // A whole tone down, an octave down and up, as it is, a half tone up and down.
    EXPECT_EQ(tuningNames(document, 2), "D A D G C D#");
    EXPECT_EQ(tuningNames(document, 3), "E A D G B E"); // which the table does not have
}

TEST_F(TrackTexts, EveryNoteOfAnOctaveHasItsName) {
    const char* names[] = {"E", "F", "F#", "G", "G#", "A", "A#", "B", "C", "C#", "D", "D#"};
    for (int step = -26; step <= 26; ++step) {
        document.TuningTable[0] = static_cast<std::int16_t>(StandardTuning + step);
        EXPECT_TRUE(tuningNames(document, 1).ends_with(std::string(" ") + names[(step + 36) % 12])) << step;
    }
}

TEST_F(TrackTexts, TheProgramIsTheTracksRowAsANumber) {
    EXPECT_EQ(trackProgram(document, 1), 24);
    EXPECT_EQ(trackProgram(document, 2), 30);
    document.TrackInstruments[1] = "guitar";
    for (const int track : {0, 2, 3})
        EXPECT_EQ(trackProgram(document, track), std::nullopt) << track;
}

TEST_F(TrackTexts, TheVolumeIsBroughtIntoTheSlidersRange) {
    EXPECT_EQ(trackVolume(document, 1), 100);
    EXPECT_EQ(trackVolume(document, 2), 60);
    document.TrackVolumes[1] = "128";
    EXPECT_EQ(trackVolume(document, 2), 127);
    document.TrackVolumes[1] = "loud";
    for (const int track : {0, 2, 3})
        EXPECT_EQ(trackVolume(document, track), std::nullopt) << track;
}

} // namespace
} // namespace tabrova
