// The timer that keeps time: all that an ordinary one does, and ticks that are made up for.
#include "platform/steady_timer.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class SteadyTimers : public ::testing::Test {
  protected:
    SteadyTimer timer(const QString& name, int interval) {
        return SteadyTimer(
            list, name, interval, [this] { ++ticks; }, nullptr);
    }
    bool ticksAgain() {
        const int before = ticks;
        return QTest::qWaitFor([&] { return ticks > before; }, 20000);
    }
    // Many times the interval of the timers here.
    bool rests() {
        const int before = ticks;
        QTest::qWait(30);
        return ticks == before;
    }

    TimerList list;
    int ticks = 0;
};

TEST_F(SteadyTimers, AreListedByTheirNamesWhileTheyLive) {
    {
        const SteadyTimer first = timer("tmrFirst", 100);
        const SteadyTimer second = timer("tmrSecond", 200);
        EXPECT_EQ(first.objectName(), "tmrFirst");
        EXPECT_EQ(first.timerName(), "tmrFirst");
        EXPECT_EQ(list.timers().keys(), QStringList({"tmrFirst", "tmrSecond"}));
        EXPECT_EQ(list.timers().value("tmrSecond"), &second);
        EXPECT_EQ(list.timers().value("tmrSecond")->timerInterval(), 200);
    }
    EXPECT_TRUE(list.timers().isEmpty());
}

TEST_F(SteadyTimers, RestUntilTheyAreEnabled) {
    SteadyTimer clock = timer("tmr", 1);
    EXPECT_FALSE(clock.timerEnabled());
    EXPECT_TRUE(rests());
    clock.setEnabled(true);
    EXPECT_TRUE(clock.timerEnabled());
    EXPECT_TRUE(ticksAgain());
    EXPECT_TRUE(ticksAgain());
    clock.setEnabled(false);
    EXPECT_FALSE(clock.timerEnabled());
    EXPECT_TRUE(rests());
}

TEST_F(SteadyTimers, HaveAnIntervalOfOneMillisecondAtLeast) {
    SteadyTimer clock = timer("tmr", 100);
    for (const auto& [wanted, taken] : {std::pair{0, 1}, {-5, 1}, {1, 1}, {2, 2}, {1000, 1000}}) {
        clock.setInterval(wanted);
        EXPECT_EQ(clock.timerInterval(), taken);
    }
}

TEST_F(SteadyTimers, TakeANewIntervalWhileTheyRun) {
    SteadyTimer clock = timer("tmr", 3600000);
    clock.setEnabled(true);
    clock.setInterval(1);
    EXPECT_TRUE(ticksAgain());
}

TEST_F(SteadyTimers, StartAfreshWhenTheyAreEnabledOnceMore) {
    SteadyTimer clock = timer("tmr", 200);
    clock.setEnabled(true);
    for (int i = 0; i < 8; ++i) {
        QTest::qSleep(40);
        clock.setEnabled(true);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(ticksAgain());
}

TEST_F(SteadyTimers, CountANewIntervalFromTheLastTick) {
    SteadyTimer clock = timer("tmr", 3600000);
    clock.setEnabled(true);
    QTest::qSleep(1100);
    clock.setInterval(1300);
    QTest::qWait(700);
    EXPECT_EQ(ticks, 1);
}

TEST_F(SteadyTimers, MakeUpForTicksThatCouldNotComeInTime) {
    SteadyTimer clock = timer("tmr", 50);
    clock.setEnabled(true);
    QTest::qSleep(930);
    QEventLoop loop; // it sleeps only while there is nothing to do
    QTimer::singleShot(40, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_GE(ticks, 18);
}

TEST_F(SteadyTimers, GiveUpTicksThatAreMoreThanASecondBehind) {
    SteadyTimer clock = timer("tmr", 300);
    clock.setEnabled(true);
    QTest::qSleep(1500);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(rests());
    EXPECT_TRUE(ticksAgain());
}

TEST_F(SteadyTimers, MayGoWhileATickIsOnItsWay) {
    auto clock = std::make_unique<SteadyTimer>(
        list, "tmr", 1, [this] { ++ticks; }, nullptr);
    clock->setEnabled(true);
    QTest::qSleep(20);
    clock.reset();
    EXPECT_TRUE(rests());
    EXPECT_EQ(ticks, 0);
}

TEST_F(SteadyTimers, LeaveOutATickThatWasOnItsWayWhenTheyWereStopped) {
    SteadyTimer clock = timer("tmr", 1);
    clock.setEnabled(true);
    QTest::qSleep(20);
    clock.setEnabled(false);
    EXPECT_TRUE(rests());
    clock.setEnabled(true);
    QTest::qSleep(20);
    clock.setInterval(3600000);
    EXPECT_TRUE(rests());
    EXPECT_EQ(ticks, 0);
}

TEST_F(SteadyTimers, MayBeStoppedOrGivenAnotherIntervalByTheirOwnTick) {
    std::unique_ptr<SteadyTimer> clock;
    const auto act = [&] {
        ++ticks;
        ticks < 3 ? clock->setInterval(ticks + 1) : clock->setEnabled(false);
    };
    clock = std::make_unique<SteadyTimer>(list, "tmr", 1, act, nullptr);
    clock->setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }, 20000));
    EXPECT_EQ(clock->timerInterval(), 3);
    EXPECT_TRUE(rests());
}

TEST_F(SteadyTimers, DeliverSingleEventsOnlyWhileEnabled) {
    SteadyTimer clock = timer("tmr", 3600000);
    ListedTimer* listed = list.timers().value("tmr");
    EXPECT_FALSE(listed->fire());
    EXPECT_EQ(ticks, 0);
    clock.setEnabled(true);
    EXPECT_TRUE(listed->fire());
    EXPECT_EQ(ticks, 1);
}

TEST_F(SteadyTimers, StandStillWhileTheListIsFrozen) {
    SteadyTimer clock = timer("tmr", 1);
    clock.setEnabled(true);
    EXPECT_FALSE(list.frozen());
    list.setFrozen(true);
    EXPECT_TRUE(list.frozen());
    EXPECT_TRUE(rests());
    clock.setEnabled(true);
    clock.setInterval(2);
    EXPECT_TRUE(rests());
    EXPECT_TRUE(clock.fire());
    list.setFrozen(false);
    EXPECT_TRUE(ticksAgain());
}

TEST_F(SteadyTimers, ThatAreDisabledStayStillWhenTheListThaws) {
    const SteadyTimer clock = timer("tmr", 1);
    list.setFrozen(true);
    list.setFrozen(false);
    EXPECT_TRUE(rests());
}

} // namespace
} // namespace tabrova
