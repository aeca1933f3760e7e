// The volume manager itself: its creation, its session and its delegate.
// SPDX-License-Identifier: MIT
#include "volumes/NTFSVolumeManager.h"

#include <functional>
#include <utility>

#include "platform/DiskArbitration.h"
#include "platform/Menu.h"
#include "volumes/DiskEvents.h"

namespace brisel {

NTFSVolumeManager& NTFSVolumeManager::sharedInstance() {
    // Never destroyed: its registrations with the system last as long as the process.
    static const std::reference_wrapper<NTFSVolumeManager> manager(
        *new NTFSVolumeManager(platform::installed()));
    return manager;
}

NTFSVolumeManager::NTFSVolumeManager(const platform::Platform& platform) : platform_(platform) {
    auto& disks = platform_.diskArbitration;
    // A session that could not be opened is not looked for: it reports nothing and makes no disk.
    disks.createSession();
    appeared_ =
        disks.registerDiskAppearedCallback([this](const auto& disk, const auto& description) {
            diskAppeared(*this, disk, description);
        });
    disappeared_ =
        disks.registerDiskDisappearedCallback([this](const auto& disk, const auto& description) {
            diskDisappeared(*this, disk, description);
        });
    disks.scheduleWithRunLoop();
    registerNotificationCategory();
}

void NTFSVolumeManager::setDelegate(std::weak_ptr<NTFSVolumeManagerDelegate> delegate) {
    delegate_ = std::move(delegate);
}

void NTFSVolumeManager::refreshVolumes() const {
    if (const auto delegate = delegate_.lock()) delegate->refreshVolumes();
}

void NTFSVolumeManager::errorIcon() const {
    if (const auto delegate = delegate_.lock()) delegate->errorIcon();
}

std::shared_ptr<NTFSVolume> volumeOf(const platform::MenuItem& item) {
    return std::dynamic_pointer_cast<NTFSVolume>(item.representedObject);
}

}  // namespace brisel
