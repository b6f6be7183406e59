// Playback: the two play commands, stop, and what the clock's tick does.
#pragma once

#include "editing/command_table.h"
#include "sound/playback.h"
#include "workbench/column_clock.h"
#include "workbench/tool_opener.h"
#include "workbench/workbench.h"

namespace tabrova {

class PlaybackCommands {
  public:
    PlaybackCommands(Workbench& bench, ToolOpener& tools, ColumnClock& clock);
    void registerRows(CommandTable& table);

    // The document's properties are loaded by it. A tempo that gives no interval starts nothing.
    void play(PlayFrom from);
    void mnuPlaybackStop();
    // At the first column again. Whatever stands still during playback is told to go on.
    void StopTimer();
    // One tick of the clock; one that was posted before the stop plays nothing.
    void HiTime1_Timer();

  private:
    void StartPlayback(int interval);
    void tellPlaying();
    void tellColumn();

    Workbench& bench_;
    ToolOpener& tools_;
    ColumnClock& clock_;
};

} // namespace tabrova
