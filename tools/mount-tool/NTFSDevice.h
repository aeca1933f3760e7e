// A block device with an NTFS volume on it.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>
#include <utility>

#include "tools/mount-tool/Descriptor.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

/// Keeps the device open, so that its number stays with it.
class NTFSDevice {
  public:
    /// Opens the device for reading; a link, anything but a block device, and a block device
    /// without the marks of an NTFS boot sector are refused. Writes nothing.
    static Result<NTFSDevice> open(const std::string& path);

    [[nodiscard]] const std::string& path() const { return path_; }
    /// The device's number, which is the `st_dev` of a file system mounted from it.
    [[nodiscard]] dev_t number() const { return number_; }

  private:
    NTFSDevice(std::string path, Descriptor device, dev_t number)
        : path_(std::move(path)), device_(std::move(device)), number_(number) {}

    std::string path_;
    Descriptor device_;
    dev_t number_;
};

}  // namespace brisel::mounttool
