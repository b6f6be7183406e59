// `Hitime1` as the clock of playback.
#pragma once

#include "sound/hi_pre_timer.h"
#include "workbench/column_clock.h"

namespace tabrova {

class PlaybackClock : public ColumnClock {
  public:
    // The control is a child of `form`. `tick` is its Timer event.
    PlaybackClock(TimerService& service, TimerList& timers, QWidget* form, std::function<void()> tick);

    void setInterval(int milliseconds) override { Hitime1_->setInterval(milliseconds); }
    void setEnabled(bool enabled) override { Hitime1_->setEnabledProperty(enabled); }
    bool isEnabled() const override { return Hitime1_->Enabled(); }

  private:
    ctlHiPreTimer* Hitime1_;
};

} // namespace tabrova
