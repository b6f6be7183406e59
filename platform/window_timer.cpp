#include "platform/window_timer.h"

#include <algorithm>

namespace tabrova {

namespace {

using namespace std::chrono_literals;

// The toolkit's timers count whole milliseconds.
constexpr auto HalfAStep = 500us;
// Ticks that are further behind are given up, and the time begins anew.
constexpr auto MostBehind = 1s;

} // namespace

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
    clock_.setSingleShot(true);
    QObject::connect(&clock_, &QTimer::timeout, this, [this] { timeOut(); });
}

void WindowTimer::setInterval(int milliseconds) {
    interval_ = std::max(milliseconds, 1);
    waitForNextTick();
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
    last_ = Clock::now();
    waitForNextTick();
}

void WindowTimer::waitForNextTick() {
    if (!enabled_ || frozen()) return clock_.stop();
    const auto left = last_ + std::chrono::milliseconds(interval_) - Clock::now() + HalfAStep;
    clock_.start(std::max(std::chrono::floor<std::chrono::milliseconds>(left), 0ms));
}

void WindowTimer::timeOut() {
    const auto due = last_ + std::chrono::milliseconds(interval_);
    const auto now = Clock::now();
    if (now + HalfAStep < due) return waitForNextTick();
    last_ = now - due > MostBehind ? now : due;
    waitForNextTick();
    fire();
}

} // namespace tabrova
