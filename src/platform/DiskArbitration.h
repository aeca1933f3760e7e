// The service that watches disks, and mounts and unmounts them.
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

/// A disk object: a device that may be gone, and what a report said of it.
struct Disk {
    std::string bsdName;
    /// In a report the description of that moment; else absent, and asked for when it is needed.
    std::optional<DiskDescription> reported;
};

/// Why a request was refused. Any status may come, not only those of DAReturn.
struct Dissenter {
    std::uint32_t status = DAReturn::Error;
};

/// Main thread only; every callback comes on the main thread, while the main loop turns in its
/// default mode, so never while an alert is up.
class DiskArbitration {
  public:
    using DiskCallback = std::function<void(const Disk&)>;
    /// The dissenter is absent on success.
    using Completion = std::function<void(const Disk&, const std::optional<Dissenter>&)>;

    virtual ~DiskArbitration() = default;

    /// Opens the session that all other calls use. When that fails the others are silent: no
    /// report ever comes and no disk is made.
    virtual void createSession() = 0;
    /// Reports each disk whose description has volumeMountable true: those that are there once
    /// the main loop turns, and later ones as they come.
    [[nodiscard]] virtual Subscription registerDiskAppearedCallback(DiskCallback callback) = 0;
    /// The same match; the report carries the last description of the disk.
    [[nodiscard]] virtual Subscription registerDiskDisappearedCallback(DiskCallback callback) = 0;
    /// Lets the session deliver on the main loop.
    virtual void scheduleWithRunLoop() = 0;

    /// None without a name. Whether such a disk is there is not looked at.
    [[nodiscard]] virtual std::optional<Disk> diskFromBSDName(
        const std::optional<std::string>& name) = 0;
    /// None unless a volume is mounted at exactly this path.
    [[nodiscard]] virtual std::optional<Disk> diskFromVolumePath(
        const std::optional<FileURL>& path) = 0;
    /// The description of a report, else the current one; of a disk that is gone, the last one
    /// known, or one that has its BSD name at most.
    [[nodiscard]] virtual DiskDescription copyDescription(const Disk& disk) = 0;

    /// Unmounts without force. The completion may come before the call returns.
    virtual void unmount(const Disk& disk, Completion completion) = 0;
    /// Mounts where the platform chooses, with these mount options. The completion may come
    /// before the call returns.
    virtual void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                                    Completion completion) = 0;
};

}  // namespace brisel::platform
