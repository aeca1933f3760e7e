// The running application, by NSApplication.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

namespace brisel::platform::macos {

class Application final : public platform::Application {
  public:
    /// The system tells the application's delegate, and ends the process.
    void terminate() override;
    void activateIgnoringOtherApps() override;
    void orderFrontStandardAboutPanel() override;
};

}  // namespace brisel::platform::macos
