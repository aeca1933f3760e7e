// Disk events, unmounts and mounts through UDisks2.
// SPDX-License-Identifier: MIT
#include "platform/headless/DiskArbitration.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/headless/MainContext.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/UDisksErrors.h"
#include "shared/MountFolders.h"

namespace brisel::platform::headless {

namespace {

bool isMountable(const DiskDescription& description) {
    return description.volumeMountable.value_or(false);
}

// A device that carries another volume than before is another disk.
bool isSameVolume(const DiskDescription& one, const DiskDescription& other) {
    return one.volumeKind == other.volumeKind && one.volumeUUID == other.volumeUUID &&
           one.mediaUUID == other.mediaUUID;
}

// The mount tool mounts there, for the program and without UDisks2. The kernel reports mount points
// without symbolic links.
bool isInMountFolder(const std::optional<FileURL>& path) {
    std::error_code code;
    const auto home = std::filesystem::weakly_canonical(g_get_home_dir(), code);
    return path && isBelow(path->path(), mountFolderIn(home.string()));
}

// The mount tool mounts a volume there until it has verified it.
bool isUnderWay(const std::optional<FileURL>& path) {
    return path && path->path().starts_with(shared::StagingPrefix);
}

}  // namespace

void DiskArbitration::createSession() {
    service_ = std::make_unique<DiskService>(log_, [this] { compare(); });
    readWriteMount_ = std::make_unique<ReadWriteMount>(*service_, log_);
}

Subscription DiskArbitration::registerDiskAppearedCallback(DiskCallback callback) {
    return appeared_.subscribe(std::move(callback));
}

Subscription DiskArbitration::registerDiskDisappearedCallback(DiskCallback callback) {
    return disappeared_.subscribe(std::move(callback));
}

void DiskArbitration::scheduleWithRunLoop() {
    nextComparison_ = whenMainLoopTurns([this] {
        scheduled_ = true;
        compare();
    });
}

void DiskArbitration::compare() {
    // Without the service the state of the disks is unknown; they are not gone.
    if (!scheduled_ || !service_->isThere()) return;
    const auto present = service_->disks();
    for (const auto& [name, description] : Disks(reported_)) {
        const auto found = present.find(name);
        const bool stays = found != present.end() && isMountable(found->second) &&
                           isSameVolume(description, found->second);
        if (stays) {
            compareMounts(name, description, found->second);
        } else {
            reported_.erase(name);
            disappeared_({.bsdName = name}, description);
        }
    }
    for (const auto& [name, description] : present) {
        if (!isMountable(description) || reported_.contains(name)) continue;
        reported_[name] = description;
        appeared_({.bsdName = name}, description);
    }
}

void DiskArbitration::compareMounts(const std::string& name, const DiskDescription& before,
                                    const DiskDescription& now) {
    if (requests_[name] > 0 || isUnderWay(now.volumePath)) return;
    reported_[name] = now;
    if (before.volumePath == now.volumePath || isInMountFolder(now.volumePath)) return;
    disappeared_({.bsdName = name}, before);
    if (now.volumePath) appeared_({.bsdName = name}, now);
}

void DiskArbitration::finish(const Disk& disk, const std::optional<Dissenter>& dissenter,
                             const Completion& completion) {
    --requests_[disk.bsdName];
    const auto reported = reported_.find(disk.bsdName);
    if (!dissenter && reported != reported_.end()) reported->second.volumePath.reset();
    // Mounts and unmounts by others were passed over during the request.
    if (dissenter) nextComparison_ = whenMainLoopTurns([this] { compare(); });
    completion(disk, dissenter);
}

// The completion appends the disk's new record, unless the old one is still in the list with others
// behind it. So the disk is reported as gone first, as for a mount by another program.
void DiskArbitration::finishMount(const Disk& disk, const std::string& mountPoint,
                                  const Completion& completion) {
    const auto reported = reported_.find(disk.bsdName);
    if (reported != reported_.end()) {
        const auto before = reported->second;
        reported->second.volumePath = FileURL(mountPoint);
        disappeared_({.bsdName = disk.bsdName}, before);
    }
    --requests_[disk.bsdName];
    completion(disk, std::nullopt);
}

std::optional<Disk> DiskArbitration::diskFromBSDName(const std::optional<std::string>& name) {
    if (!name) return std::nullopt;
    return Disk{.bsdName = *name};
}

std::optional<Disk> DiskArbitration::diskFromVolumePath(const std::optional<FileURL>& path) {
    if (!path) return std::nullopt;
    for (const auto& [name, description] : service_->disks()) {
        if (description.volumePath == path) return diskFromBSDName(name);
    }
    return std::nullopt;
}

DiskDescription DiskArbitration::copyDescription(const Disk& disk) {
    const auto present = service_->disks();
    if (const auto found = present.find(disk.bsdName); found != present.end()) return found->second;
    if (const auto found = reported_.find(disk.bsdName); found != reported_.end()) {
        return found->second;
    }
    DiskDescription gone;
    gone.mediaBSDName = disk.bsdName;
    return gone;
}

void DiskArbitration::unmount(const Disk& disk, Completion completion) {
    const auto description = copyDescription(disk);
    if (isMountable(description) && !description.volumePath) {
        completion(disk, std::nullopt);
        return;
    }
    ++requests_[disk.bsdName];
    service_->unmount(disk.bsdName, [this, disk, completion = std::move(completion)](
                                        const auto& failure, const auto& /*result*/) {
        std::optional<Dissenter> dissenter;
        if (failure) {
            log_.log(UDisksFailure, disk.bsdName, failure->message);
            dissenter = dissenterFor(failure->errorName);
        }
        finish(disk, dissenter, completion);
    });
}

void DiskArbitration::mountWithArguments(const Disk& disk,
                                         const std::vector<std::string>& arguments,
                                         Completion completion) {
    ++requests_[disk.bsdName];
    readWriteMount_->mount(disk.bsdName, mountOptions(arguments),
                           [this, disk, completion = std::move(completion)](
                               const auto& dissenter, const auto& mountPoint) {
                               if (dissenter) {
                                   finish(disk, dissenter, completion);
                               } else {
                                   finishMount(disk, mountPoint, completion);
                               }
                           });
}

}  // namespace brisel::platform::headless
