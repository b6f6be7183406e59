#include "workbench/playback_commands.h"

#include "core/document/document_operations.h"

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

void PlaybackCommands::HiTime1_Timer() {
    if (!clock_.isEnabled()) return;
    if (playTick(bench_.document, bench_.document.playback, bench_.sound) == TickResult::Playing) return;
    StopTimer();
    bench_.sound.AllNotesOff();
}

} // namespace tabrova
