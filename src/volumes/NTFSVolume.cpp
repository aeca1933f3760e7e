// The volume record: how one is made.
// SPDX-License-Identifier: MIT
#include "volumes/NTFSVolume.h"

#include <utility>

namespace brisel {

std::shared_ptr<NTFSVolume> NTFSVolume::initWithVolume(platform::DiskDescription description) {
    auto volume = std::make_shared<NTFSVolume>();
    volume->setDiskData(std::move(description));
    return volume;
}

std::optional<std::string> automountUUID(const platform::DiskDescription& description) {
    return description.mediaUUID ? description.mediaUUID : description.volumeUUID;
}

std::optional<platform::FileURL> currentFolder(const std::shared_ptr<NTFSVolume>& volume) {
    if (!volume) return std::nullopt;
    return volume->volumePath() ? volume->volumePath() : volume->diskData().volumePath;
}

}  // namespace brisel
