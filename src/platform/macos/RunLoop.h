// Timers on the main run loop, by NSTimer.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RunLoop.h"

namespace brisel::platform::macos {

class RunLoop final : public platform::RunLoop {
  public:
    [[nodiscard]] Subscription scheduledTimer(std::chrono::milliseconds interval,
                                              std::function<void()> fire) override;
};

}  // namespace brisel::platform::macos
