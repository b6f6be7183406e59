// The playback timer: its properties against a service that only writes down what it is asked, and its ticks
// with the real one.
#include "sound/hi_pre_timer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>

namespace tabrova {
namespace {

// Writes down what it is asked; a test delivers the callbacks itself.
class WritingService : public TimerService {
  public:
    TimeCaps timeGetDevCaps() const override {
        ++capsAsked;
        return {1, 65535};
    }
    std::uint32_t timeSetEvent(std::int32_t delay, std::int32_t resolution, TimeCallback function, void* data,
                               unsigned flags) override {
        log.push_back("set " + std::to_string(delay) + " " + std::to_string(resolution) + " " +
                      std::to_string(flags));
        callback = function;
        user = data;
        return failing ? 0 : ++lastId;
    }
    void timeKillEvent(std::uint32_t id) override {
        log.push_back("kill " + std::to_string(id));
        if (hasty) callback(user);
    }

    std::vector<std::string> takeLog() { return std::exchange(log, {}); }

    mutable int capsAsked = 0;
    bool failing = false;
    bool hasty = false; // has posted a tick by the time it is stopped
    std::uint32_t lastId = 0;
    std::vector<std::string> log;
    TimeCallback callback = nullptr;
    void* user = nullptr;
};

// Properties in the order in which they are asked for or written.
class ListBag : public PropertyBag {
  public:
    QVariant ReadProperty(const QString& name, const QVariant& otherwise) const override {
        read.push_back(name.toStdString());
        return values.value(name, otherwise);
    }
    void WriteProperty(const QString& name, const QVariant& value, const QVariant& otherwise) override {
        written.push_back(name.toStdString() + "=" + value.toString().toStdString() + "/" +
                          otherwise.toString().toStdString());
    }
    QMap<QString, QVariant> values;
    mutable std::vector<std::string> read;
    std::vector<std::string> written;
};

using Log = std::vector<std::string>;

class HiPreTimer : public ::testing::Test {
  protected:
    WritingService service;
    TimerList list;
    QWidget parent;
    ctlHiPreTimer timer{"Hitime1", service, list, ctlHiPreTimer::Host::Running, &parent};
};

TEST_F(HiPreTimer, StartsWithTheSavedDefaults) {
    EXPECT_EQ(timer.Interval(), 1000);
    EXPECT_FALSE(timer.Periodic());
    EXPECT_EQ(timer.Resolution(), 10000);
    EXPECT_EQ(timer.Tag, "");
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(service.capsAsked, 1);
    EXPECT_EQ(timer.size(), QSize(155, 30));
    EXPECT_TRUE(timer.isHidden());
}

TEST_F(HiPreTimer, KeepsItsSizeWhateverSizeItIsGiven) {
    timer.resize(400, 300);
    EXPECT_EQ(timer.size(), QSize(155, 30));
}

TEST_F(HiPreTimer, StoresAtLeastOneMillisecondAsInterval) {
    for (const int value : {0, -1, -70000}) {
        timer.setInterval(value);
        EXPECT_EQ(timer.Interval(), 1);
    }
    timer.setInterval(15);
    EXPECT_EQ(timer.Interval(), 15);
}

TEST_F(HiPreTimer, DoesNotStartWhenTheIntervalIsWrittenWhileItIsDisabled) {
    timer.setInterval(20);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(service.takeLog(), Log{});
}

TEST_F(HiPreTimer, IsRestartedByWritingTheIntervalWhileItRuns) {
    timer.setPeriodic(true);
    timer.setEnabledProperty(true);
    service.takeLog();
    timer.setInterval(20);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(service.takeLog(), (Log{"kill 1", "set 20 10000 1"}));
}

TEST_F(HiPreTimer, BringsAWrittenResolutionIntoTheServicesPeriods) {
    timer.setEnabledProperty(true);
    service.takeLog();
    timer.setResolution(0);
    EXPECT_EQ(timer.Resolution(), 1);
    timer.setResolution(100000);
    EXPECT_EQ(timer.Resolution(), 65535);
    timer.setResolution(7);
    EXPECT_EQ(timer.Resolution(), 7);
    EXPECT_EQ(service.takeLog(), Log{}); // a running timer is not restarted
}

TEST_F(HiPreTimer, TakesSavedValuesAsTheyAre) {
    ListBag bag;
    bag.values = {{"Interval", 0}, {"Periodic", true}, {"Resolution", 0}, {"Tag", "beat"}};
    timer.ReadProperties(bag);
    EXPECT_EQ(timer.Interval(), 0);
    EXPECT_TRUE(timer.Periodic());
    EXPECT_EQ(timer.Resolution(), 0);
    EXPECT_EQ(timer.Tag, "beat");
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(bag.read, (Log{"Interval", "Periodic", "Resolution", "Tag", "Enabled"}));
    EXPECT_EQ(service.takeLog(), Log{});
}

TEST_F(HiPreTimer, StartsAtLoadIfItWasSavedEnabled) {
    ListBag bag;
    bag.values = {{"Interval", 40}, {"Resolution", 0}, {"Enabled", true}};
    timer.ReadProperties(bag);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(service.takeLog(), Log{"set 40 0 0"});
}

TEST_F(HiPreTimer, SavesItsPropertiesInOrder) {
    ListBag bag;
    timer.Tag = "beat";
    timer.setInterval(30);
    timer.setEnabledProperty(true);
    timer.WriteProperties(bag);
    EXPECT_EQ(bag.written, (Log{"Interval=30/1000", "Periodic=false/false", "Resolution=10000/10000",
                                "Tag=beat/", "Enabled=true/false"}));
}

TEST_F(HiPreTimer, KillsTheFirstTimerWhenItIsStartedTwice) {
    timer.setEnabledProperty(true);
    timer.setEnabledProperty(true);
    EXPECT_EQ(service.takeLog(), (Log{"set 1000 10000 0", "kill 1", "set 1000 10000 0"}));
    timer.setEnabledProperty(false);
    EXPECT_FALSE(timer.Enabled());
    timer.setEnabledProperty(false);
    EXPECT_EQ(service.takeLog(), Log{"kill 2"});
}

TEST_F(HiPreTimer, StaysDisabledIfTheServiceHasNoTimer) {
    service.failing = true;
    timer.setEnabledProperty(true);
    EXPECT_FALSE(timer.Enabled());
    timer.setEnabledProperty(false);
    EXPECT_EQ(service.takeLog(), Log{"set 1000 10000 0"});
}

TEST_F(HiPreTimer, KeepsItsModeUntilItIsRestarted) {
    timer.setEnabledProperty(true);
    timer.setPeriodic(true);
    EXPECT_EQ(service.takeLog(), Log{"set 1000 10000 0"});
    timer.setEnabledProperty(true);
    EXPECT_EQ(service.takeLog(), (Log{"kill 1", "set 1000 10000 1"}));
}

TEST_F(HiPreTimer, StartsNothingInADesigner) {
    ctlHiPreTimer designed("Hitime2", service, list, ctlHiPreTimer::Host::Design, &parent);
    designed.setEnabledProperty(true);
    EXPECT_TRUE(designed.Enabled());
    EXPECT_EQ(service.takeLog(), Log{});
}

TEST_F(HiPreTimer, IsStoppedByItsEnd) {
    {
        ctlHiPreTimer other("Hitime2", service, list, ctlHiPreTimer::Host::Running, &parent);
        other.setEnabledProperty(true);
        EXPECT_TRUE(list.timers().contains("Hitime2"));
    }
    EXPECT_EQ(service.takeLog(), (Log{"set 1000 10000 0", "kill 1"}));
    EXPECT_FALSE(list.timers().contains("Hitime2"));
}

TEST_F(HiPreTimer, TurnsAPostedCharacterIntoATickLater) {
    int ticks = 0;
    timer.Timer = [&ticks] { ++ticks; };
    timer.setEnabledProperty(true);
    service.callback(service.user);
    service.callback(service.user);
    EXPECT_EQ(ticks, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 2);
}

TEST_F(HiPreTimer, DeliversATickThatWasPostedBeforeTheStop) {
    int ticks = 0;
    timer.Timer = [&ticks] { ++ticks; };
    timer.setEnabledProperty(true);
    service.callback(service.user);
    timer.setEnabledProperty(false);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 1);
}

TEST_F(HiPreTimer, TakesATypedLineFeedForATickAndNoOtherCharacter) {
    int ticks = 0;
    timer.Timer = [&ticks] { ++ticks; };
    QTest::sendKeyEvent(QTest::Press, &timer, Qt::Key_J, QString("\n"), Qt::ControlModifier);
    EXPECT_EQ(ticks, 1);
    QTest::sendKeyEvent(QTest::Press, &timer, Qt::Key_Return, QString("\r"), Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Press, &timer, Qt::Key_7, QString("7"), Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Press, &timer, Qt::Key_Escape, QString("\x1b"), Qt::NoModifier);
    EXPECT_EQ(ticks, 1);
}

TEST_F(HiPreTimer, DeliversNothingOfAStartWhileTheListIsFrozen) {
    service.hasty = true;
    list.setFrozen(true);
    int ticks = 0;
    timer.Timer = [&ticks] { ++ticks; };
    timer.setEnabledProperty(true);
    EXPECT_TRUE(timer.Enabled());
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 0);
}

TEST_F(HiPreTimer, TicksOnlyByHandWhileTheListIsFrozen) {
    int ticks = 0;
    timer.Timer = [&ticks] { ++ticks; };
    timer.setEnabledProperty(true);
    service.callback(service.user);
    list.setFrozen(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(timer.fire());
    EXPECT_EQ(ticks, 1);
    timer.setEnabledProperty(false);
    EXPECT_FALSE(timer.fire());
    service.takeLog();
    timer.setEnabledProperty(true);
    EXPECT_TRUE(timer.Enabled());
    list.setFrozen(false);
    EXPECT_EQ(service.takeLog().back(), "set 1000 10000 0");
}

class RealTicks : public ::testing::Test {
  protected:
    // Runs the loop until so many ticks came; false if they do not come in a minute.
    bool waitForTicks(int count) {
        QElapsedTimer waited;
        waited.start();
        while (ticks < count && waited.elapsed() < 60000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        return ticks >= count;
    }

    SystemTimerService service;
    TimerList list;
    ctlHiPreTimer timer{"Hitime1", service, list, ctlHiPreTimer::Host::Running, nullptr};
    int ticks = 0;
};

TEST_F(RealTicks, ComeOnTheUserInterfaceThread) {
    Qt::HANDLE thread = nullptr;
    timer.Timer = [&] {
        ++ticks;
        thread = QThread::currentThreadId();
    };
    timer.setPeriodic(true);
    timer.setInterval(2);
    timer.setEnabledProperty(true);
    EXPECT_TRUE(waitForTicks(3));
    EXPECT_EQ(thread, QThread::currentThreadId());
}

TEST_F(RealTicks, FireOnceWithoutPeriodicAndLeaveEnabledTrue) {
    timer.Timer = [this] { ++ticks; };
    timer.setInterval(1);
    timer.setEnabledProperty(true);
    EXPECT_TRUE(waitForTicks(1));
    QTest::qWait(30);
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(timer.Enabled());
}

// Counts what the real service posts.
class CountingService : public TimerService {
  public:
    TimeCaps timeGetDevCaps() const override { return service_.timeGetDevCaps(); }
    std::uint32_t timeSetEvent(std::int32_t delay, std::int32_t resolution, TimeCallback function, void* data,
                               unsigned flags) override {
        callback_ = function;
        user_ = data;
        return service_.timeSetEvent(delay, resolution, post, this, flags);
    }
    void timeKillEvent(std::uint32_t id) override { service_.timeKillEvent(id); }
    int posted() const { return posted_; }

  private:
    static void post(void* self) {
        auto* service = static_cast<CountingService*>(self);
        ++service->posted_;
        service->callback_(service->user_);
    }

    SystemTimerService service_;
    TimeCallback callback_ = nullptr;
    void* user_ = nullptr;
    std::atomic<int> posted_ = 0;
};

// While a tick is handled the next ones wait: none is lost and none comes in between.
TEST(QueuedTicks, WaitBehindABusyHandlerAndNeverOverlap) {
    CountingService service;
    TimerList list;
    ctlHiPreTimer timer("Hitime1", service, list, ctlHiPreTimer::Host::Running, nullptr);
    int ticks = 0;
    int depth = 0;
    int deepest = 0;
    timer.Timer = [&] {
        deepest = std::max(deepest, ++depth);
        // Until more ticks wait behind this one.
        if (++ticks == 1)
            while (service.posted() < 8)
                QThread::msleep(1);
        --depth;
    };
    timer.setPeriodic(true);
    timer.setInterval(2);
    timer.setEnabledProperty(true);
    while (ticks == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    timer.setEnabledProperty(false);
    QCoreApplication::processEvents();
    EXPECT_GE(ticks, 8);
    EXPECT_EQ(ticks, service.posted());
    EXPECT_EQ(deepest, 1);
}

TEST_F(RealTicks, FailForAnIntervalThatTheServiceDoesNotHave) {
    ListBag bag;
    bag.values = {{"Interval", 0}};
    timer.ReadProperties(bag);
    timer.setEnabledProperty(true);
    EXPECT_FALSE(timer.Enabled());
    timer.setInterval(2000000);
    timer.setEnabledProperty(true);
    EXPECT_FALSE(timer.Enabled());
}

} // namespace
} // namespace tabrova
