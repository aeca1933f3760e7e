// Disk events, unmounts and mounts through UDisks2.
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

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
    explicit DiskArbitration(platform::SystemLog& log) : log_(log) {}

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
    /// Mounts with ntfs-3g and its option `norecover`, else with the kernel's ntfs3. Passes on the
    /// arguments that UDisks2 knows, see `mountOptions`. Reports the disk as disappeared before a
    /// successful completion. A mount that did not come out read-write, or that shows a hibernated
    /// Windows, is undone and refused with kDAReturnNotWritable.
    void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override;

  private:
    using Disks = std::map<std::string, DiskDescription>;

    /// Reports what has come and gone since the last time.
    void compare();
    void compareMounts(const std::string& name, const DiskDescription& before,
                       const DiskDescription& now);
    /// A mount that has been asked for; `options` as UDisks2 takes them.
    struct MountRequest {
        Disk disk;
        std::string options;
        Completion completion;
    };

    void mountWithFuseDriver(const MountRequest& request);
    /// `first` is the fuse driver's failure.
    void mountWithKernelDriver(const MountRequest& request, const DiskService::CallFailure& first);
    void mountDidFinish(const MountRequest& request,
                        const std::optional<DiskService::CallFailure>& failure,
                        const std::string& mountPoint);
    void takeBackMount(const MountRequest& request, const std::string& mountPoint);
    void finishWritableMount(const MountRequest& request, const std::string& mountPoint);
    /// Ends a request that leaves the disk unmounted, or as it was.
    void finish(const Disk& disk, const std::optional<Dissenter>& dissenter,
                const Completion& completion);
    void logFailure(const DiskService::CallFailure& failure, const Disk& disk) const;

    platform::SystemLog& log_;
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
