// Termination of the application, for platforms without an application framework.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "platform/Application.h"

namespace brisel::platform::common {

class Application : public platform::Application {
  public:
    /// Runs the termination step, then the end callback, and returns. Later calls do nothing.
    void terminate() final;
    void activateIgnoringOtherApps() override {}

    void setTerminationStep(std::function<void()> step) { terminationStep_ = std::move(step); }
    /// `end` stops the main loop; called at the end of `terminate`.
    void setEnd(std::function<void()> end) { end_ = std::move(end); }
    [[nodiscard]] bool terminated() const { return terminated_; }

  private:
    std::function<void()> terminationStep_;
    std::function<void()> end_;
    bool terminated_ = false;
};

}  // namespace brisel::platform::common
