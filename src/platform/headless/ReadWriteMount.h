// Mounts NTFS volumes read-write through UDisks2, with whichever driver is there.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/DiskArbitration.h"
#include "platform/headless/DiskService.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// Main thread only; everything is called back from the main context.
class ReadWriteMount {
  public:
    /// The dissenter is absent on success, and the mount point is empty unless there is one.
    using Done =
        std::function<void(const std::optional<Dissenter>&, const std::string& mountPoint)>;

    /// Both must outlive the object.
    ReadWriteMount(DiskService& service, platform::SystemLog& log) : service_(service), log_(log) {}

    /// Mounts a device with ntfs-3g and its option `norecover`, else with the kernel's ntfs3.
    /// `options` are UDisks2's. A mount that does not take writing, or that shows a hibernated
    /// Windows, is undone and refused with kDAReturnNotWritable. Every failure is logged.
    void mount(const std::string& device, const std::string& options, Done done);

  private:
    using Failure = DiskService::CallFailure;
    struct Request {
        std::string device;
        std::string options;
        Done done;
    };

    void tryFuseDriver(const Request& request);
    /// `first` is the fuse driver's failure.
    void tryKernelDriver(const Request& request, const Failure& first);
    void finish(const Request& request, const std::optional<Failure>& failure,
                const std::string& mountPoint);
    void takeBack(const Request& request, const std::string& mountPoint);

    DiskService& service_;
    platform::SystemLog& log_;
};

/// The mount options that UDisks2 gets for Disk Arbitration's mount arguments: `rw` and `noatime`
/// as they are, `nobrowse` as the desktop's `x-gvfs-hide`. What has no meaning here is left out:
/// `auto`, and `noowners`, which UDisks2 does by itself in giving all files to the caller.
std::string mountOptions(const std::vector<std::string>& arguments);

}  // namespace brisel::platform::headless
