// The running application, by NSApplication.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Application.h"

namespace brisel::platform::macos {

class Application final : public platform::Application {
  public:
    /// AppKit calls the delegate's applicationWillTerminate: and exits.
    void terminate() override;
    void activateIgnoringOtherApps() override;
    void orderFrontStandardAboutPanel() override;
};

}  // namespace brisel::platform::macos
