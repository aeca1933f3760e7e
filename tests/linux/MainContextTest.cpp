// Main loops of several threads, and the work handed to them.
// SPDX-License-Identifier: MIT
#include "platform/headless/MainContext.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace brisel::platform::headless {

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr milliseconds Brief{1};

class ALoop : public testing::Test {
  protected:
    ALoop() { EXPECT_EQ(pipe2(ends_.data(), O_CLOEXEC), 0); }
    ~ALoop() override {
        for (const int end : ends_) {
            if (end >= 0) close(end);
        }
    }
    void turn() const {
        while (g_main_context_iteration(loop_->context(), FALSE) != FALSE) {
        }
    }
    void feed(const char* text) const { EXPECT_EQ(write(ends_[1], text, 1), 1); }
    void note(const std::string& event) { events_.push_back(event); }

    std::optional<OwnMainLoop> loop_{std::in_place};
    std::array<int, 2> ends_{-1, -1};
    std::vector<std::string> events_;
};

TEST_F(ALoop, RunsWorkFromAnotherThread) {
    std::thread::id worker;
    std::thread other([this, &worker, context = loop_->context()] {
        handTo(context, [&worker] { worker = std::this_thread::get_id(); });
        handTo(context, [this] { loop_->quit(); });
    });
    loop_->run();
    other.join();
    EXPECT_EQ(worker, std::this_thread::get_id());
}

TEST_F(ALoop, RunsWorkInOrder) {
    for (const char* const event : {"one", "two", "three"})
        handTo(loop_->context(), [this, event] { note(event); });
    turn();
    EXPECT_THAT(events_, ElementsAre("one", "two", "three"));
}

TEST_F(ALoop, RunsWorkBeforeIdleWork) {
    const auto patient = whenMainLoopTurns([this] { note("patient"); });
    handTo(loop_->context(), [this] { note("handed"); });
    turn();
    EXPECT_THAT(events_, ElementsAre("handed", "patient"));
}

TEST_F(ALoop, LeavesGLibsDefaultContextAlone) {
    handTo(nullptr, [this] { note("default"); });
    turn();
    EXPECT_THAT(events_, IsEmpty());
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    EXPECT_THAT(events_, ElementsAre("default"));
}

TEST_F(ALoop, YieldsToANestedLoop) {
    const auto outer = whenMainLoopTurns([this] { note("outer"); });
    {
        OwnMainLoop within;
        const auto inner = whenMainLoopTurns([&] {
            note("inner");
            within.quit();
        });
        within.run();
    }
    EXPECT_THAT(events_, ElementsAre("inner"));
    turn();
    EXPECT_THAT(events_, ElementsAre("inner", "outer"));
}

TEST_F(ALoop, DropsWorkWhoseSubscriptionHasEnded) {
    auto dropped = whenMainLoopTurns([this] { note("dropped"); });
    const auto done = whenMainLoopTurns([this] { note("done"); });
    dropped.reset();
    turn();
    turn();
    EXPECT_THAT(events_, ElementsAre("done"));
}

TEST_F(ALoop, ReportsADescriptorWhileItIsReadable) {
    const auto reading = whenReadable(ends_[0], [this] {
        char text = 0;
        EXPECT_EQ(read(ends_[0], &text, 1), 1);
        note({text});
    });
    turn();
    EXPECT_THAT(events_, IsEmpty());
    feed("a");
    feed("b");
    turn();
    EXPECT_THAT(events_, ElementsAre("a", "b"));
}

TEST_F(ALoop, ReportsTheEndOfADescriptor) {
    Subscription reading = whenReadable(ends_[0], [this, &reading] {
        note("end");
        reading.reset();
    });
    close(ends_[1]);
    ends_[1] = -1;
    turn();
    EXPECT_THAT(events_, ElementsAre("end"));
}

TEST_F(ALoop, ReportsNoDescriptorAfterTheSubscription) {
    auto reading = whenReadable(ends_[0], [this] { note("read"); });
    feed("a");
    reading.reset();
    turn();
    EXPECT_THAT(events_, IsEmpty());
}

TEST_F(ALoop, LetsATimerFireUntilItEnds) {
    Subscription timer = RunLoop().scheduledTimer(Brief, [this, &timer] {
        note("tick");
        if (events_.size() == 3) timer.reset();
    });
    const auto end = RunLoop().scheduledTimer(milliseconds(50), [this] { loop_->quit(); });
    loop_->run();
    EXPECT_THAT(events_, ElementsAre("tick", "tick", "tick"));
}

}  // namespace

}  // namespace brisel::platform::headless
