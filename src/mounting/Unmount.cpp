// Unmounts the volume chosen in the menu.
// SPDX-License-Identifier: MIT
#include "mounting/Unmount.h"

#include <unistd.h>

#include "mounting/StatusMessages.h"
#include "platform/Format.h"
#include "platform/Menu.h"
#include "platform/NotificationCenter.h"
#include "platform/SystemLog.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

void NTFSVolumeManager::unmountVolume(const platform::MenuItem& sender) {
    const auto location = currentFolder(volumeOf(sender));
    const auto disk = platform_.diskArbitration.diskFromVolumePath(location);
    if (!disk) {
        platform_.systemLog.log("Unmount failed for volume at URL %@", location);
        return;
    }
    platform_.diskArbitration.unmount(*disk, [this](const auto& unmounted, const auto& dissenter) {
        unmountDidFinish(*this, unmounted, dissenter);
    });
}

void unmountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                      const std::optional<platform::Dissenter>& dissenter) {
    const auto description = manager.platform().diskArbitration.copyDescription(disk);
    if (dissenter) {
        reportUnmountFailure(manager, dissenter, description);
        return;
    }
    // No delay: only yields the processor after the unmount.
    sleep(0);
    const auto bsdName = platform::orNullText(description.mediaBSDName);
    const VolumeRecords snapshot = manager.volumes();
    for (const auto& volume : snapshot) {
        if (volume->deviceNode() != bsdName) continue;
        manager.removeVolumeFromList(volume);
        manager.setInProgress(false);
        manager.platform().notificationCenter.postNotificationName(NTFSVolumeDidUnmountNotification,
                                                                   volume.get());
    }
}

}  // namespace brisel
