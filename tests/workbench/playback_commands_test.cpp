// Playback by its steps: what is loaded first, what the clock is told, and what everybody hears of it.
#include "tests/workbench/tool_bench.h"

namespace tabrova::testing {
namespace {

class PlaybackSteps : public ToolBench {
  protected:
    Log take() { return std::exchange(log, {}); }
    // Messages that end the notes of a channel.
    int notesEnded() {
        int ended = 0;
        for (const ShortMessage& message : midi.take())
            ended += message[1] == 123;
        return ended;
    }
};

TEST_F(PlaybackSteps, PlayLoadsThePropertiesThenSetsTheIntervalThenStartsTheClock) {
    commands.playback.play(PlayFrom::Start);
    EXPECT_EQ(take(), (Log{"load frmFileProperties", "interval 125", "clock on", "act StartPlayback"}));
    EXPECT_TRUE(bench.player.playing);
    EXPECT_TRUE(watcher.last.playing);
}

TEST_F(PlaybackSteps, TheSpeedIsThatOfTheLoadedProperties) {
    tools.whenLoaded = [this](std::string_view) { bench.player.speedBoost = true; };
    commands.playback.play(PlayFrom::Start);
    EXPECT_EQ(clock.interval, 62);
}

TEST_F(PlaybackSteps, ATempoWithoutAnIntervalStartsNothing) {
    document().Tempo = 0;
    commands.playback.play(PlayFrom::Start);
    EXPECT_EQ(take(), Log{"load frmFileProperties"});
    EXPECT_FALSE(bench.player.playing);
}

TEST_F(PlaybackSteps, AClockThatIsRefusedLeavesNothingPlaying) {
    clock.refuses = true;
    commands.playback.play(PlayFrom::Start);
    EXPECT_FALSE(bench.player.playing);
    EXPECT_TRUE(watcher.last.playing); // whoever stood still goes on
}

TEST_F(PlaybackSteps, PlayFromHereBringsTheCursorsColumnUpToDate) {
    bench.editor.AppendStaff();
    document().CurrentStaff = 2;
    document().ColumnInStaff = 5;
    commands.playback.play(PlayFrom::Cursor);
    EXPECT_EQ(document().CurrentColumn, 37);
    EXPECT_EQ(document().playback.PlaybackPosition, 37);
    EXPECT_EQ(bench.player.soundingColumn, 37) << "before the first tick";
    document().ColumnInStaff = 6;
    commands.playback.play(PlayFrom::Start);
    EXPECT_EQ(document().CurrentColumn, 37);
    EXPECT_EQ(document().playback.PlaybackPosition, 0);
}

TEST_F(PlaybackSteps, StopEndsTheNotesThenTheClockAndGoesToTheFirstColumn) {
    commands.playback.play(PlayFrom::Start);
    document().playback.PlaybackPosition = 9;
    take();
    midi.take();
    commands.playback.mnuPlaybackStop();
    EXPECT_EQ(notesEnded(), 9);
    EXPECT_EQ(take(), (Log{"clock off", "act StopTimer"}));
    EXPECT_FALSE(bench.player.playing);
    EXPECT_TRUE(watcher.last.playing);
    EXPECT_EQ(document().playback.PlaybackPosition, 0);
}

TEST_F(PlaybackSteps, ATickPlaysAColumnAndTheLastOneStopsAndSilences) {
    document().setNote(0, 0, "5");
    commands.playback.play(PlayFrom::Start);
    take();
    midi.take();
    commands.playback.HiTime1_Timer();
    EXPECT_FALSE(midi.take().empty());
    EXPECT_EQ(document().playback.PlaybackPosition, 1);
    EXPECT_EQ(bench.player.soundingColumn, 0);
    EXPECT_EQ(take(), Log{"act HiTime1_Timer"});
    commands.playback.HiTime1_Timer();
    EXPECT_EQ(bench.player.soundingColumn, 1);
    EXPECT_EQ(watcher.last, Changes()) << "nothing of the page";
    take();
    document().playback.PlaybackPosition = document().lastColumn() + 1;
    commands.playback.HiTime1_Timer();
    EXPECT_EQ(notesEnded(), 9);
    EXPECT_EQ(take(), (Log{"clock off", "act StopTimer"}));
}

TEST_F(PlaybackSteps, ATickBehindTheStopPlaysNothing) {
    document().setNote(0, 0, "5");
    commands.playback.play(PlayFrom::Start);
    commands.playback.mnuPlaybackStop();
    midi.take();
    take();
    commands.playback.HiTime1_Timer();
    EXPECT_TRUE(midi.take().empty());
    EXPECT_EQ(document().playback.PlaybackPosition, 0);
    EXPECT_EQ(take(), Log{});
}

} // namespace
} // namespace tabrova::testing
