// Disk Arbitration: reports disks, mounts and unmounts them.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/DiskDescription.h"
#include "platform/Subscription.h"

namespace brisel::platform {

/// Status codes of Disk Arbitration (DADissenter.h), as unsigned values.
struct DAReturn {
    static constexpr std::uint32_t Success = 0;
    static constexpr std::uint32_t Error = 0xF8DA0001;
    static constexpr std::uint32_t Busy = 0xF8DA0002;
    static constexpr std::uint32_t BadArgument = 0xF8DA0003;
    static constexpr std::uint32_t ExclusiveAccess = 0xF8DA0004;
    static constexpr std::uint32_t NoResources = 0xF8DA0005;
    static constexpr std::uint32_t NotFound = 0xF8DA0006;
    static constexpr std::uint32_t NotMounted = 0xF8DA0007;
    static constexpr std::uint32_t NotPermitted = 0xF8DA0008;
    static constexpr std::uint32_t NotPrivileged = 0xF8DA0009;
    static constexpr std::uint32_t NotReady = 0xF8DA000A;
    static constexpr std::uint32_t NotWritable = 0xF8DA000B;
    static constexpr std::uint32_t Unsupported = 0xF8DA000C;
};

/// A disk object; its device may be gone.
struct Disk {
    std::string bsdName;
};

/// Why a request was refused; `status` may be outside DAReturn.
struct Dissenter {
    std::uint32_t status = DAReturn::Error;
};

/// Main thread only. Callbacks run on the main thread while the main loop runs in its default mode,
/// so never while an alert is up.
class DiskArbitration {
  public:
    /// Receives the disk's description at the moment of the report.
    using DiskCallback = std::function<void(const Disk&, const DiskDescription&)>;
    /// The dissenter is absent on success.
    using Completion = std::function<void(const Disk&, const std::optional<Dissenter>&)>;

    virtual ~DiskArbitration() = default;

    /// Opens the session. If that fails, no disk is ever reported or created.
    virtual void createSession() = 0;
    /// Reports each disk with volumeMountable true: attached ones once the main loop runs, later
    /// ones as they appear.
    [[nodiscard]] virtual Subscription registerDiskAppearedCallback(DiskCallback callback) = 0;
    /// Reports each disk with volumeMountable true that disappears, with its last description.
    [[nodiscard]] virtual Subscription registerDiskDisappearedCallback(DiskCallback callback) = 0;
    /// Schedules the session's callbacks on the main loop.
    virtual void scheduleWithRunLoop() = 0;

    /// Absent if `name` is absent. Does not check that the disk exists.
    [[nodiscard]] virtual std::optional<Disk> diskFromBSDName(
        const std::optional<std::string>& name) = 0;
    /// Absent unless a volume is mounted at exactly `path`.
    [[nodiscard]] virtual std::optional<Disk> diskFromVolumePath(
        const std::optional<FileURL>& path) = 0;
    /// The current description. After removal, the last known one or at most the BSD name.
    [[nodiscard]] virtual DiskDescription copyDescription(const Disk& disk) = 0;

    /// Does not force. `completion` may run before the call returns.
    virtual void unmount(const Disk& disk, Completion completion) = 0;
    /// The platform chooses the mount point. `completion` may run before the call returns.
    virtual void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                                    Completion completion) = 0;
};

}  // namespace brisel::platform
