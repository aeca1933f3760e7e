// The read-write remount: finds the disk, unmounts it and chooses how to mount it.
// SPDX-License-Identifier: MIT
#include "mounting/Remount.h"

#include <unistd.h>

#include "mounting/StatusMessages.h"
#include "platform/Alert.h"
#include "platform/Bundle.h"
#include "platform/Format.h"
#include "platform/Menu.h"
#include "platform/SystemLog.h"
#include "platform/SystemVersion.h"
#include "volumes/DiskEvents.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

namespace {

const std::vector<std::string>& mountArguments() {
    static const std::vector<std::string> arguments{"rw", "auto", "nobrowse", "noowners",
                                                    "noatime"};
    return arguments;
}

void reportVolumeNotMounted(NTFSVolumeManager& manager, const std::shared_ptr<NTFSVolume>& volume) {
    const auto& platform = manager.platform();
    manager.errorIcon();
    const auto label = volume ? volume->label() : std::nullopt;
    platform.alert.runModal(
        {.messageText = platform.bundle.localizedString("Volume not mounted"),
         .informativeText = platform::stringWithFormat(
             platform.bundle.localizedString(
                 "The volume %@ is not mounted currently at the specified path. Please remove "
                 "and re-attach the device."),
             label),
         .buttons = {}});
    // No refresh, so the red icon stays until the next one.
    manager.setInProgress(false);
}

}  // namespace

void NTFSVolumeManager::remountVolume(const platform::MenuItem& sender) {
    setInProgress(true);
    goAhead(volumeOf(sender));
}

void NTFSVolumeManager::remountVolumeNamed(const std::optional<std::string>& name) {
    setInProgress(true);
    goAhead(findVolume(volumes_, name));
}

void NTFSVolumeManager::goAhead(const std::shared_ptr<NTFSVolume>& volume) {
    const auto bsdName = volume ? volume->diskData().mediaBSDName : std::nullopt;
    const auto disk = platform_.diskArbitration.diskFromBSDName(bsdName);
    if (!disk) {
        reportVolumeNotMounted(*this, volume);
        return;
    }
    setInProgress(true);
    refreshVolumes();
    platform_.diskArbitration.unmount(*disk, [this](const auto& unmounted, const auto& dissenter) {
        remountUnmountDidFinish(*this, unmounted, dissenter);
    });
}

void remountUnmountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                             const std::optional<platform::Dissenter>& dissenter) {
    const auto& platform = manager.platform();
    platform.systemLog.log("disk unmounted...");
    const auto description = platform.diskArbitration.copyDescription(disk);
    if (dissenter) {
        reportUnmountFailure(manager, dissenter, description);
        return;
    }
    // No delay: only yields the processor between the unmount and the mount.
    sleep(0);
    if (!description.volumeMountable.value_or(false)) {
        // Deliberately stays busy and keeps the record: only another operation, or another volume's
        // disappearance, ends the busy state.
        platform.systemLog.log("Disk not mountable!");
        return;
    }
    if (platform.systemVersion.isMacOS12OrLater()) {
        mountWithTool(manager, disk, description);
        return;
    }
    platform.diskArbitration.mountWithArguments(
        disk, mountArguments(), [&manager](const auto& mounted, const auto& mountDissenter) {
            remountMountDidFinish(manager, mounted, mountDissenter);
        });
}

void remountMountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                           const std::optional<platform::Dissenter>& dissenter) {
    const auto description = manager.platform().diskArbitration.copyDescription(disk);
    if (dissenter) {
        reportRemountFailure(manager, dissenter, description);
        return;
    }
    diskAppeared(manager, disk, description);
    manager.openInFinder(description.volumePath);
}

}  // namespace brisel
