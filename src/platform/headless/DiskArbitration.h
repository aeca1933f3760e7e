// Disk events, unmounts and mounts through UDisks2.
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/common/Signal.h"
#include "platform/DiskArbitration.h"
#include "platform/headless/DiskService.h"
#include "platform/headless/ReadWriteMount.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// Reports every disk with a file system, loop devices and system disks included, unless UDisks2
/// says to ignore it. Unmounting a volume that is not mounted succeeds: Linux does not mount every
/// volume by itself. Reports a disk that another program mounts as disappeared and appeared, and
/// one that another program unmounts as disappeared.
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
    /// Mounts as `ReadWriteMount` does, with the `mountOptions` of these arguments. Reports the
    /// disk as disappeared before a successful completion.
    void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override;

    /// True if the disk can be unplugged and nothing on its drive is mounted. After an unmount.
    [[nodiscard]] bool mayBeUnplugged(const std::string& bsdName) const {
        return service_->mayBeUnplugged(bsdName);
    }

  private:
    using Disks = std::map<std::string, DiskDescription>;

    /// Reports the disks that appeared and disappeared since the last call.
    void compare();
    void compareMounts(const std::string& name, const DiskDescription& before,
                       const DiskDescription& now);
    void finishMount(const Disk& disk, const std::string& mountPoint, const Completion& completion);
    /// Ends a request that leaves the disk unmounted, or as it was.
    void finish(const Disk& disk, const std::optional<Dissenter>& dissenter,
                const Completion& completion);

    platform::SystemLog& log_;
    std::unique_ptr<DiskService> service_;
    std::unique_ptr<ReadWriteMount> readWriteMount_;
    Subscription nextComparison_;
    bool scheduled_ = false;
    /// Number of the program's own unfinished requests, by BSD name.
    std::map<std::string, int> requests_;
    /// The disks reported as appeared, with their newest descriptions.
    Disks reported_;
    common::Signal<const Disk&, const DiskDescription&> appeared_;
    common::Signal<const Disk&, const DiskDescription&> disappeared_;
};

}  // namespace brisel::platform::headless
