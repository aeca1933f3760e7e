// Timers on the main loop.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

#include "platform/Subscription.h"

namespace brisel::platform {

/// Main thread only.
class RunLoop {
  public:
    virtual ~RunLoop() = default;

    /// Calls `fire` on the main thread, in the loop's default mode, until the subscription ends.
    /// `fire` may end it.
    [[nodiscard]] virtual Subscription scheduledTimer(std::chrono::milliseconds interval,
                                                      std::function<void()> fire) = 0;
};

}  // namespace brisel::platform
