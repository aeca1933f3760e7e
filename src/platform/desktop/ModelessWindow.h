// A window of the dialog program that nobody waits for.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop/DialogProcess.h"
#include "platform/Subscription.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// Main thread only.
class ModelessWindow {
  public:
    /// `program` is the path of the dialog program.
    ModelessWindow(platform::SystemLog& log, std::string program)
        : log_(log), program_(std::move(program)) {}

    using Pressed = std::function<void(int number)>;

    /// Opens the window (see DialogProcess), instead of one that is still open. `pressed` gets what
    /// is pressed in it, if anything. The log tells of a window that could not be shown.
    void show(const std::vector<std::string>& arguments, const std::string& input, Pressed pressed);

  private:
    void takeIn();
    void end();

    platform::SystemLog& log_;
    std::string program_;
    std::unique_ptr<DialogProcess> window_;
    Subscription reading_;
    Pressed pressed_;
};

}  // namespace brisel::platform::desktop
