// Disk events, unmounts and mounts through UDisks2.
// SPDX-License-Identifier: MIT
#include "platform/linux/DiskArbitration.h"

#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/linux/MainContext.h"
#include "platform/linux/MountFolder.h"
#include "platform/linux/UDisksErrors.h"
#include "platform/linux/VolumeProbe.h"

namespace brisel::platform::linux {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> KnownArguments{
    {{"rw", "rw"}, {"noatime", "noatime"}, {"nobrowse", "x-gvfs-hide"}}};

// UDisks2's names of the drivers: ntfs-3g goes by the file system's own name.
constexpr const char* FuseDriver = "ntfs";
constexpr const char* KernelDriver = "ntfs3";
// Keeps ntfs-3g from clearing the log of a volume that was not unmounted cleanly. ntfs3 refuses
// such a volume by itself and has no such option.
constexpr const char* NoRecovery = "norecover";

bool isMountable(const DiskDescription& description) {
    return description.volumeMountable.value_or(false);
}

// A device that carries another volume than before is another disk.
bool isSameVolume(const DiskDescription& one, const DiskDescription& other) {
    return one.volumeKind == other.volumeKind && one.volumeUUID == other.volumeUUID &&
           one.mediaUUID == other.mediaUUID;
}

// What is mounted there was mounted for the program, by the mount tool behind UDisks2's back. The
// kernel tells of mounts by the paths without links.
bool isInMountFolder(const std::optional<FileURL>& path) {
    std::error_code code;
    const auto home = std::filesystem::weakly_canonical(g_get_home_dir(), code);
    return path && isBelow(path->path(), mountFolderIn(home.string()));
}

// Where the mount tool has a volume for a moment, until it is in order: its StagingFolder.
bool isUnderWay(const std::optional<FileURL>& path) {
    return path && path->path().starts_with("/run/brisel-");
}

std::string withNoRecovery(const std::string& options) {
    return options.empty() ? NoRecovery : options + "," + NoRecovery;
}

// The answers of a driver that is not installed, that does not know an option, or that cannot mount
// this volume. UDisks2 does not tell these apart, so another driver is worth a try.
bool isOfDriver(const DiskService::CallFailure& failure) {
    return failure.errorName == "org.freedesktop.UDisks2.Error.OptionNotPermitted" ||
           failure.errorName == "org.freedesktop.UDisks2.Error.Failed";
}

std::optional<Dissenter> dissenterFor(const std::optional<DiskService::CallFailure>& failure) {
    if (!failure) return std::nullopt;
    return Dissenter{.status = statusOfError(failure->errorName)};
}

std::string reasonToTakeBack(const std::string& mountPoint) {
    if (isHibernated(mountPoint)) {
        return "Windows is hibernated on it, or was shut down with its fast start-up. Start "
               "Windows and shut it down fully";
    }
    return "it came up read-only. The device is write-protected, or the driver found the volume "
           "unsafe to write";
}

}  // namespace

std::string mountOptions(const std::vector<std::string>& arguments) {
    std::string options;
    for (const auto& argument : arguments) {
        for (const auto& [known, option] : KnownArguments) {
            if (argument != known) continue;
            if (!options.empty()) options += ',';
            options += option;
        }
    }
    return options;
}

void DiskArbitration::createSession() {
    service_ = std::make_unique<DiskService>(log_, [this] { compare(); });
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
    // While the service is away nothing is known; its disks are still there.
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
            disappeared_({.bsdName = name, .reported = description});
        }
    }
    for (const auto& [name, description] : present) {
        if (!isMountable(description) || reported_.contains(name)) continue;
        reported_[name] = description;
        appeared_({.bsdName = name, .reported = description});
    }
}

void DiskArbitration::compareMounts(const std::string& name, const DiskDescription& before,
                                    const DiskDescription& now) {
    if (requests_[name] > 0 || isUnderWay(now.volumePath)) return;
    reported_[name] = now;
    if (before.volumePath == now.volumePath || isInMountFolder(now.volumePath)) return;
    disappeared_({.bsdName = name, .reported = before});
    if (now.volumePath) appeared_({.bsdName = name, .reported = now});
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
void DiskArbitration::finishWritableMount(const MountRequest& request,
                                          const std::string& mountPoint) {
    const auto reported = reported_.find(request.disk.bsdName);
    if (reported != reported_.end()) {
        const auto before = reported->second;
        reported->second.volumePath = FileURL(mountPoint);
        disappeared_({.bsdName = request.disk.bsdName, .reported = before});
    }
    --requests_[request.disk.bsdName];
    request.completion(request.disk, std::nullopt);
}

std::optional<Disk> DiskArbitration::diskFromBSDName(const std::optional<std::string>& name) {
    if (!name) return std::nullopt;
    return Disk{.bsdName = *name, .reported = std::nullopt};
}

std::optional<Disk> DiskArbitration::diskFromVolumePath(const std::optional<FileURL>& path) {
    if (!path) return std::nullopt;
    for (const auto& [name, description] : service_->disks()) {
        if (description.volumePath == path) return diskFromBSDName(name);
    }
    return std::nullopt;
}

DiskDescription DiskArbitration::copyDescription(const Disk& disk) {
    if (disk.reported) return *disk.reported;
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
        if (failure) logFailure(*failure, disk);
        finish(disk, dissenterFor(failure), completion);
    });
}

void DiskArbitration::mountWithArguments(const Disk& disk,
                                         const std::vector<std::string>& arguments,
                                         Completion completion) {
    ++requests_[disk.bsdName];
    mountWithFuseDriver(
        {.disk = disk, .options = mountOptions(arguments), .completion = std::move(completion)});
}

// Each try names its driver: by itself UDisks2 2.10 holds the options against ntfs3's list first,
// and 2.9 against none. Which drivers there are is left to the answers, because the kernel lists
// ntfs3 only once it has been loaded.
void DiskArbitration::mountWithFuseDriver(const MountRequest& request) {
    service_->mount(request.disk.bsdName,
                    {.options = withNoRecovery(request.options), .driver = FuseDriver},
                    [this, request](const auto& failure, const auto& mountPoint) {
                        if (failure && isOfDriver(*failure)) {
                            logFailure(*failure, request.disk);
                            mountWithKernelDriver(request, *failure);
                        } else {
                            mountDidFinish(request, failure, mountPoint);
                        }
                    });
}

// Where neither driver mounts the volume, the first answer counts: the second may say no more than
// that there is no ntfs3.
void DiskArbitration::mountWithKernelDriver(const MountRequest& request,
                                            const DiskService::CallFailure& first) {
    service_->mount(request.disk.bsdName, {.options = request.options, .driver = KernelDriver},
                    [this, request, first](const auto& failure, const auto& mountPoint) {
                        if (failure && isOfDriver(*failure)) {
                            logFailure(*failure, request.disk);
                            finish(request.disk, dissenterFor(first), request.completion);
                        } else {
                            mountDidFinish(request, failure, mountPoint);
                        }
                    });
}

void DiskArbitration::mountDidFinish(const MountRequest& request,
                                     const std::optional<DiskService::CallFailure>& failure,
                                     const std::string& mountPoint) {
    if (failure) {
        logFailure(*failure, request.disk);
        finish(request.disk, dissenterFor(failure), request.completion);
    } else if (!isHibernated(mountPoint) && takesWriting(mountPoint)) {
        finishWritableMount(request, mountPoint);
    } else {
        takeBackMount(request, mountPoint);
    }
}

// ntfs-3g falls back to a read-only mount without an error when the volume is hibernated or
// otherwise unsafe to write. ntfs3 does not look for a hibernated Windows.
void DiskArbitration::takeBackMount(const MountRequest& request, const std::string& mountPoint) {
    log_.log("%@ is unmounted again: %@.", request.disk.bsdName, reasonToTakeBack(mountPoint));
    service_->unmount(
        request.disk.bsdName, [this, request](const auto& failure, const auto& /*result*/) {
            if (failure) logFailure(*failure, request.disk);
            finish(request.disk, Dissenter{.status = DAReturn::NotWritable}, request.completion);
        });
}

void DiskArbitration::logFailure(const DiskService::CallFailure& failure, const Disk& disk) const {
    log_.log("UDisks2 on %@: %@", disk.bsdName, failure.message);
}

}  // namespace brisel::platform::linux
