// The periodic timer of a window, and the list by which a test stops and delivers its events.
#include "platform/window_timer.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Timers : public ::testing::Test {
  protected:
    WindowTimer timer(const QString& name, int interval) {
        return WindowTimer(
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

TEST_F(Timers, AreListedByTheirNamesWhileTheyLive) {
    {
        const WindowTimer first = timer("tmrFirst", 100);
        const WindowTimer second = timer("tmrSecond", 200);
        EXPECT_EQ(first.objectName(), "tmrFirst");
        EXPECT_EQ(first.timerName(), "tmrFirst");
        EXPECT_EQ(list.timers().keys(), QStringList({"tmrFirst", "tmrSecond"}));
        EXPECT_EQ(list.timers().value("tmrSecond"), &second);
        EXPECT_EQ(list.timers().value("tmrSecond")->timerInterval(), 200);
    }
    EXPECT_TRUE(list.timers().isEmpty());
}

TEST_F(Timers, OfTheSameNameStepAsideForTheNewestAndLeaveItListed) {
    auto older = std::make_unique<WindowTimer>(
        list, "tmr", 1, [] {}, nullptr);
    const WindowTimer newer = timer("tmr", 2);
    older.reset();
    EXPECT_EQ(list.timers().value("tmr"), &newer);
}

TEST_F(Timers, RestUntilTheyAreEnabled) {
    WindowTimer clock = timer("tmr", 1);
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

TEST_F(Timers, HaveAnIntervalOfOneMillisecondAtLeast) {
    WindowTimer clock = timer("tmr", 100);
    for (const auto& [wanted, taken] : {std::pair{0, 1}, {-5, 1}, {1, 1}, {2, 2}, {1000, 1000}}) {
        clock.setInterval(wanted);
        EXPECT_EQ(clock.timerInterval(), taken);
    }
}

TEST_F(Timers, TakeANewIntervalWhileTheyRun) {
    WindowTimer clock = timer("tmr", 3600000);
    clock.setEnabled(true);
    clock.setInterval(1);
    EXPECT_TRUE(ticksAgain());
}

TEST_F(Timers, StartAfreshWhenTheyAreEnabledOnceMore) {
    WindowTimer clock = timer("tmr", 200);
    clock.setEnabled(true);
    for (int i = 0; i < 8; ++i) {
        QTest::qSleep(40);
        clock.setEnabled(true);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(ticksAgain());
}

TEST_F(Timers, DeliverSingleEventsOnlyWhileEnabled) {
    WindowTimer clock = timer("tmr", 3600000);
    ListedTimer* listed = list.timers().value("tmr");
    EXPECT_FALSE(listed->fire());
    EXPECT_EQ(ticks, 0);
    clock.setEnabled(true);
    EXPECT_TRUE(listed->fire());
    EXPECT_EQ(ticks, 1);
}

TEST_F(Timers, StandStillWhileTheListIsFrozen) {
    WindowTimer clock = timer("tmr", 1);
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

TEST_F(Timers, ThatAreDisabledStayStillWhenTheListThaws) {
    const WindowTimer clock = timer("tmr", 1);
    list.setFrozen(true);
    list.setFrozen(false);
    EXPECT_TRUE(rests());
}

} // namespace
} // namespace tabrova
