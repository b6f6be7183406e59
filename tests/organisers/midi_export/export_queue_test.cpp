// Which tracks go into a MIDI file.
#include "organisers/midi_export/export_queue.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(ExportQueue, KeepsTheOrderInWhichTracksWereAdded) {
    ExportQueue queue;
    for (const int track : {3, 0, 1023})
        EXPECT_TRUE(queue.add(track));
    EXPECT_EQ(queue.tracks(), (std::vector{3, 0, 1023}));
}

TEST(ExportQueue, HoldsATrackOnce) {
    ExportQueue queue;
    EXPECT_TRUE(queue.add(4));
    EXPECT_FALSE(queue.add(4));
    EXPECT_EQ(queue.tracks(), std::vector{4});
}

TEST(ExportQueue, HoldsFifteenTracks) {
    ExportQueue queue;
    for (int track = 0; track < 15; ++track) {
        EXPECT_FALSE(queue.isFull());
        EXPECT_TRUE(queue.add(track));
    }
    EXPECT_TRUE(queue.isFull());
    EXPECT_FALSE(queue.add(15));
    EXPECT_EQ(queue.tracks().size(), 15U);
    queue.remove(0);
    EXPECT_TRUE(queue.add(15));
}

TEST(ExportQueue, RemovesRows) {
    ExportQueue queue;
    for (const int track : {5, 6, 7})
        queue.add(track);
    queue.remove(1);
    EXPECT_EQ(queue.tracks(), (std::vector{5, 7}));
    queue.remove(-1);
    queue.remove(2);
    EXPECT_EQ(queue.tracks(), (std::vector{5, 7}));
    queue.remove(1);
    queue.remove(0);
    queue.remove(0);
    EXPECT_TRUE(queue.tracks().empty());
}

TEST(PriorityTrack, StaysBetweenNothingAndTheNumberOfTracks) {
    EXPECT_EQ(raisedPriority(0, 3), 1);
    EXPECT_EQ(raisedPriority(2, 3), 3);
    EXPECT_EQ(raisedPriority(3, 3), 3);
    EXPECT_EQ(raisedPriority(9, 3), 9);
    EXPECT_EQ(raisedPriority(-5, 3), -4);
    EXPECT_EQ(loweredPriority(3, 3), 2);
    EXPECT_EQ(loweredPriority(1, 3), 0);
    EXPECT_EQ(loweredPriority(0, 3), 0);
    EXPECT_EQ(loweredPriority(-1, 3), -1);
    EXPECT_EQ(loweredPriority(99, 3), 98);
}

} // namespace
} // namespace tabrova
