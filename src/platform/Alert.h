// Modal alerts.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brisel::platform {

struct AlertContent {
    std::string messageText;
    std::string informativeText;
    /// Titles, default button first. Empty for the platform's own default button.
    std::vector<std::string> buttons;
};

/// Response of the first button; each later button's is one higher (NSAlert.h).
inline constexpr int AlertFirstButtonReturn = 1000;

/// Main thread only.
class Alert {
  public:
    virtual ~Alert() = default;

    /// Blocks until dismissed; the main loop does not run in its default mode meanwhile. Returns
    /// the pressed button's response, or another value if no button was pressed.
    virtual int runModal(const AlertContent& content) = 0;
};

}  // namespace brisel::platform
