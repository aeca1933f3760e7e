// The main loop, as far as the program schedules timers on it.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

#include "platform/Subscription.h"

namespace brisel::platform {

/// The core calls it on the main thread only.
class RunLoop {
  public:
    virtual ~RunLoop() = default;

    /// Calls `fire` again and again on the main thread, in the loop's default mode, until the
    /// subscription ends. `fire` may end it itself.
    [[nodiscard]] virtual Subscription scheduledTimer(std::chrono::milliseconds interval,
                                                      std::function<void()> fire) = 0;
};

}  // namespace brisel::platform
