// Calls that may have to wait for a server of the machine, carried out one after the other on a thread of
// their own. Whoever gives them waits a moment at most: a server that hangs keeps this thread, never the
// window's.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace tabrova {

// How long the window's thread waits for a call: twice of it is still less than a second.
constexpr std::chrono::milliseconds AnswerTime(300);
// A call that takes longer waits for a server that does not answer.
constexpr std::chrono::milliseconds HangTime(1000);

class CallQueue {
  public:
    // A call must own all that it uses, since it may come to its turn when the giver is long gone.
    using Call = std::function<void()>;

    CallQueue();
    CallQueue(const CallQueue&) = delete;
    CallQueue& operator=(const CallQueue&) = delete;
    // Waits for AnswerTime. What has not ended by then is left to its thread, which goes on with the calls
    // given so far whenever the server lets it.
    ~CallQueue();

    void post(Call call);
    // Waits until all calls given so far are done and their objects gone; false if that takes longer.
    bool finishes(std::chrono::milliseconds limit);
    // The call under way has been waiting for longer than HangTime.
    bool hangs() const;

  private:
    struct Shared;
    static void carryOut(Shared& shared);

    std::shared_ptr<Shared> shared_;
    std::thread thread_; // from the first call on
};

} // namespace tabrova
