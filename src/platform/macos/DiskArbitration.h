// Disk Arbitration.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>

#include "platform/DiskArbitration.h"
#include "platform/macos/Owned.h"

namespace brisel::platform::macos {

/// The session is created once and kept as long as the process: it must not be released while it
/// is scheduled.
class DiskArbitration final : public platform::DiskArbitration {
  public:
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
    /// A volume that was to be mounted read-write and came out read-only counts as refused with
    /// kDAReturnNotWritable: a volume that is always remounted would be remounted for ever.
    void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override;

  private:
    /// Either of the two calls that register a callback for reports of disks.
    using Register = void (*)(DASessionRef, CFDictionaryRef, DADiskAppearedCallback, void*);
    [[nodiscard]] Subscription registerCallback(Register registerAt, DiskCallback callback);
    [[nodiscard]] Owned<DADiskRef> diskNamed(const std::string& name) const;

    Owned<DASessionRef> session_;
};

}  // namespace brisel::platform::macos
