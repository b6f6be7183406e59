// Signals that ask the program to end, sent to this process itself or to a child of it.
#include "platform/end_signals.h"

#include <QtGlobal>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QTimer>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tabrova {
namespace {

class SignalsOfTheEnd : public ::testing::TestWithParam<int> {
  protected:
    SignalsOfTheEnd() {
        for (std::size_t at = 0; at < All.size(); ++at)
            before[at] = std::signal(All[at], SIG_DFL);
    }
    ~SignalsOfTheEnd() override {
        for (std::size_t at = 0; at < All.size(); ++at)
            std::signal(All[at], before[at]);
    }
    static void (*handlerOf(int number))(int) {
        struct sigaction now {};
        sigaction(number, nullptr, &now);
        return now.sa_handler;
    }
    // By which signal a child that does this ends; 0 if by none.
    template <class Work>
    static int endOfChild(Work work) {
        const pid_t child = fork();
        if (child == 0) {
            work();
            _exit(0);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

    static constexpr std::array All = {SIGTERM, SIGINT, SIGHUP};
    std::array<void (*)(int), 3> before{};
};

TEST_P(SignalsOfTheEnd, AreToldInTheLoopAndInEveryLoopAfterwards) {
    int asked = 0;
    const EndSignals endSignals([&asked] {
        ++asked;
        QCoreApplication::exit(5);
    });
    std::raise(GetParam());
    EXPECT_EQ(asked, 0) << "never in the handler itself";
    QTimer late;
    late.callOnTimeout([] { QCoreApplication::exit(7); });
    late.start(60000);
    for (int round = 0; round < 2; ++round)
        EXPECT_EQ(QCoreApplication::exec(), 5);
    EXPECT_EQ(asked, 2);
}

TEST_P(SignalsOfTheEnd, EndTheProgramAtOnceWhenTheyComeTwice) {
    const int second = GetParam();
    EXPECT_EQ(endOfChild([] {
                  const EndSignals endSignals([] {});
                  std::raise(SIGTERM);
              }),
              0);
    EXPECT_EQ(endOfChild([second] {
                  const EndSignals endSignals([] {});
                  std::raise(SIGTERM);
                  std::raise(second);
              }),
              second);
}

// A stopped program that goes on gets each waiting signal in whichever thread wakes first.
TEST_P(SignalsOfTheEnd, EndTheProgramAlsoWhenTwoThreadsGetThemAtTheSameMoment) {
    const int second = GetParam();
    for (int round = 0; round < 100; ++round)
        ASSERT_NE(endOfChild([second] {
                      const EndSignals endSignals([] {});
                      std::atomic<int> ready = 0;
                      const auto raise = [&ready](int number) {
                          ++ready;
                          while (ready < 2) {
                          }
                          std::raise(number);
                      };
                      std::thread other(raise, SIGTERM);
                      raise(second);
                      other.join();
                  }),
                  0)
            << "round " << round;
}

TEST_P(SignalsOfTheEnd, StayIgnoredIfTheyWere) {
    std::signal(GetParam(), SIG_IGN);
    {
        const EndSignals endSignals([] {});
        for (const int number : All)
            EXPECT_EQ(handlerOf(number) == SIG_IGN, number == GetParam()) << number;
    }
    EXPECT_EQ(handlerOf(GetParam()), SIG_IGN);
}

TEST_P(SignalsOfTheEnd, AreTheSystemsAgainAfterwards) {
    {
        const EndSignals endSignals([] {});
    }
    EXPECT_EQ(handlerOf(GetParam()), SIG_DFL);
}

TEST_P(SignalsOfTheEnd, LeaveErrnoAlone) {
    const EndSignals endSignals([] {});
    errno = ERANGE;
    std::raise(GetParam());
    EXPECT_EQ(errno, ERANGE);
}

TEST_F(SignalsOfTheEnd, HandNothingDownToOtherPrograms) {
    const auto open = [](int end) { return fcntl(end, F_GETFD) >= 0; };
    std::vector<int> free;
    for (int end = 0; end < 200; ++end)
        if (!open(end)) free.push_back(end);
    const EndSignals endSignals([] {});
    int taken = 0;
    for (const int end : free) {
        if (!open(end)) continue;
        ++taken;
        EXPECT_TRUE(fcntl(end, F_GETFD) & FD_CLOEXEC) << end;
    }
    EXPECT_GE(taken, 2);
}

INSTANTIATE_TEST_SUITE_P(Each, SignalsOfTheEnd, ::testing::Values(SIGTERM, SIGINT, SIGHUP));

} // namespace
} // namespace tabrova

#else

TEST(SignalsOfTheEnd, DoNotExistHere) { GTEST_SKIP() << "this system has no signals"; }

#endif
