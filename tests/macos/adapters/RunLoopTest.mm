// The run loop adapter: timers.
// SPDX-License-Identifier: MIT
#include "platform/macos/RunLoop.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using namespace std::chrono_literals;

class Timer : public AdapterTest {
  protected:
    platform::macos::RunLoop adapter;
    platform::Subscription timer;
    int fired = 0;

    static constexpr NSTimeInterval Patience = 5;
    static constexpr NSTimeInterval AWhile = 0.1;
};

TEST_F(Timer, FiresAgainAndAgain) {
    bool thrice = false;
    timer = adapter.scheduledTimer(1ms, [&] { thrice = ++fired >= 3; });
    EXPECT_EQ(fired, 0);
    turn(NSDefaultRunLoopMode, Patience, &thrice);
    EXPECT_TRUE(thrice);
}

TEST_F(Timer, KeepsItsInterval) {
    bool once = false;
    timer = adapter.scheduledTimer(100ms, [&] { once = true; });
    NSDate* const start = [NSDate date];
    turn(NSDefaultRunLoopMode, Patience, &once);
    EXPECT_GE(-[start timeIntervalSinceNow], 0.09);
    EXPECT_TRUE(once);
}

TEST_F(Timer, RestsWhileAnAlertIsOpen) {
    timer = adapter.scheduledTimer(1ms, [&] { ++fired; });
    turn(NSModalPanelRunLoopMode, AWhile);
    EXPECT_EQ(fired, 0);
}

TEST_F(Timer, EndsWithItsSubscription) {
    timer = adapter.scheduledTimer(1ms, [&] { ++fired; });
    timer.reset();
    turn(NSDefaultRunLoopMode, AWhile);
    EXPECT_EQ(fired, 0);
}

TEST_F(Timer, MayEndItself) {
    const auto held = std::make_shared<int>(1);
    timer = adapter.scheduledTimer(1ms, [this, held] {
        timer.reset();
        fired += *held;
    });
    turn(NSDefaultRunLoopMode, AWhile);
    EXPECT_EQ(fired, 1);
}

TEST_F(Timer, ReleasesItsCallbackWhenItEnds) {
    const auto held = std::make_shared<int>();
    @autoreleasepool {
        timer = adapter.scheduledTimer(1ms, [this, held] { ++fired; });
        turn(NSDefaultRunLoopMode, AWhile);
        timer.reset();
        turn(NSDefaultRunLoopMode, AWhile);
    }
    EXPECT_GT(fired, 0);
    EXPECT_EQ(held.use_count(), 1);
}

}  // namespace
}  // namespace brisel::tests::macos
