// The empty folder in a person's home that a volume is to appear on.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>
#include <utility>

#include "tools/mount-tool/Descriptor.h"
#include "tools/mount-tool/Person.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

/// Holds the folder by descriptors: what its path names later on no longer matters.
class MountFolder {
  public:
    /// Opens HOME, .brisel and the label one after the other, no link followed below HOME. Each
    /// must belong to the person; the last must be empty, no mount point, and on .brisel's file
    /// system.
    static Result<MountFolder> open(const Person& person, const std::string& label);

    [[nodiscard]] int descriptor() const { return folder_.number(); }
    /// Whether HOME/.brisel/LABEL is, at this moment, the root of the file system of that number.
    [[nodiscard]] bool shows(dev_t fileSystem) const;

  private:
    MountFolder(Descriptor home, Descriptor folder, std::string label)
        : home_(std::move(home)), folder_(std::move(folder)), label_(std::move(label)) {}

    Descriptor home_;
    Descriptor folder_;
    std::string label_;
};

}  // namespace brisel::mounttool
