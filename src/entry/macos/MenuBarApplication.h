// Brisel in a Mac's menu bar: the platform it runs on, and the core's application delegate.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/AppDelegate.h"
#include "entry/macos/Services.h"

namespace brisel::macos {

/// Main thread only. As long as the process.
class MenuBarApplication {
  public:
    /// The process's one; made, and its platform installed, on the first call.
    static MenuBarApplication& shared();

    MenuBarApplication(const MenuBarApplication&) = delete;
    MenuBarApplication& operator=(const MenuBarApplication&) = delete;

    [[nodiscard]] platform::Platform platform() { return platform::platformOf(services_); }
    [[nodiscard]] AppDelegate& delegate() { return *delegate_; }
    /// Hands over what the nib holds.
    void connect(NSMenu* statusMenu, NSMenuItem* startAtLogin);

  private:
    MenuBarApplication();
    ~MenuBarApplication() = default;

    Services services_;
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::macos
