// The running application.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform {

/// Main thread only.
class Application {
  public:
    virtual ~Application() = default;

    /// Runs the delegate's termination step and ends the process. May return before the process
    /// ends.
    virtual void terminate() = 0;
    /// Brings the application to the front, where the platform supports it.
    virtual void activateIgnoringOtherApps() = 0;
    /// Shows the About panel: name and version.
    virtual void orderFrontStandardAboutPanel() = 0;
};

}  // namespace brisel::platform
