// The simulated main loop, and injected faults.
// SPDX-License-Identifier: MIT
#include "platform/simulated/MainLoop.h"

#include "platform/simulated/Faults.h"
#include "tests/support/Matchers.h"

namespace brisel::tests {
namespace {

using platform::Subscription;
using std::chrono::milliseconds;

class MainLoop : public testing::Test {
  protected:
    platform::simulated::MainLoop loop;
    std::vector<int> order;
    Subscription every(int interval, int number) {
        return loop.scheduledTimer(milliseconds(interval),
                                   [this, number] { order.push_back(number); });
    }
};

TEST_F(MainLoop, RunsPostedWorkInOrder) {
    loop.post([this] {
        order.push_back(1);
        loop.post([this] { order.push_back(3); });
    });
    loop.post([this] { order.push_back(2); });
    EXPECT_THAT(order, ElementsAre());
    loop.turnUntilIdle();
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
    loop.turnUntilIdle();
    EXPECT_EQ(order.size(), 3U);
}

TEST_F(MainLoop, FiresNoTimerWithoutTime) {
    const auto timer = every(50, 1);
    loop.turnUntilIdle();
    loop.advanceClock(milliseconds(49));
    EXPECT_THAT(order, ElementsAre());
}

TEST_F(MainLoop, FiresATimerAgainAndAgain) {
    const auto timer = every(50, 1);
    loop.advanceClock(milliseconds(50));
    EXPECT_EQ(order.size(), 1U);
    loop.advanceClock(milliseconds(149));
    EXPECT_EQ(order.size(), 3U);
    loop.advanceClock(milliseconds(1));
    EXPECT_EQ(order.size(), 4U);
}

TEST_F(MainLoop, FiresTimersAsTheyComeDue) {
    const auto slow = every(30, 3);
    const auto fast = every(20, 2);
    loop.advanceClock(milliseconds(60));
    EXPECT_THAT(order, ElementsAre(2, 3, 2, 3, 2));
}

TEST_F(MainLoop, StartsATimerAtItsCurrentTime) {
    loop.advanceClock(milliseconds(40));
    const auto timer = every(50, 1);
    loop.advanceClock(milliseconds(49));
    EXPECT_THAT(order, ElementsAre());
}

TEST_F(MainLoop, RunsWorkPostedByATimer) {
    const auto timer = loop.scheduledTimer(milliseconds(10),
                                           [this] { loop.post([this] { order.push_back(1); }); });
    loop.advanceClock(milliseconds(10));
    EXPECT_THAT(order, ElementsAre(1));
}

TEST_F(MainLoop, FiresNoTimerThatEnded) {
    auto timer = every(10, 1);
    timer.reset();
    loop.advanceClock(milliseconds(100));
    EXPECT_THAT(order, ElementsAre());
}

TEST_F(MainLoop, LetsATimerEndItself) {
    Subscription timer;
    timer = loop.scheduledTimer(milliseconds(10), [&] {
        order.push_back(1);
        timer.reset();
    });
    loop.advanceClock(milliseconds(100));
    EXPECT_THAT(order, ElementsAre(1));
}

TEST(MainLoopTimer, MayOutliveItsLoop) {
    Subscription timer;
    {
        platform::simulated::MainLoop loop;
        timer = loop.scheduledTimer(milliseconds(10), [] {});
    }
    timer.reset();
}

TEST(Faults, FailTheNumberedCallOnce) {
    platform::simulated::Faults faults;
    faults.failCall(2);
    EXPECT_FALSE(faults.strikes("one"));
    EXPECT_EQ(faults.struck(), "");
    EXPECT_TRUE(faults.strikes("two"));
    EXPECT_FALSE(faults.strikes("three"));
    EXPECT_EQ(faults.struck(), "two");
    EXPECT_EQ(faults.calls(), 3U);
}

TEST(Faults, FailNothingByDefault) {
    platform::simulated::Faults faults;
    for (int call = 0; call < 10; ++call)
        EXPECT_FALSE(faults.strikes("call"));
}

}  // namespace
}  // namespace brisel::tests
