// The read-write mount by the system's mount tool, run as root.
// SPDX-License-Identifier: MIT

#include "mounting/Remount.h"
#include "mounting/StatusMessages.h"
#include "platform/FileManager.h"
#include "platform/Format.h"
#include "platform/SystemLog.h"
#include "privileged/KJPrivilegedTask.h"
#include "shared/MountFolders.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

namespace {

using platform::DiskDescription;
using platform::stringWithFormat;

constexpr const char* MountToolPath = "/sbin/mount_ntfs";
// The options of `mountArguments` in Remount.cpp, comma-separated.
constexpr const char* MountOptions = "rw,auto,nobrowse,noowners,noatime";

struct Target {
    std::string devicePath;
    std::string bsdName;
    std::string label;
    std::string mountPoint;
};

Target makeTarget(const NTFSVolumeManager& manager, const platform::Disk& disk,
                  const DiskDescription& description) {
    Target target;
    target.devicePath = stringWithFormat("/dev/%s", disk.bsdName);
    target.bsdName = platform::orNullText(description.mediaBSDName);
    const auto volume = findVolume(manager.volumes(), target.bsdName);
    target.label = platform::orNullText(volume ? volume->label() : description.volumeName);
    target.mountPoint = stringWithFormat("%@/%@/%@", manager.platform().fileManager.homeDirectory(),
                                         shared::MountFolders, target.label);
    return target;
}

void cleanUpAfterLaunchFailure(NTFSVolumeManager& manager, const Target& target) {
    const auto& platform = manager.platform();
    if (const auto error = platform.fileManager.removeItem(target.mountPoint)) {
        platform.systemLog.log("Unable to delete folder: %@, reason: %@",
                               error->localizedDescription, error->localizedFailureReason);
    }
    removeFirstVolume(manager.volumes(), target.bsdName);
    manager.setInProgress(false);
    manager.refreshVolumes();
}

bool launch(KJPrivilegedTask& task, platform::SystemLog& log, const Target& target) {
    const auto status = task.launch();
    if (status == platform::errAuthorizationCanceled) {
        log.log("mount command cancelled by user");
        return false;
    }
    if (status != platform::errAuthorizationSuccess) {
        log.log("something went wrong with mount command launch");
        return false;
    }
    log.log("mount command successfully launched for %@", target.devicePath);
    return true;
}

void recordMountedVolume(NTFSVolumeManager& manager, const Target& target,
                         const DiskDescription& description) {
    const auto volume = NTFSVolume::initWithVolume(description);
    volume->setLabel(target.label);
    volume->setWritable(true);
    volume->setDeviceNode(target.bsdName);
    volume->setVolumePath(platform::FileURL(target.mountPoint));
    volume->setUuid(automountUUID(description));
    manager.volumes().push_back(volume);
    manager.refreshVolumes();
    manager.openInFinder(volume->volumePath());
}

void finish(NTFSVolumeManager& manager, KJPrivilegedTask& task, const Target& target,
            const DiskDescription& description) {
    auto& log = manager.platform().systemLog;
    task.waitUntilExit();
    const auto output = task.outputFileHandle()->readDataToEndOfFile();
    if (!output.empty()) log.log("mount command output: %@", output);
    // Removes the old record whether or not the tool succeeded.
    removeFirstVolume(manager.volumes(), target.bsdName);
    if (task.terminationStatus() != 0) {
        // Keeps the mount point: the failed tool may have left files in it.
        log.log("mount will fail, there is a termination status report: %i",
                task.terminationStatus());
        reportRemountFailure(manager, std::nullopt, description);
        return;
    }
    recordMountedVolume(manager, target, description);
}

}  // namespace

void mountWithTool(NTFSVolumeManager& manager, const platform::Disk& disk,
                   const DiskDescription& description) {
    const auto& platform = manager.platform();
    const auto target = makeTarget(manager, disk, description);
    const auto task = KJPrivilegedTask::init(platform);
    task->setLaunchPath(MountToolPath);
    if (const auto error = platform.fileManager.createDirectory(target.mountPoint)) {
        // Deliberately stays busy and keeps the record of the now unmounted volume: no mount was
        // tried.
        platform.systemLog.log("Unable to create folder: %@, reason: %@",
                               error->localizedDescription, error->localizedFailureReason);
        return;
    }
    task->setArguments({"-o", MountOptions, target.devicePath, target.mountPoint});
    if (!launch(*task, platform.systemLog, target)) {
        cleanUpAfterLaunchFailure(manager, target);
        return;
    }
    finish(manager, *task, target, description);
}

}  // namespace brisel
