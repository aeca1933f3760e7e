// The status menu in a window, for a desktop without a tray.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/desktop/ModelessWindow.h"
#include "platform/desktop/StatusItem.h"

namespace brisel::platform::desktop {

/// Main thread only.
class MenuWindow {
  public:
    MenuWindow(StatusItem& statusItem, platform::SystemLog& log, DialogProgram dialog)
        : statusItem_(statusItem), window_(log, std::move(dialog)) {}

    /// Shows the current menu; replaces an open window.
    void show();

  private:
    StatusItem& statusItem_;
    ModelessWindow window_;
};

}  // namespace brisel::platform::desktop
