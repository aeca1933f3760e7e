// Disk events, unmounts and mounts through UDisks2.
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/common/Signal.h"
#include "platform/DiskArbitration.h"
#include "platform/linux/DiskService.h"
#include "platform/SystemLog.h"

namespace brisel::platform::linux {

/// A disk that carries a file system counts as one with a mountable volume, loop devices and
/// system disks included, unless UDisks2 says to ignore it. A volume that nothing has mounted yet
/// counts as unmounted when it is asked to be: here no system mounts every volume by itself. A
/// volume that somebody else mounts is reported as gone and appeared, so that what the program
/// knows of it is true again; one that somebody else unmounts is reported as gone.
class DiskArbitration final : public platform::DiskArbitration {
  public:
    /// `knownFileSystems` is the kernel's list of the file systems that it has drivers for.
    explicit DiskArbitration(platform::SystemLog& log,
                             std::string knownFileSystems = "/proc/filesystems")
        : log_(log), knownFileSystems_(std::move(knownFileSystems)) {}

    void createSession() override;
    [[nodiscard]] Subscription registerDiskAppearedCallback(DiskCallback callback) override;
    [[nodiscard]] Subscription registerDiskDisappearedCallback(DiskCallback callback) override;
    void scheduleWithRunLoop() override;
    [[nodiscard]] std::optional<Disk> diskFromBSDName(
        const std::optional<std::string>& name) override;
    [[nodiscard]] std::optional<Disk> diskFromVolumePath(
        const std::optional<FileURL>& path) override;
    [[nodiscard]] DiskDescription copyDescription(const Disk& disk) override;
    void unmount(const Disk& disk, Completion completion) override;
    /// Of the arguments UDisks2 gets those it knows by another or the same name; a mount that did
    /// not come out read-write is undone and refused with kDAReturnNotWritable.
    void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override;

  private:
    using Disks = std::map<std::string, DiskDescription>;

    /// Reports what has come and gone since the last time.
    void compare();
    void compareMounts(const std::string& name, const DiskDescription& before,
                       const DiskDescription& now);
    /// Calls `completion` after what the request changed has been noted as the program's own doing.
    void finish(const Disk& disk, const std::optional<Dissenter>& dissenter,
                const std::optional<std::string>& mountPoint, const Completion& completion);
    void finishMount(const Disk& disk, const std::string& mountPoint, const Completion& completion);
    void logFailure(const DiskService::CallFailure& failure, const Disk& disk) const;
    /// Logs the failure, too.
    [[nodiscard]] std::optional<Dissenter> dissenterFor(
        const std::optional<DiskService::CallFailure>& failure, const Disk& disk) const;

    [[nodiscard]] bool hasKernelDriver() const;

    platform::SystemLog& log_;
    std::string knownFileSystems_;
    std::unique_ptr<DiskService> service_;
    Subscription nextComparison_;
    bool scheduled_ = false;
    /// How many of the program's own requests are under way, by BSD name.
    std::map<std::string, int> requests_;
    /// What was reported as appeared, with the newest description of each.
    Disks reported_;
    common::Signal<const Disk&> appeared_;
    common::Signal<const Disk&> disappeared_;
};

/// The mount options that UDisks2 gets for Disk Arbitration's mount arguments: `rw` and `noatime`
/// as they are, `nobrowse` as the desktop's `x-gvfs-hide`. What has no meaning here is left out:
/// `auto`, and `noowners`, which UDisks2 does by itself in giving all files to the caller.
std::string mountOptions(const std::vector<std::string>& arguments);

}  // namespace brisel::platform::linux
