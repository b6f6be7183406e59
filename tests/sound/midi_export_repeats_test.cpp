// The order in which a MIDI file has the columns of a document with repeats.
#include "tests/sound/midi_export_helpers.h"

namespace tabrova::testing {
namespace {

// What is played in which order: each column of this document sounds its own number.
class MidiExportRepeats : public MidiExportTest {
  protected:
    void number(int tracks, int staves = 1) {
        makeDocument(tracks, staves);
        for (int column = 0; column < staves * ColumnsPerStaff; ++column)
            for (int track = 0; track < tracks; ++track)
                document.setNote(column, track * 6 + 5, std::to_string(column - 40));
        for (std::int16_t& tuning : document.TuningTable)
            tuning = 13 + 40;
    }
    // The columns of a file track from its beginning; as many as asked for.
    std::vector<int> order(std::size_t most, std::size_t track = 1) const {
        std::vector<int> all;
        for (const int pitch : melody(track))
            all.push_back(pitch - 40);
        all.resize(std::min(all.size(), most));
        return all;
    }
};

TEST_F(MidiExportRepeats, AClosedRepeatIsReadOneColumnEarlierThanThePlayerReadsIt) {
    number(1);
    document.setBarMark(2, "r");
    document.setBarMark(5, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(order(12), (std::vector{0, 1, 2, 3, 4, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(columns(), 31U + 3);
}

TEST_F(MidiExportRepeats, EachNumberPlaysItsPassageOnceMore) {
    for (int count = 1; count <= 15; ++count) {
        number(1);
        document.setBarMark(3, "r");
        document.setBarMark(5, "r" + std::to_string(count));
        ASSERT_TRUE(exportTracks({0}));
        EXPECT_EQ(columns(), 31U + 2 * static_cast<std::size_t>(count)) << count;
    }
    for (const char* mark : {"r16", "r0", "R1", "r1 ", "."}) {
        number(1);
        document.setBarMark(3, "r");
        document.setBarMark(5, mark);
        ASSERT_TRUE(exportTracks({0}));
        EXPECT_EQ(columns(), 31U) << mark;
    }
}

TEST_F(MidiExportRepeats, ARepeatWithoutABeginningGoesToTheFirstColumn) {
    number(1);
    document.setBarMark(3, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(order(8), (std::vector{0, 1, 2, 0, 1, 2, 3, 4}));
}

TEST_F(MidiExportRepeats, AMarkInTheFirstColumnIsNotReadAsAnEnd) {
    number(1);
    document.setBarMark(0, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(columns(), 31U);
}

TEST_F(MidiExportRepeats, AMarkInTheLastColumnIsRead) {
    number(1);
    document.setBarMark(29, "r");
    document.setBarMark(31, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_EQ(columns(), 31U + 2);
}

// Any other mark counts for the repeat that runs.
TEST_F(MidiExportRepeats, AnotherMarkInThePassageCountsToo) {
    number(1);
    document.setBarMark(2, "r");
    document.setBarMark(6, "r2");
    document.setBarMark(4, "other");
    ASSERT_TRUE(exportTracks({0}));
    // 6: two are left, back; 4: one is left, back; 4: none is left, the repeat is over; 6: it would begin
    // anew, and so for ever.
    EXPECT_EQ(order(15), (std::vector{0, 1, 2, 3, 4, 5, 2, 3, 2, 3, 4, 5, 6, 7, 8}));
}

// The repeat that is open goes on into the next queued track.
TEST_F(MidiExportRepeats, TheStateGoesOnFromTrackToTrack) {
    number(2);
    document.setBarMark(20, "r");
    document.setBarMark(3, "r1");
    ASSERT_TRUE(exportTracks({0, 1}));
    EXPECT_EQ(order(8, 1), (std::vector{0, 1, 2, 0, 1, 2, 3, 4}));
    // The passage of the second track begins where the first one's last repeat was opened.
    EXPECT_EQ(order(6, 2), (std::vector{0, 1, 2, 20, 21, 22}));
    EXPECT_EQ(columns(2), 3U + 11);
}

// Two ends of one beginning would repeat for ever. The second round is left at the jump that was made before.
TEST_F(MidiExportRepeats, APassageThatWouldComeRoundForEverIsLeft) {
    number(1);
    document.setBarMark(5, "r1");
    document.setBarMark(10, "r1");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_LT(columns(), 100U);
    EXPECT_EQ(order(1000).back(), 30);
    number(1);
    document.setBarMark(0, "r2"); // on which a repeat without a beginning ends at once
    document.setBarMark(4, "r3");
    ASSERT_TRUE(exportTracks({0}));
    EXPECT_LT(columns(), 100U);
    EXPECT_EQ(order(1000).back(), 30);
}

} // namespace
} // namespace tabrova::testing
