// The token by which the desktop lets the next window take the focus.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <mutex>
#include <string>

namespace brisel::platform::desktop {

/// An xdg-activation token, or a startup ID on X11. The desktop hands one out with each click that
/// opens a window. Any thread.
class ActivationToken {
  public:
    /// Environment variables of a launched program that hold its token: of Wayland, of X11.
    static constexpr std::array LaunchVariables{"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"};

    /// Begins with the token of the program's own launch, if any.
    ActivationToken();

    void set(std::string token);
    /// The newest token, or an empty text. A token is good for one window.
    [[nodiscard]] std::string take();

  private:
    std::mutex mutex_;
    std::string token_;
};

}  // namespace brisel::platform::desktop
