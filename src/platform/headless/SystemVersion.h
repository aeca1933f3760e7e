// Reports macOS 12 if the mount tool is installed.
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include "platform/SystemVersion.h"

namespace brisel::platform::headless {

/// On macOS 12 the core mounts read-write with the mount tool, before that through Disk
/// Arbitration. On Linux this depends on whether the tool is installed; without it UDisks2 mounts.
class SystemVersion final : public platform::SystemVersion {
  public:
    [[nodiscard]] bool isMacOS12OrLater() const override { return hasMountTool_; }

  private:
    // The path that the core runs.
    const bool hasMountTool_ = access("/sbin/mount_ntfs", X_OK) == 0;
};

}  // namespace brisel::platform::headless
