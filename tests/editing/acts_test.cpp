// Acts: who is told what, when and how often.
#include "editing/acts.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tabrova {
namespace {

using Log = std::vector<std::string>;

class Listener : public ActObserver {
  public:
    Listener(Acts& acts, Log& log, const char* who) : acts_(acts), log_(log), who_(who) { acts_.add(*this); }
    ~Listener() override { acts_.remove(*this); }
    void actBegins(std::string_view act) override { write("begins", act); }
    void actEnded(std::string_view act, const Changes& changes) override {
        write("ended", act);
        last = changes;
        if (whenTold) std::exchange(whenTold, nullptr)();
    }

    Changes last;
    std::function<void()> whenTold;

  private:
    void write(const char* what, std::string_view act) {
        log_.push_back(std::string(who_) + " " + what + " " + std::string(act));
    }

    Acts& acts_;
    Log& log_;
    const char* who_;
};

class ActsTest : public ::testing::Test {
  protected:
    Acts acts;
    Log log;
};

TEST_F(ActsTest, AnActIsToldAtItsBeginAndOnceAtItsEnd) {
    Listener one(acts, log, "one");
    {
        const Act act(acts, "key");
        EXPECT_EQ(log, Log{"one begins key"});
        acts.changes().page = true;
        acts.changes().redraws += 2;
    }
    EXPECT_EQ(log, (Log{"one begins key", "one ended key"}));
    Changes expected;
    expected.page = true;
    expected.redraws = 2;
    EXPECT_EQ(one.last, expected);
}

TEST_F(ActsTest, ActsInsideAnActBelongToIt) {
    Listener one(acts, log, "one");
    {
        const Act outer(acts, "outer");
        {
            const Act inner(acts, "inner");
            acts.changes().strip = true;
        }
        EXPECT_EQ(log, Log{"one begins outer"});
        acts.changes().title = true;
    }
    EXPECT_EQ(log, (Log{"one begins outer", "one ended outer"}));
    EXPECT_TRUE(one.last.strip && one.last.title);
}

TEST_F(ActsTest, WhatHappensInAnInterludeIsToldByItselfAndTheActGoesOn) {
    Listener one(acts, log, "one");
    {
        const Act outer(acts, "outer");
        acts.changes().tracks = true;
        {
            const ActInterlude interlude(acts);
            {
                const Act resize(acts, "resize");
                acts.changes().layout = true;
            }
            EXPECT_TRUE(one.last.layout);
            EXPECT_FALSE(one.last.tracks);
        }
        acts.changes().title = true;
    }
    EXPECT_EQ(log, (Log{"one begins outer", "one begins resize", "one ended resize", "one ended outer"}));
    EXPECT_TRUE(one.last.tracks && one.last.title);
    EXPECT_FALSE(one.last.layout);
}

TEST_F(ActsTest, WhatOneActChangedIsForgottenByTheNext) {
    {
        const Act unheard(acts, "unheard");
        acts.changes().page = true;
    }
    Listener one(acts, log, "one");
    { const Act act(acts, "second"); }
    EXPECT_EQ(one.last, Changes());
    EXPECT_EQ(log, (Log{"one begins second", "one ended second"}));
}

TEST_F(ActsTest, ListenersAreToldInTheOrderInWhichTheyCame) {
    Listener one(acts, log, "one");
    Listener two(acts, log, "two");
    { const Act act(acts, "a"); }
    EXPECT_EQ(log, (Log{"one begins a", "two begins a", "one ended a", "two ended a"}));
}

TEST_F(ActsTest, WhatAListenerDoesWhenItIsToldIsAnActOfItsOwn) {
    Listener one(acts, log, "one");
    one.whenTold = [this] {
        const Act answer(acts, "answer");
        acts.changes().tuning = true;
    };
    {
        const Act act(acts, "a");
        acts.changes().page = true;
    }
    EXPECT_EQ(log, (Log{"one begins a", "one ended a", "one begins answer", "one ended answer"}));
    EXPECT_TRUE(one.last.tuning);
    EXPECT_FALSE(one.last.page);
}

TEST_F(ActsTest, AListenerThatGoesWhileOthersAreToldIsNotTold) {
    Listener one(acts, log, "one");
    auto two = std::make_unique<Listener>(acts, log, "two");
    one.whenTold = [&] { two.reset(); };
    { const Act act(acts, "a"); }
    EXPECT_EQ(log, (Log{"one begins a", "two begins a", "one ended a"}));
}

TEST_F(ActsTest, AListenerThatComesWhileOthersAreToldHearsTheNextAct) {
    Listener one(acts, log, "one");
    std::unique_ptr<Listener> two;
    one.whenTold = [&] { two = std::make_unique<Listener>(acts, log, "two"); };
    { const Act act(acts, "a"); }
    { const Act act(acts, "b"); }
    EXPECT_EQ(log, (Log{"one begins a", "one ended a", "one begins b", "two begins b", "one ended b",
                        "two ended b"}));
}

} // namespace
} // namespace tabrova
