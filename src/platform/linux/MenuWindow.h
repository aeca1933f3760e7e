// The status menu in a window, for a desktop without a tray.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/OpenWindow.h"
#include "platform/linux/StatusItem.h"

namespace brisel::platform::linux {

/// Main thread only.
class MenuWindow {
  public:
    explicit MenuWindow(StatusItem& statusItem) : statusItem_(statusItem) {}

    /// Shows the menu as it is now, instead of a window that is still open.
    void show();

  private:
    StatusItem& statusItem_;
    OpenWindow window_;
};

}  // namespace brisel::platform::linux
