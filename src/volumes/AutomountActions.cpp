// Choosing and unchoosing a volume for automatic remounts, and dropping an unmounted one.
// SPDX-License-Identifier: MIT
#include "platform/Menu.h"
#include "platform/SystemLog.h"
#include "volumes/DiskEvents.h"
#include "volumes/NTFSVolumeManager.h"
#include "volumes/VolumeListHelper.h"

namespace brisel {

void NTFSVolumeManager::saveVolumeForAutomount(const platform::MenuItem& sender) {
    const auto volume = volumeOf(sender);
    if (!volume || !volume->uuid()) {
        platform_.systemLog.log("Cannot save volume for autmount because volume.uuid is nil.");
        return;
    }
    VolumeListHelper::add(platform_.userDefaults, platform_.systemLog, *volume->uuid());
    refreshVolumes();
}

void NTFSVolumeManager::unsaveVolumeForAutomount(const platform::MenuItem& sender) {
    const auto volume = volumeOf(sender);
    if (!volume || !volume->uuid()) {
        platform_.systemLog.log("Cannot unsave volume for autmount because volume.uuid is nil.");
        return;
    }
    VolumeListHelper::remove(platform_.userDefaults, *volume->uuid());
    refreshVolumes();
}

void NTFSVolumeManager::removeVolumeFromList(const std::shared_ptr<NTFSVolume>& volume) {
    removeVolume(volumes_, *volume);
    refreshVolumes();
    // The volume is gone from the list and the menu either way; a failure here is only logged.
    if (volume->volumePath()) {
        static_cast<void>(removeEmptyMountFolder(platform_, *volume->volumePath()));
    }
}

}  // namespace brisel
