#include "platform/steady_timer.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace tabrova {

namespace {

// Ticks that are further behind are given up, and the time begins anew.
constexpr std::chrono::seconds MostBehind(1);

constexpr auto TickEvent = QEvent::User;

// Runs on the service's thread: posts, and touches no field of the timer.
void postTick(void* timer) {
    QCoreApplication::postEvent(static_cast<QObject*>(timer), new QEvent(TickEvent), Qt::HighEventPriority);
}

} // namespace

SteadyTimer::SteadyTimer(TimerList& list, const QString& name, int interval, std::function<void()> tick,
                         QObject* parent)
    : QObject(parent), ListedTimer(list, name), tick_(std::move(tick)), interval_(interval) {
    setObjectName(name);
}

SteadyTimer::~SteadyTimer() { deadlines().timeKillEvent(call_); }

void SteadyTimer::setInterval(int milliseconds) {
    interval_ = std::max(milliseconds, 1);
    waitForNextTick();
}

void SteadyTimer::setEnabled(bool enabled) {
    enabled_ = enabled;
    runClock();
}

bool SteadyTimer::fire() {
    if (!enabled_) return false;
    tick_();
    return true;
}

void SteadyTimer::runClock() {
    last_ = Clock::now();
    waitForNextTick();
}

void SteadyTimer::waitForNextTick() {
    deadlines().timeKillEvent(call_);
    call_ = 0;
    QObject* timer = this;
    if (enabled_ && !frozen()) call_ = deadlines().callAt(due(), postTick, timer);
}

bool SteadyTimer::event(QEvent* event) {
    if (event->type() != TickEvent) return QObject::event(event);
    timeOut();
    return true;
}

// A tick may have been posted before the timer was stopped or given a longer interval: then it is not due.
void SteadyTimer::timeOut() {
    const auto now = Clock::now();
    if (!enabled_ || frozen() || now < due()) return;
    last_ = now - due() > MostBehind ? now : due();
    waitForNextTick();
    fire();
}

} // namespace tabrova
