// The ordered list of volume records.
// SPDX-License-Identifier: MIT
#include "volumes/VolumeList.h"

#include <algorithm>

namespace brisel {

std::shared_ptr<NTFSVolume> findVolume(const VolumeList& volumes,
                                       const std::optional<std::string>& deviceNode) {
    if (!deviceNode) return nullptr;
    const auto found = std::find_if(volumes.begin(), volumes.end(), [&](const auto& volume) {
        return volume->deviceNode == deviceNode;
    });
    return found == volumes.end() ? nullptr : *found;
}

void removeVolume(VolumeList& volumes, const NTFSVolume& volume) {
    std::erase_if(volumes, [&](const auto& candidate) { return candidate.get() == &volume; });
}

void removeFirstVolume(VolumeList& volumes, const std::string& deviceNode) {
    if (const auto volume = findVolume(volumes, deviceNode)) removeVolume(volumes, *volume);
}

}  // namespace brisel
