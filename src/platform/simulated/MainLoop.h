// The simulated main loop: one queue, first in first out, and a clock turned by hand.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "platform/RunLoop.h"

namespace brisel::platform::simulated {

class MainLoop final : public RunLoop {
  public:
    [[nodiscard]] Subscription scheduledTimer(std::chrono::milliseconds interval,
                                              std::function<void()> fire) override;

    /// Lets `work` wait for the main loop.
    void post(std::function<void()> work);
    /// Runs what waits first; false when nothing does.
    bool turnOnce();
    /// Runs what waits, and what that lets wait, until nothing does.
    void turnUntilIdle();
    /// Moves the clock on, step by step where timers come due, and turns until idle.
    void advanceClock(std::chrono::milliseconds time);

  private:
    struct Timer {
        std::chrono::milliseconds interval;
        std::chrono::milliseconds due;
        std::function<void()> fire;
    };
    using Timers = std::vector<std::shared_ptr<Timer>>;

    [[nodiscard]] std::shared_ptr<Timer> nextDueBy(std::chrono::milliseconds time) const;

    std::deque<std::function<void()>> queue_;
    std::chrono::milliseconds now_{};
    std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
};

}  // namespace brisel::platform::simulated
