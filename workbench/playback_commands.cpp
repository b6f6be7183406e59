#include "workbench/playback_commands.h"

#include "core/document/document_operations.h"

#include <algorithm>

namespace tabrova {

PlaybackCommands::PlaybackCommands(Workbench& bench, ToolOpener& tools, ColumnClock& clock)
    : bench_(bench), tools_(tools), clock_(clock) {}

void PlaybackCommands::registerRows(CommandTable& table) {
    table.item("mnuSoundPlayAll", [this] { play(PlayFrom::Start); });
    table.item("mnuPlayFromHere", [this] { play(PlayFrom::Cursor); });
    table.item("mnuPlaybackStop", [this] { mnuPlaybackStop(); });
    table.wordOfItem("playall", "mnuSoundPlayAll");
    table.wordOfItem("playfromhere", "mnuPlayFromHere");
    table.wordOfItem("stop", "mnuPlaybackStop");
}

void PlaybackCommands::play(PlayFrom from) {
    tools_.load("frmFileProperties");
    const auto interval = playbackInterval(bench_.document.Tempo, bench_.player.speedBoost);
    if (!interval) return;
    const Act act(bench_.acts, "StartPlayback");
    if (from == PlayFrom::Cursor) GetCurrentXPosition(bench_.document);
    bench_.document.playback = playbackStart(bench_.document, from);
    bench_.player.soundingColumn = std::max<int>(bench_.document.playback.PlaybackPosition, 0);
    StartPlayback(*interval);
}

void PlaybackCommands::mnuPlaybackStop() {
    bench_.sound.AllNotesOff();
    StopTimer();
}

void PlaybackCommands::StartPlayback(int interval) {
    clock_.setInterval(interval);
    clock_.setEnabled(true);
    tellPlaying();
}

void PlaybackCommands::StopTimer() {
    const Act act(bench_.acts, "StopTimer");
    bench_.document.playback.PlaybackPosition = 0;
    clock_.setEnabled(false);
    tellPlaying();
}

void PlaybackCommands::tellPlaying() {
    bench_.player.playing = clock_.isEnabled();
    bench_.acts.changes().playing = true;
}

// The next tick goes on behind the column that sounds.
void PlaybackCommands::tellColumn() {
    const Act act(bench_.acts, "HiTime1_Timer");
    bench_.player.soundingColumn = std::max<int>(bench_.document.playback.PlaybackPosition - 1, 0);
}

void PlaybackCommands::HiTime1_Timer() {
    if (!clock_.isEnabled()) return;
    if (playTick(bench_.document, bench_.document.playback, bench_.sound) == TickResult::Playing)
        return tellColumn();
    StopTimer();
    bench_.sound.AllNotesOff();
}

} // namespace tabrova
