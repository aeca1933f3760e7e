// Menu actions on the automount list, and removal of an unmounted volume.
// SPDX-License-Identifier: MIT
#include "platform/Menu.h"
#include "platform/SystemLog.h"
#include "shared/IgnoreResult.h"
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
    // The record is already removed; a failure is only logged.
    if (volume->volumePath()) {
        shared::ignoreResult(removeEmptyMountFolder(platform_, *volume->volumePath()));
    }
}

}  // namespace brisel
