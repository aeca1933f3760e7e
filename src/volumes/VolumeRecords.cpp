// The ordered list of volume records.
// SPDX-License-Identifier: MIT
#include "volumes/VolumeRecords.h"

#include <algorithm>

namespace brisel {

std::shared_ptr<NTFSVolume> findVolume(const VolumeRecords& volumes,
                                       const std::optional<std::string>& deviceNode) {
    if (!deviceNode) return nullptr;
    const auto found = std::find_if(volumes.begin(), volumes.end(), [&](const auto& volume) {
        return volume->deviceNode() == deviceNode;
    });
    return found == volumes.end() ? nullptr : *found;
}

void removeVolume(VolumeRecords& volumes, const NTFSVolume& volume) {
    std::erase_if(volumes, [&](const auto& candidate) { return candidate.get() == &volume; });
}

void removeFirstVolume(VolumeRecords& volumes, const std::string& deviceNode) {
    if (const auto volume = findVolume(volumes, deviceNode)) removeVolume(volumes, *volume);
}

}  // namespace brisel
