// The running application.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform {

/// Main thread only.
class Application {
  public:
    virtual ~Application() = default;

    /// Runs the delegate's termination step and ends the process. A platform may return first and
    /// end soon after, so nothing that must not happen may follow the call.
    virtual void terminate() = 0;
    /// Brings the program to the front, where the platform knows a front.
    virtual void activateIgnoringOtherApps() = 0;
    /// Shows the program's name and version, as the platform shows them.
    virtual void orderFrontStandardAboutPanel() = 0;
};

}  // namespace brisel::platform
