// The program's timers by name: an interval in milliseconds, an enabled flag and a Timer event, all known to
// one list, so that a test can stop their clocks and deliver single events. WindowTimer is the ordinary
// periodic one.
#pragma once

#include "platform/timer_service.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <functional>

namespace tabrova {

class ListedTimer;

class TimerList {
  public:
    const QMap<QString, ListedTimer*>& timers() const { return timers_; }
    // No timer ticks by itself while the list is frozen.
    bool frozen() const { return frozen_; }
    void setFrozen(bool frozen);

  private:
    friend class ListedTimer;
    QMap<QString, ListedTimer*> timers_;
    bool frozen_ = false;
    SystemTimerService deadlines_;
};

class ListedTimer {
  public:
    ListedTimer(TimerList& list, const QString& name);
    ListedTimer(const ListedTimer&) = delete;
    ListedTimer& operator=(const ListedTimer&) = delete;
    virtual ~ListedTimer();

    const QString& timerName() const { return name_; }
    virtual int timerInterval() const = 0;
    virtual bool timerEnabled() const = 0;
    // Delivers one Timer event now, if the timer is enabled; false if it is not.
    virtual bool fire() = 0;

  protected:
    friend class TimerList;
    bool frozen() const { return list_.frozen(); }
    // Calls at a given time, from a thread of its own, for timers that need it finer than the toolkit has it.
    SystemTimerService& deadlines() { return list_.deadlines_; }
    // The list was frozen or thawed.
    virtual void runClock() = 0;

  private:
    TimerList& list_;
    QString name_;
};

class WindowTimer : public QObject, public ListedTimer {
  public:
    // `tick` is the Timer event.
    WindowTimer(TimerList& list, const QString& name, int interval, std::function<void()> tick,
                QObject* parent);

    int timerInterval() const override { return interval_; }
    bool timerEnabled() const override { return enabled_; }
    bool fire() override;
    // At least 1 ms. A running timer starts afresh.
    void setInterval(int milliseconds);
    // true starts a new interval, also when the timer runs.
    void setEnabled(bool enabled);

  private:
    void runClock() override;

    std::function<void()> tick_;
    QTimer clock_;
    int interval_;
    bool enabled_ = false;
};

} // namespace tabrova
