#include "platform/window_timer.h"

#include <algorithm>

namespace tabrova {

void TimerList::setFrozen(bool frozen) {
    frozen_ = frozen;
    for (ListedTimer* timer : timers_)
        timer->runClock();
}

ListedTimer::ListedTimer(TimerList& list, const QString& name) : list_(list), name_(name) {
    list_.timers_.insert(name_, this);
}

ListedTimer::~ListedTimer() {
    if (list_.timers_.value(name_) == this) list_.timers_.remove(name_);
}

WindowTimer::WindowTimer(TimerList& list, const QString& name, int interval, std::function<void()> tick,
                         QObject* parent)
    : QObject(parent), ListedTimer(list, name), tick_(std::move(tick)), interval_(interval) {
    setObjectName(name);
    clock_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock_, &QTimer::timeout, this, [this] { fire(); });
}

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
    if (enabled_ && !frozen()) {
        clock_.start(interval_);
    } else {
        clock_.stop();
    }
}

} // namespace tabrova
