// Mounts NTFS volumes read-write through UDisks2, with ntfs-3g or ntfs3.
// SPDX-License-Identifier: MIT
#include "platform/headless/ReadWriteMount.h"

#include <array>
#include <string_view>
#include <utility>

#include "platform/headless/UDisksErrors.h"
#include "platform/headless/VolumeProbe.h"

namespace brisel::platform::headless {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> KnownArguments{
    {{"rw", "rw"}, {"noatime", "noatime"}, {"nobrowse", "x-gvfs-hide"}}};

// UDisks2's driver names; `ntfs` is ntfs-3g.
constexpr const char* FuseDriver = "ntfs";
constexpr const char* KernelDriver = "ntfs3";
// Stops ntfs-3g from clearing the journal of a volume that was not cleanly unmounted. ntfs3 has no
// such option and refuses such a volume.
constexpr const char* NoRecovery = "norecover";

std::string withNoRecovery(const std::string& options) {
    return options.empty() ? NoRecovery : options + "," + NoRecovery;
}

// True for errors that another driver may avoid: driver not installed, option unknown, volume not
// mountable. UDisks2 does not tell these apart.
bool isOfDriver(const DiskService::CallFailure& failure) {
    return failure.errorName == "org.freedesktop.UDisks2.Error.OptionNotPermitted" ||
           failure.errorName == "org.freedesktop.UDisks2.Error.Failed";
}

std::string reasonToTakeBack(const std::string& mountPoint) {
    if (isHibernated(mountPoint)) {
        return "Windows is hibernated or was shut down with fast startup. Start Windows and shut "
               "it down fully";
    }
    return "it was mounted read-only. The device is write-protected, or the driver considers the "
           "volume unsafe to write";
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

void ReadWriteMount::mount(const std::string& device, const std::string& options, Done done) {
    tryFuseDriver({.device = device, .options = options, .done = std::move(done)});
}

// Names the driver: without a name UDisks2 2.10 checks the options against ntfs3's list first, and
// 2.9 against none. Tries the mount to find out which driver exists, because the kernel lists ntfs3
// only once it is loaded.
void ReadWriteMount::tryFuseDriver(const Attempt& attempt) {
    service_.mount(attempt.device,
                   {.options = withNoRecovery(attempt.options), .driver = FuseDriver},
                   [this, attempt](const auto& failure, const auto& mountPoint) {
                       if (failure && isOfDriver(*failure)) {
                           log_.log(UDisksFailure, attempt.device, failure->message);
                           tryKernelDriver(attempt, *failure);
                       } else {
                           finish(attempt, failure, mountPoint);
                       }
                   });
}

// If both drivers fail, reports the first failure; the second may only mean that ntfs3 is missing.
void ReadWriteMount::tryKernelDriver(const Attempt& attempt, const Failure& first) {
    service_.mount(attempt.device, {.options = attempt.options, .driver = KernelDriver},
                   [this, attempt, first](const auto& failure, const auto& mountPoint) {
                       if (failure && isOfDriver(*failure)) {
                           log_.log(UDisksFailure, attempt.device, failure->message);
                           attempt.done(dissenterFor(first.errorName), {});
                       } else {
                           finish(attempt, failure, mountPoint);
                       }
                   });
}

void ReadWriteMount::finish(const Attempt& attempt, const std::optional<Failure>& failure,
                            const std::string& mountPoint) {
    if (failure) {
        log_.log(UDisksFailure, attempt.device, failure->message);
        attempt.done(dissenterFor(failure->errorName), {});
    } else if (!isHibernated(mountPoint) && takesWriting(mountPoint)) {
        attempt.done(std::nullopt, mountPoint);
    } else {
        takeBack(attempt, mountPoint);
    }
}

// ntfs-3g silently mounts a hibernated or unsafe volume read-only. ntfs3 does not check for
// hibernation.
void ReadWriteMount::takeBack(const Attempt& attempt, const std::string& mountPoint) {
    log_.log("%@ is unmounted again: %@.", attempt.device, reasonToTakeBack(mountPoint));
    service_.unmount(attempt.device, [this, attempt](const auto& failure, const auto& /*result*/) {
        if (failure) log_.log(UDisksFailure, attempt.device, failure->message);
        attempt.done(Dissenter{.status = DAReturn::NotWritable}, {});
    });
}

}  // namespace brisel::platform::headless
