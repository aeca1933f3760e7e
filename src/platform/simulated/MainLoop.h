// The simulated main loop: a FIFO queue and a manual clock.
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

    void post(std::function<void()> work);
    /// Runs the first queued work; false if the queue is empty.
    bool turnOnce();
    /// Runs queued work until the queue is empty.
    void turnUntilIdle();
    /// Advances the clock, fires the timers that come due in order, and turns until idle.
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
