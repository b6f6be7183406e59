#include "platform/end_signals.h"

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tabrova {

namespace {

constexpr std::array Signals = {SIGTERM, SIGINT, SIGHUP};

// All that the handler may touch: it can come at any moment, and two signals in two threads at the same one.
std::atomic<int> writingEnd = -1;
std::atomic<bool> arrived = false;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

void handle(int number) {
    const int error = errno;
    if (arrived.exchange(true)) {
        std::signal(number, SIG_DFL);
        std::raise(number);
    }
    if (write(writingEnd, "x", 1) < 0) {
    } // nothing more can be done here
    errno = error;
}

} // namespace

// The byte is never read: the pipe stays readable, and every loop that runs is told.
struct EndSignals::Pipe {
    explicit Pipe(const std::function<void()>& asked) {
        if (pipe(ends.data()) != 0) return;
        for (const int end : ends)
            fcntl(end, F_SETFD, FD_CLOEXEC);
        notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), asked);
        writingEnd = ends[1];
        arrived = false;
        for (std::size_t at = 0; at < Signals.size(); ++at)
            install(at);
    }
    ~Pipe() {
        if (!notifier) return;
        for (std::size_t at = 0; at < Signals.size(); ++at)
            sigaction(Signals[at], &before[at], nullptr);
        notifier.reset();
        for (const int end : ends)
            close(end);
    }

  private:
    void install(std::size_t at) {
        sigaction(Signals[at], nullptr, &before[at]);
        if (before[at].sa_handler == SIG_IGN) return;
        struct sigaction action {};
        action.sa_handler = handle;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        sigaction(Signals[at], &action, nullptr);
    }

    std::array<int, 2> ends{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
    std::array<struct sigaction, Signals.size()> before{};
};

EndSignals::EndSignals(std::function<void()> asked) : pipe_(std::make_unique<Pipe>(asked)) {}

} // namespace tabrova

#else

namespace tabrova {

struct EndSignals::Pipe {};

EndSignals::EndSignals(std::function<void()>) {}

} // namespace tabrova

#endif

tabrova::EndSignals::~EndSignals() = default;
