// Disk events, unmounts and mounts through UDisks2.
// SPDX-License-Identifier: MIT
#include "platform/linux/DiskArbitration.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "platform/linux/MainContext.h"
#include "platform/linux/UDisksErrors.h"
#include "platform/linux/VolumeProbe.h"

namespace brisel::platform::linux {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> KnownArguments{
    {{"rw", "rw"}, {"noatime", "noatime"}, {"nobrowse", "x-gvfs-hide"}}};

// Keeps ntfs-3g from clearing the log of a volume that was not unmounted cleanly. The kernel's
// driver refuses such a volume by itself, and does not know the word.
constexpr const char* NoRecovery = "norecover";
constexpr const char* KernelDriver = "ntfs3";

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
    return path && path->path().starts_with(home.string() + "/.brisel/");
}

// Where the mount tool has a volume for a moment, until it is in order: its StagingFolder.
bool isUnderWay(const std::optional<FileURL>& path) {
    return path && path->path().starts_with("/run/brisel-");
}

std::string withNoRecovery(const std::string& options) {
    return options.empty() ? NoRecovery : options + "," + NoRecovery;
}

bool mayHaveMinded(const DiskService::CallFailure& failure) {
    return failure.errorName == "org.freedesktop.UDisks2.Error.OptionNotPermitted" ||
           failure.errorName == "org.freedesktop.UDisks2.Error.Failed";
}

std::string reasonForReadOnly(const std::string& mountPoint) {
    if (isHibernated(mountPoint)) {
        return "Windows is hibernated on it, or was shut down with its fast start-up. Start "
               "Windows and shut it down fully";
    }
    return "the device is write-protected, or the driver found the volume unsafe to write";
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
                             const std::optional<std::string>& mountPoint,
                             const Completion& completion) {
    --requests_[disk.bsdName];
    const auto reported = reported_.find(disk.bsdName);
    if (!dissenter && reported != reported_.end()) {
        reported->second.volumePath.reset();
        if (mountPoint) reported->second.volumePath = FileURL(*mountPoint);
    }
    // What others have mounted or unmounted meanwhile was passed over.
    if (dissenter) nextComparison_ = whenMainLoopTurns([this] { compare(); });
    completion(disk, dissenter);
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
        finish(disk, dissenterFor(failure, disk), std::nullopt, completion);
    });
}

void DiskArbitration::mountWithArguments(const Disk& disk,
                                         const std::vector<std::string>& arguments,
                                         Completion completion) {
    ++requests_[disk.bsdName];
    const auto options = mountOptions(arguments);
    auto done = [this, disk, completion = std::move(completion)](const auto& failure,
                                                                 const std::string& mountPoint) {
        if (failure) {
            finish(disk, dissenterFor(failure, disk), std::nullopt, completion);
        } else {
            finishMount(disk, mountPoint, completion);
        }
    };
    service_->mount(disk.bsdName, {.options = withNoRecovery(options), .driver = {}},
                    [this, disk, options, done = std::move(done)](const auto& failure,
                                                                  const std::string& mountPoint) {
                        if (failure && mayHaveMinded(*failure) && hasKernelDriver()) {
                            logFailure(*failure, disk);
                            service_->mount(disk.bsdName,
                                            {.options = options, .driver = KernelDriver}, done);
                        } else {
                            done(failure, mountPoint);
                        }
                    });
}

// NTFS drivers fall back to a read-only mount without an error when the volume is hibernated or
// otherwise unsafe to write.
void DiskArbitration::finishMount(const Disk& disk, const std::string& mountPoint,
                                  const Completion& completion) {
    if (takesWriting(mountPoint)) {
        finish(disk, std::nullopt, mountPoint, completion);
        return;
    }
    log_.log("%@ came up read-only and is unmounted again: %@.", disk.bsdName,
             reasonForReadOnly(mountPoint));
    service_->unmount(
        disk.bsdName, [this, disk, completion](const auto& failure, const auto& /*result*/) {
            if (failure) logFailure(*failure, disk);
            finish(disk, Dissenter{.status = DAReturn::NotWritable}, std::nullopt, completion);
        });
}

// The kernel's own driver, once it has been loaded.
bool DiskArbitration::hasKernelDriver() const {
    std::ifstream names(knownFileSystems_);
    std::string word;
    while (names >> word) {
        if (word == KernelDriver) return true;
    }
    return false;
}

void DiskArbitration::logFailure(const DiskService::CallFailure& failure, const Disk& disk) const {
    log_.log("UDisks2 on %@: %@", disk.bsdName, failure.message);
}

std::optional<Dissenter> DiskArbitration::dissenterFor(
    const std::optional<DiskService::CallFailure>& failure, const Disk& disk) const {
    if (!failure) return std::nullopt;
    logFailure(*failure, disk);
    return Dissenter{.status = statusOfError(failure->errorName)};
}

}  // namespace brisel::platform::linux
