// A private folder in /run, where the driver mounts the volume first.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "shared/Descriptor.h"

namespace brisel::mounttool {

/// Accessible to root only, and so is the volume while it is mounted there. Brisel ignores mounts
/// in folders with this prefix.
class StagingFolder {
  public:
    /// Null, with errno, if the folder cannot be created.
    static std::unique_ptr<StagingFolder> make();
    /// Removes the folders of killed runs together with their mounts. Leaves alone folders of other
    /// runs that still run, and all that is not root's.
    static void sweep();

    StagingFolder(const StagingFolder&) = delete;
    StagingFolder& operator=(const StagingFolder&) = delete;
    /// Removes the folder together with its mount, but not with a clone of that.
    ~StagingFolder();

    [[nodiscard]] const std::string& mountPoint() const { return mountPoint_; }

  private:
    StagingFolder(std::string path, shared::Descriptor lock);

    std::string path_;
    /// In the folder, because a mount on the folder itself would hide it from a sweep.
    std::string mountPoint_;
    /// Locks the folder until the process ends, even if it is killed.
    shared::Descriptor lock_;
};

}  // namespace brisel::mounttool
