#include "platform/window_timer.h"

#include <algorithm>

namespace tabrova {

void TimerList::setFrozen(bool frozen) {
    frozen_ = frozen;
    for (WindowTimer* timer : timers_)
        timer->runClock();
}

WindowTimer::WindowTimer(TimerList& list, const QString& name, int interval, std::function<void()> tick,
                         QObject* parent)
    : QObject(parent), list_(list), tick_(std::move(tick)), interval_(interval) {
    setObjectName(name);
    clock_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock_, &QTimer::timeout, this, [this] { fire(); });
    list_.timers_.insert(name, this);
}

WindowTimer::~WindowTimer() { list_.timers_.remove(objectName()); }

void WindowTimer::setInterval(int milliseconds) {
    interval_ = std::max(milliseconds, 1);
    runClock();
}

void WindowTimer::setEnabled(bool enabled) {
    enabled_ = enabled;
    runClock();
}

bool WindowTimer::fire() {
    if (!enabled_) return false;
    tick_();
    return true;
}

void WindowTimer::runClock() {
    if (enabled_ && !list_.frozen_) {
        clock_.start(interval_);
    } else {
        clock_.stop();
    }
}

} // namespace tabrova
