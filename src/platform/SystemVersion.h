// The system's version.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform {

/// Main thread only.
class SystemVersion {
  public:
    virtual ~SystemVersion() = default;

    /// If true, the system's mount tool does the read-write mount; otherwise Disk Arbitration.
    /// Constant for the process's lifetime.
    [[nodiscard]] virtual bool isMacOS12OrLater() const = 0;
};

}  // namespace brisel::platform
