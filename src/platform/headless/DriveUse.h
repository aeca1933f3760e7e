// Whether a device may be unplugged, by the block devices of its drive.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brisel::platform::headless {

/// A block device of UDisks2. Other objects are referred to by path; "/" is none.
struct BlockUse {
    std::string path{};
    std::string bsdName{};
    std::string drive = "/";
    /// The encrypted device whose content this is.
    std::string backing = "/";
    /// Part of the machine rather than plugged in.
    bool system = false;
    bool mounted = false;
};

/// For an unmounted device. False for a system drive, while another device of the drive is mounted,
/// and if the device is gone.
bool mayBeUnplugged(const std::vector<BlockUse>& blocks, const std::string& bsdName);

}  // namespace brisel::platform::headless
