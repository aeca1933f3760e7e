// Mounts NTFS volumes read-write through UDisks2, with ntfs-3g or ntfs3.
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

/// Main thread only. Callbacks run from the main context.
class ReadWriteMount {
  public:
    /// The dissenter is absent on success; `mountPoint` is empty on failure.
    using Done =
        std::function<void(const std::optional<Dissenter>&, const std::string& mountPoint)>;

    /// `service` and `log` must outlive this object.
    ReadWriteMount(DiskService& service, platform::SystemLog& log) : service_(service), log_(log) {}

    /// Mounts `device`, a BSD name, with ntfs-3g and `norecover`, else with ntfs3. `options` are
    /// UDisks2 mount options. If the mount is not writable or Windows is hibernated on the volume,
    /// unmounts it and fails with kDAReturnNotWritable. Logs each failure.
    void mount(const std::string& device, const std::string& options, Done done);

  private:
    using Failure = DiskService::CallFailure;
    struct Attempt {
        std::string device;
        std::string options;
        Done done;
    };

    void tryFuseDriver(const Attempt& attempt);
    /// `first` is ntfs-3g's failure.
    void tryKernelDriver(const Attempt& attempt, const Failure& first);
    void finish(const Attempt& attempt, const std::optional<Failure>& failure,
                const std::string& mountPoint);
    void takeBack(const Attempt& attempt, const std::string& mountPoint);

    DiskService& service_;
    platform::SystemLog& log_;
};

/// Translates Disk Arbitration's mount arguments to UDisks2's options: keeps `rw` and `noatime`,
/// turns `nobrowse` into `x-gvfs-hide`. Drops the others: `auto`, and `noowners`, because UDisks2
/// gives all files to the caller anyway.
std::string mountOptions(const std::vector<std::string>& arguments);

}  // namespace brisel::platform::headless
