// The window timers: ordinary periodic timers with a name, an interval in milliseconds and an enabled flag,
// all known to one list, so that a test can stop their clocks and deliver single events.
#pragma once

#include <QMap>
#include <QObject>
#include <QTimer>

#include <functional>

namespace tabrova {

class WindowTimer;

class TimerList {
  public:
    const QMap<QString, WindowTimer*>& timers() const { return timers_; }
    // No timer ticks by itself while the list is frozen.
    bool frozen() const { return frozen_; }
    void setFrozen(bool frozen);

  private:
    friend class WindowTimer;
    QMap<QString, WindowTimer*> timers_;
    bool frozen_ = false;
};

class WindowTimer : public QObject {
  public:
    // `tick` is the Timer event.
    WindowTimer(TimerList& list, const QString& name, int interval, std::function<void()> tick,
                QObject* parent);
    ~WindowTimer() override;

    int interval() const { return interval_; }
    bool enabled() const { return enabled_; }
    // At least 1 ms. A running timer starts afresh.
    void setInterval(int milliseconds);
    // true starts a new interval, also when the timer runs.
    void setEnabled(bool enabled);
    // Delivers one Timer event now, if the timer is enabled; false if it is not.
    bool fire();

  private:
    friend class TimerList;
    void runClock();

    TimerList& list_;
    std::function<void()> tick_;
    QTimer clock_;
    int interval_;
    bool enabled_ = false;
};

} // namespace tabrova
