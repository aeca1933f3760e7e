// Disk events, mounts and unmounts, by Disk Arbitration.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>

#include <memory>
#include <set>
#include <string>

#include "platform/DiskArbitration.h"
#include "platform/macos/Owned.h"

namespace brisel::platform::macos {

/// Keeps its session for the life of the process: a scheduled session must not be released.
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
    /// Fails with kDAReturnNotWritable if `rw` was requested and the volume came out read-only for
    /// the second time in a row. With a success instead, an automount would remount it forever.
    void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override;

  private:
    /// DARegisterDiskAppearedCallback or DARegisterDiskDisappearedCallback.
    using Register = void (*)(DASessionRef, CFDictionaryRef, DADiskAppearedCallback, void*);
    [[nodiscard]] Subscription registerCallback(Register registerAt, DiskCallback callback);
    [[nodiscard]] Owned<DADiskRef> diskNamed(const std::string& name) const;

    Owned<DASessionRef> session_;
    /// Names of the attached disks whose last read-write mount came out read-only.
    const std::shared_ptr<std::set<std::string>> readOnlyDisks_ =
        std::make_shared<std::set<std::string>>();
};

}  // namespace brisel::platform::macos
