// The timer of what plays a rhythm, in a window's hands like the ordinary one. Its ticks keep time: each is
// due one interval after the one before was due, however late that came, to a part of a millisecond.
#pragma once

#include "platform/window_timer.h"

namespace tabrova {

class SteadyTimer : public QObject, public ListedTimer {
  public:
    // `tick` is the Timer event. It comes on the thread of the user interface.
    SteadyTimer(TimerList& list, const QString& name, int interval, std::function<void()> tick,
                QObject* parent);
    ~SteadyTimer() override;

    int timerInterval() const override { return interval_; }
    bool timerEnabled() const override { return enabled_; }
    bool fire() override;
    // At least 1 ms. The next tick of a running timer is due one new interval after its last one.
    void setInterval(int milliseconds);
    // true starts a new interval, also when the timer runs.
    void setEnabled(bool enabled);

  protected:
    bool event(QEvent* event) override;

  private:
    using Clock = SystemTimerService::Clock;

    Clock::time_point due() const { return last_ + std::chrono::milliseconds(interval_); }
    void runClock() override;
    void waitForNextTick();
    void timeOut();

    std::function<void()> tick_;
    int interval_;
    bool enabled_ = false;
    Clock::time_point last_; // when the last tick was due, or the timer was started
    std::uint32_t call_ = 0; // the one that is waited for
};

} // namespace tabrova
