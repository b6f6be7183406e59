// The timer service's thread: deadlines, order, and that nothing comes after a kill.
#include "platform/timer_service.h"

#include <gtest/gtest.h>

#include <atomic>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

void countCall(void* user) { ++*static_cast<std::atomic<int>*>(user); }

bool waitFor(const std::atomic<int>& count, int wanted) {
    for (int i = 0; i < 60000 && count < wanted; ++i)
        std::this_thread::sleep_for(milliseconds(1));
    return count >= wanted;
}

TEST(TimerService, TellsItsPeriods) {
    const SystemTimerService service;
    EXPECT_EQ(service.timeGetDevCaps().wPeriodMin, 1);
    EXPECT_GT(service.timeGetDevCaps().wPeriodMax, 60000);
}

TEST(TimerService, HasNoTimerOutsideItsPeriods) {
    SystemTimerService service;
    std::atomic<int> count = 0;
    for (const int delay : {0, -1, 1000001})
        EXPECT_EQ(service.timeSetEvent(delay, 0, countCall, &count, TIME_PERIODIC), 0u);
}

TEST(TimerService, CallsAOneShotOnce) {
    SystemTimerService service;
    std::atomic<int> count = 0;
    EXPECT_NE(service.timeSetEvent(1, 0, countCall, &count, TIME_ONESHOT), 0u);
    EXPECT_TRUE(waitFor(count, 1));
    std::this_thread::sleep_for(milliseconds(20));
    EXPECT_EQ(count, 1);
}

// The n-th call is never before n delays, and a periodic one goes on.
TEST(TimerService, NeverCallsBeforeTheDeadline) {
    struct Calls {
        std::mutex mutex;
        std::vector<Clock::time_point> times;
    } calls;
    SystemTimerService service;
    const auto start = Clock::now();
    const auto id = service.timeSetEvent(
        5, 0,
        [](void* user) {
            auto* list = static_cast<Calls*>(user);
            const std::lock_guard lock(list->mutex);
            list->times.push_back(Clock::now());
        },
        &calls, TIME_PERIODIC);
    for (int i = 0; i < 6000; ++i) {
        std::this_thread::sleep_for(milliseconds(10));
        const std::lock_guard lock(calls.mutex);
        if (calls.times.size() >= 20) break;
    }
    service.timeKillEvent(id);
    ASSERT_GE(calls.times.size(), 20u);
    for (std::size_t n = 0; n < calls.times.size(); ++n)
        EXPECT_GE(calls.times[n] - start, milliseconds(5 * static_cast<int>(n + 1)));
}

TEST(TimerService, CallsNothingAfterAKill) {
    SystemTimerService service;
    std::atomic<int> count = 0;
    const auto id = service.timeSetEvent(1, 0, countCall, &count, TIME_PERIODIC);
    EXPECT_TRUE(waitFor(count, 3));
    service.timeKillEvent(id);
    const int killed = count;
    std::this_thread::sleep_for(milliseconds(20));
    EXPECT_EQ(count, killed);
    service.timeKillEvent(id);
    service.timeKillEvent(0);
}

TEST(TimerService, NumbersItsTimersFromOne) {
    SystemTimerService service;
    std::atomic<int> count = 0;
    for (const auto id : {1u, 2u, 3u})
        EXPECT_EQ(service.timeSetEvent(60000, 0, countCall, &count, TIME_PERIODIC), id);
}

TEST(TimerService, ServesSeveralTimersByTheirOwnIds) {
    SystemTimerService service;
    std::atomic<int> fast = 0, slow = 0;
    const auto first = service.timeSetEvent(1, 0, countCall, &fast, TIME_PERIODIC);
    const auto second = service.timeSetEvent(60000, 0, countCall, &slow, TIME_PERIODIC);
    EXPECT_NE(first, second);
    EXPECT_TRUE(waitFor(fast, 5));
    EXPECT_EQ(slow, 0);
    service.timeKillEvent(second);
    EXPECT_TRUE(waitFor(fast, fast + 5));
}

TEST(TimerService, EndsWithTimersRunning) {
    std::atomic<int> count = 0;
    {
        SystemTimerService service;
        service.timeSetEvent(1, 0, countCall, &count, TIME_PERIODIC);
        EXPECT_TRUE(waitFor(count, 1));
    }
    const int ended = count;
    std::this_thread::sleep_for(milliseconds(10));
    EXPECT_EQ(count, ended);
}

TEST(TimerServicePeriods, ReachFromAMillisecondToAThousandSeconds) {
    SystemTimerService service;
    EXPECT_EQ(service.timeGetDevCaps().wPeriodMin, 1);
    EXPECT_EQ(service.timeGetDevCaps().wPeriodMax, 1000000);
    const TimeCallback nothing = [](void*) {};
    for (const std::int32_t delay : {0, -1, 1000001})
        EXPECT_EQ(service.timeSetEvent(delay, 0, nothing, nullptr, TIME_ONESHOT), 0u) << delay;
    const std::uint32_t longest = service.timeSetEvent(1000000, 0, nothing, nullptr, TIME_ONESHOT);
    EXPECT_NE(longest, 0u);
    service.timeKillEvent(longest);
}

} // namespace
} // namespace tabrova
