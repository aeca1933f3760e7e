// A block device with an NTFS volume on it.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>
#include <utility>

#include "shared/Descriptor.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

using shared::Descriptor;

/// Keeps the device open, so that its number is not reused.
class NTFSDevice {
  public:
    /// Opens the device read-only. Refuses links, anything but block devices, and block devices
    /// without an NTFS boot sector.
    static Result<NTFSDevice> open(const std::string& path);

    [[nodiscard]] const std::string& path() const { return path_; }
    /// Device number, the st_dev of a file system mounted from it.
    [[nodiscard]] dev_t number() const { return number_; }

  private:
    NTFSDevice(std::string path, Descriptor device, dev_t number)
        : path_(std::move(path)), device_(std::move(device)), number_(number) {}

    std::string path_;
    Descriptor device_;
    dev_t number_;
};

}  // namespace brisel::mounttool
