// Which way of mounting this machine offers.
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include "platform/SystemVersion.h"

namespace brisel::platform::headless {

/// There are no versions to tell apart here; what the answer decides is whether the mount tool does
/// the read-write mount, so its presence is the answer. Without it UDisks2 mounts.
class SystemVersion final : public platform::SystemVersion {
  public:
    [[nodiscard]] bool isMacOS12OrLater() const override { return hasMountTool_; }

  private:
    // What the core then runs.
    const bool hasMountTool_ = access("/sbin/mount_ntfs", X_OK) == 0;
};

}  // namespace brisel::platform::headless
