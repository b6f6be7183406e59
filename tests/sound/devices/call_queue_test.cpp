// Calls that may hang: their order, the time that the giver waits, and what is left when nobody waits any
// more.
#include "sound/devices/call_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <vector>

namespace tabrova {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto LongTime = 60s; // a busy machine is given this long

// A server that answers when it is told to.
class Server {
  public:
    ~Server() { answer(); }
    CallQueue::Call call() {
        return [answer = answer_] { answer.wait(); };
    }
    void answer() {
        if (!std::exchange(answered_, true)) promise_.set_value();
    }

  private:
    bool answered_ = false;
    std::promise<void> promise_;
    std::shared_future<void> answer_ = promise_.get_future().share();
};

bool inTime(const std::function<bool()>& happened) {
    const auto end = Clock::now() + LongTime;
    while (!happened() && Clock::now() < end)
        std::this_thread::sleep_for(1ms);
    return happened();
}

TEST(CallQueues, CarryOutCallsInTheirOrderOnOneOtherThread) {
    CallQueue calls;
    std::vector<int> order;
    std::vector<std::thread::id> threads;
    for (int number = 0; number < 100; ++number)
        calls.post([&, number] {
            order.push_back(number);
            threads.push_back(std::this_thread::get_id());
        });
    ASSERT_TRUE(calls.finishes(LongTime));
    ASSERT_EQ(order.size(), 100u);
    for (int number = 0; number < 100; ++number)
        EXPECT_EQ(order[static_cast<std::size_t>(number)], number);
    EXPECT_NE(threads.front(), std::this_thread::get_id());
    EXPECT_EQ(threads.front(), threads.back());
}

TEST(CallQueues, WithoutACallAreFinished) {
    CallQueue calls;
    EXPECT_TRUE(calls.finishes(0ms));
    EXPECT_FALSE(calls.hangs());
}

TEST(CallQueues, WaitNoLongerThanTheyAreTold) {
    Server server;
    CallQueue calls;
    calls.post(server.call());
    const auto start = Clock::now();
    EXPECT_FALSE(calls.finishes(50ms));
    EXPECT_GE(Clock::now() - start, 50ms);
    EXPECT_LT(Clock::now() - start, LongTime);
    server.answer();
    EXPECT_TRUE(calls.finishes(LongTime));
}

// Two waits of the window's thread are to be less than a second.
TEST(CallQueues, AreWaitedForLessThanHalfASecond) { EXPECT_LT(2 * AnswerTime, 1s); }

TEST(CallQueues, FinishOnlyWhenTheLastCallIsDone) {
    Server server;
    CallQueue calls;
    calls.post([] {});
    calls.post(server.call());
    calls.post([] {});
    EXPECT_FALSE(calls.finishes(20ms));
    server.answer();
    EXPECT_TRUE(calls.finishes(LongTime));
}

// Closing a connection is what may hang.
TEST(CallQueues, FinishOnlyWhenWhatTheCallsOwnedIsGone) {
    struct SlowToGo {
        std::atomic<bool>& gone;
        ~SlowToGo() {
            std::this_thread::sleep_for(20ms);
            gone = true;
        }
    };
    std::atomic<bool> gone = false;
    CallQueue calls;
    calls.post([owned = std::make_shared<SlowToGo>(gone)] {});
    EXPECT_TRUE(calls.finishes(LongTime));
    EXPECT_TRUE(gone);
}

TEST(CallQueues, TellWhenACallHangs) {
    Server server;
    CallQueue calls;
    calls.post(server.call());
    EXPECT_FALSE(calls.hangs());
    std::this_thread::sleep_for(HangTime / 2);
    EXPECT_FALSE(calls.hangs()) << "half the time is no hang";
    EXPECT_TRUE(inTime([&] { return calls.hangs(); }));
    server.answer();
    ASSERT_TRUE(calls.finishes(LongTime));
    EXPECT_FALSE(calls.hangs());
}

TEST(CallQueues, EndWithTheirThreadWhenNothingHangs) {
    std::atomic<int> done = 0;
    {
        CallQueue calls;
        for (int number = 0; number < 10; ++number)
            calls.post([&done] { ++done; });
    }
    EXPECT_EQ(done, 10);
}

TEST(CallQueues, LeaveAHangingCallToItsThreadWhichGoesOnLater) {
    auto done = std::make_shared<std::atomic<int>>(0);
    std::weak_ptr<std::atomic<int>> kept = done;
    Server server;
    {
        CallQueue calls;
        calls.post(server.call());
        calls.post([done] { ++*done; });
        calls.post([done] { ++*done; });
        const auto start = Clock::now();
        EXPECT_FALSE(calls.finishes(1ms));
        EXPECT_LT(Clock::now() - start, LongTime);
    }
    EXPECT_EQ(*done, 0);
    server.answer();
    EXPECT_TRUE(inTime([&] { return *done == 2; }));
    done.reset();
    EXPECT_TRUE(inTime([&] { return kept.expired(); })) << "the thread keeps what it has done";
}

} // namespace
} // namespace tabrova
