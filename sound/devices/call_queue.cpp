#include "sound/devices/call_queue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace tabrova {

using Clock = std::chrono::steady_clock;

struct CallQueue::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Call> calls;
    std::optional<Clock::time_point> underWay; // since when
    bool ending = false;

    bool idle() const { return calls.empty() && !underWay; }
};

CallQueue::CallQueue() : shared_(std::make_shared<Shared>()) {}

CallQueue::~CallQueue() {
    if (!thread_.joinable()) return;
    const bool done = finishes(AnswerTime);
    {
        const std::lock_guard lock(shared_->mutex);
        shared_->ending = true;
    }
    shared_->changed.notify_all();
    if (done) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void CallQueue::post(Call call) {
    {
        const std::lock_guard lock(shared_->mutex);
        shared_->calls.push_back(std::move(call));
    }
    shared_->changed.notify_all();
    if (!thread_.joinable()) thread_ = std::thread([shared = shared_] { carryOut(*shared); });
}

bool CallQueue::finishes(std::chrono::milliseconds limit) {
    std::unique_lock lock(shared_->mutex);
    return shared_->changed.wait_for(lock, limit, [this] { return shared_->idle(); });
}

bool CallQueue::hangs() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->underWay && Clock::now() - *shared_->underWay > HangTime;
}

void CallQueue::carryOut(Shared& shared) {
    std::unique_lock lock(shared.mutex);
    for (;;) {
        shared.changed.wait(lock, [&shared] { return shared.ending || !shared.calls.empty(); });
        if (shared.calls.empty()) return;
        Call call = std::move(shared.calls.front());
        shared.calls.pop_front();
        shared.underWay = Clock::now();
        lock.unlock();
        call();
        call = nullptr; // what it owned may have to wait too
        lock.lock();
        shared.underWay.reset();
        shared.changed.notify_all();
    }
}

} // namespace tabrova
