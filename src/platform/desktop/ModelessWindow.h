// A modeless window, shown by brisel-dialog.
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
    ModelessWindow(platform::SystemLog& log, DialogProgram program)
        : log_(log), program_(std::move(program)) {}

    using Pressed = std::function<void(int number)>;

    /// Opens a window (see DialogProcess) and closes the previous one. Calls `pressed` with what is
    /// pressed, if anything. Logs a window that could not be shown.
    void show(const std::vector<std::string>& arguments, const std::string& input, Pressed pressed);

  private:
    void takeIn();
    void end();

    platform::SystemLog& log_;
    DialogProgram program_;
    std::unique_ptr<DialogProcess> window_;
    Subscription reading_;
    Pressed pressed_;
};

}  // namespace brisel::platform::desktop
