// The mount point, an empty folder in the user's HOME/.brisel.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>
#include <utility>

#include "shared/Descriptor.h"
#include "tools/mount-tool/Caller.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

using shared::Descriptor;

/// Holds descriptors, so that later changes of the path do not matter.
class MountFolder {
  public:
    /// Opens HOME, .brisel and LABEL in turn, and follows no link below HOME. Each must belong to
    /// `caller`. LABEL must be empty, not a mount point, and on .brisel's file system.
    static Result<MountFolder> open(const Caller& caller, const std::string& label);

    [[nodiscard]] int descriptor() const { return folder_.number(); }
    /// True if HOME/.brisel/LABEL is now on the file system with this st_dev.
    [[nodiscard]] bool shows(dev_t fileSystem) const;

  private:
    MountFolder(Descriptor home, Descriptor folder, std::string label)
        : home_(std::move(home)), folder_(std::move(folder)), label_(std::move(label)) {}

    Descriptor home_;
    Descriptor folder_;
    std::string label_;
};

}  // namespace brisel::mounttool
