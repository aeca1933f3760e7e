// The work queues of the main thread and of the desk thread.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <thread>

#include "platform/desktop/MainThreadQueue.h"
#include "platform/desktop/TrayThread.h"
#include "tests/linux/desktop/SessionBus.h"

namespace brisel::platform::desktop {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::turnUntil;

class TheQueue : public testing::Test {
  protected:
    [[nodiscard]] bool isReadable() const {
        pollfd ready{.fd = queue_->descriptor(), .events = POLLIN, .revents = 0};
        return poll(&ready, 1, 0) == 1;
    }
    void post(const std::string& event) {
        queue_->post([this, event] { events_.push_back(event); });
    }

    tests::TestLoop loop_;
    std::unique_ptr<MainThreadQueue> queue_ = std::make_unique<MainThreadQueue>();
    std::vector<std::string> events_;
};

TEST_F(TheQueue, IsReadableWhileThereIsWork) {
    EXPECT_FALSE(isReadable());
    post("one");
    post("two");
    EXPECT_TRUE(isReadable());
    queue_->work();
    EXPECT_FALSE(isReadable());
    EXPECT_THAT(events_, ElementsAre("one", "two"));
}

TEST_F(TheQueue, DefersWorkPostedByWork) {
    queue_->post([this] {
        events_.emplace_back("first");
        post("second");
    });
    queue_->work();
    EXPECT_THAT(events_, ElementsAre("first"));
    EXPECT_TRUE(isReadable());
    queue_->work();
    EXPECT_THAT(events_, ElementsAre("first", "second"));
}

TEST_F(TheQueue, CanBeProcessedWithinWork) {
    queue_->post([this] {
        post("inner");
        queue_->work();
        events_.emplace_back("outer");
    });
    post("later");
    queue_->work();
    EXPECT_THAT(events_, ElementsAre("inner", "outer", "later"));
}

TEST_F(TheQueue, LosesNoWorkOfManyThreads) {
    constexpr int Threads = 4;
    constexpr int Pieces = 500;
    int done = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < Threads; ++thread) {
        threads.emplace_back([this, &done] {
            for (int piece = 0; piece < Pieces; ++piece)
                queue_->post([&done] { ++done; });
        });
    }
    turnUntil([&done] { return done == Threads * Pieces; });
    for (auto& thread : threads)
        thread.join();
}

TEST_F(TheQueue, DropsItsWorkWithItself) {
    post("late");
    queue_.reset();
    loop_.turn();
    EXPECT_THAT(events_, IsEmpty());
}

TEST(TheDesk, RunsWorkInOrderOnItsOwnThread) {
    std::vector<int> done;
    std::thread::id worker;
    {
        TrayThread desk;
        for (const int piece : {1, 2, 3})
            desk.post([&done, piece] { done.push_back(piece); });
        desk.post([&worker] { worker = std::this_thread::get_id(); });
    }
    EXPECT_THAT(done, ElementsAre(1, 2, 3));
    EXPECT_NE(worker, std::thread::id());
    EXPECT_NE(worker, std::this_thread::get_id());
}

TEST(TheDesk, MayEndRightAfterItsStart) {
    for (int time = 0; time < 50; ++time)
        TrayThread desk;
}

TEST(TheDesk, LeavesTheMainThreadsLoopToIt) {
    const tests::TestLoop loop;
    TrayThread desk;
    std::thread::id worker;
    bool done = false;
    desk.post([&] {
        headless::handTo(loop.context(), [&] {
            worker = std::this_thread::get_id();
            done = true;
        });
    });
    turnUntil([&done] { return done; });
    EXPECT_EQ(worker, std::this_thread::get_id());
}

}  // namespace

}  // namespace brisel::platform::desktop
