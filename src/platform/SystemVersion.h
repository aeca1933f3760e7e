// The one question the program asks of the system's version.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform {

/// Main thread only.
class SystemVersion {
  public:
    virtual ~SystemVersion() = default;

    /// macOS 12.0 or later, where the system's mount tool does the read-write mount; before, Disk
    /// Arbitration does. Asked of the system once per process.
    [[nodiscard]] virtual bool isMacOS12OrLater() const = 0;
};

}  // namespace brisel::platform
