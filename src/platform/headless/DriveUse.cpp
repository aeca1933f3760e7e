// Whether a device may be unplugged, by the block devices of its drive.
// SPDX-License-Identifier: MIT
#include "platform/headless/DriveUse.h"

#include <algorithm>

namespace brisel::platform::headless {

namespace {

// UDisks2 gives the content of an encrypted device no drive. Returns the encrypted device for that,
// and `block` itself otherwise.
const BlockUse& physical(const std::vector<BlockUse>& blocks, const BlockUse& block) {
    const auto backing = std::find_if(blocks.begin(), blocks.end(), [&](const auto& other) {
        return other.path == block.backing;
    });
    return backing == blocks.end() ? block : *backing;
}

}  // namespace

bool mayBeUnplugged(const std::vector<BlockUse>& blocks, const std::string& bsdName) {
    const auto device = std::find_if(blocks.begin(), blocks.end(), [&bsdName](const auto& block) {
        return block.bsdName == bsdName;
    });
    if (device == blocks.end()) return false;
    const auto& plugged = physical(blocks, *device);
    // Loop devices and the like have no drive.
    if (plugged.drive == "/") return true;
    return !plugged.system && std::none_of(blocks.begin(), blocks.end(), [&](const auto& block) {
        return &block != &*device && block.mounted &&
               physical(blocks, block).drive == plugged.drive;
    });
}

}  // namespace brisel::platform::headless
