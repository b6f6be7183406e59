// The multimedia timer service: calls a bare function on a thread of its own, at absolute deadlines. The n-th
// call of a periodic timer is due n delays after its start, whenever the earlier calls came; a call that is
// late is made, never left out.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

namespace tabrova {

struct TimeCaps {
    std::int32_t wPeriodMin = 0; // milliseconds
    std::int32_t wPeriodMax = 0;
};

constexpr unsigned TIME_ONESHOT = 0;
constexpr unsigned TIME_PERIODIC = 1;

// Runs on the service's thread: it may do nothing but post.
using TimeCallback = void (*)(void* user);

class TimerService {
  public:
    virtual ~TimerService() = default;
    virtual TimeCaps timeGetDevCaps() const = 0;
    // `delay` and `resolution` in milliseconds; resolution 0 asks for the greatest accuracy there is. Answers
    // the timer's id, 0 if the delay is outside the periods that the service has.
    virtual std::uint32_t timeSetEvent(std::int32_t delay, std::int32_t resolution, TimeCallback callback,
                                       void* user, unsigned flags) = 0;
    // After it no call of this timer is under way or will come. An id that is not there is ignored.
    virtual void timeKillEvent(std::uint32_t id) = 0;
};

class SystemTimerService : public TimerService {
  public:
    SystemTimerService() = default;
    SystemTimerService(const SystemTimerService&) = delete;
    SystemTimerService& operator=(const SystemTimerService&) = delete;
    ~SystemTimerService() override;

    TimeCaps timeGetDevCaps() const override;
    std::uint32_t timeSetEvent(std::int32_t delay, std::int32_t resolution, TimeCallback callback, void* user,
                               unsigned flags) override;
    void timeKillEvent(std::uint32_t id) override;

    using Clock = std::chrono::steady_clock;
    // Calls once, at this time or at once if it is over. Answers the timer's id.
    std::uint32_t callAt(Clock::time_point due, TimeCallback callback, void* user);

  private:
    struct Event {
        std::uint32_t id;
        Clock::time_point due;
        std::chrono::milliseconds delay;
        TimeCallback callback;
        void* user;
        bool periodic;
    };

    // Its id; the caller holds the lock.
    std::uint32_t add(Event event);
    void serve();
    void call(std::vector<Event>::iterator event);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Event> events_;
    std::uint32_t lastId_ = 0;
    bool ending_ = false;
    std::thread thread_; // starts with the first event
};

} // namespace tabrova
