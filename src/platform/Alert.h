// Modal alerts.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brisel::platform {

struct AlertContent {
    std::string messageText;
    std::string informativeText;
    /// Titles from the default button on; none stands for the platform's own default button.
    std::vector<std::string> buttons;
};

/// The response of the first button; each further one is one more (NSAlert.h).
inline constexpr int AlertFirstButtonReturn = 1000;

/// Main thread only.
class Alert {
  public:
    virtual ~Alert() = default;

    /// Blocks until the user has pressed a button and returns its response. The main loop does
    /// not turn in its default mode meanwhile. Any other value means that nothing was pressed.
    virtual int runModal(const AlertContent& content) = 0;
};

}  // namespace brisel::platform
