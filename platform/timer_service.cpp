#include "platform/timer_service.h"

#include <algorithm>

namespace tabrova {

SystemTimerService::~SystemTimerService() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

TimeCaps SystemTimerService::timeGetDevCaps() const { return {1, 1000000}; }

std::uint32_t SystemTimerService::timeSetEvent(std::int32_t delay, std::int32_t, TimeCallback callback,
                                               void* user, unsigned flags) {
    const TimeCaps caps = timeGetDevCaps();
    if (delay < caps.wPeriodMin || delay > caps.wPeriodMax) return 0;
    const std::chrono::milliseconds period(delay);
    const std::lock_guard lock(mutex_);
    return add({0, Clock::now() + period, period, callback, user, (flags & TIME_PERIODIC) != 0});
}

std::uint32_t SystemTimerService::callAt(Clock::time_point due, TimeCallback callback, void* user) {
    const std::lock_guard lock(mutex_);
    return add({0, due, {}, callback, user, false});
}

std::uint32_t SystemTimerService::add(Event event) {
    if (++lastId_ == 0) ++lastId_;
    event.id = lastId_;
    events_.push_back(event);
    if (!thread_.joinable()) thread_ = std::thread([this] { serve(); });
    changed_.notify_all();
    return lastId_;
}

void SystemTimerService::timeKillEvent(std::uint32_t id) {
    // Calls are made under the same lock: none is under way once it is held.
    const std::lock_guard lock(mutex_);
    std::erase_if(events_, [id](const Event& event) { return event.id == id; });
}

void SystemTimerService::serve() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        const auto next = std::min_element(events_.begin(), events_.end(),
                                           [](const Event& a, const Event& b) { return a.due < b.due; });
        if (next == events_.end()) {
            changed_.wait(lock);
        } else if (const auto due = next->due; due > Clock::now()) {
            changed_.wait_until(lock, due);
        } else {
            call(next);
        }
    }
}

void SystemTimerService::call(std::vector<Event>::iterator event) {
    event->callback(event->user);
    if (event->periodic) {
        event->due += event->delay;
    } else {
        events_.erase(event);
    }
}

} // namespace tabrova
