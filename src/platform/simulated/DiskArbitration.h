// The simulated Disk Arbitration and its disks.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/common/Signal.h"
#include "platform/DiskArbitration.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/FileSystem.h"
#include "platform/simulated/MainLoop.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class DiskArbitration final : public platform::DiskArbitration {
  public:
    DiskArbitration(Transcript& transcript, Faults& faults, MainLoop& mainLoop,
                    FileSystem& fileSystem);

    // Functions of the service.
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
    void mountWithArguments(const Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override;

    // Test controls. Devices are BSD names.

    /// The state of a simulated disk.
    struct Properties {
        DiskDescription description;
        /// The file manager's isWritableFileAtPath for the disk's path.
        bool writable = false;
    };

    [[nodiscard]] bool isAttached(const std::string& device) const;
    [[nodiscard]] bool wasEverAttached(const std::string& device) const;
    /// Attaches and reports a disk, which must not be attached.
    void attach(const std::string& device, Properties properties);
    /// Changes an attached disk without a report.
    void change(const std::string& device, Properties properties);
    [[nodiscard]] const Properties& properties(const std::string& device) const;
    /// Reports an attached disk as appeared again.
    void report(const std::string& device);
    void detach(const std::string& device);
    /// Refuses the next unmount or mount of a disk that is, or was, attached.
    void refuseUnmount(const std::string& device, std::uint32_t status);
    void refuseMount(const std::string& device, std::uint32_t status);
    /// Holds back the completions of requests until `release`.
    void hold() { holding_ = true; }
    /// Queues the held completions on the main loop and stops holding.
    void release();
    /// Mounts a disk read-write without Disk Arbitration, as the mount tool does. Does nothing if
    /// the disk is not attached.
    void mountBehind(const std::string& device, const std::string& path);
    /// Whether an attached disk is mounted read-write at `path`.
    [[nodiscard]] bool isWritable(const std::string& path) const;

  private:
    struct Entry {
        Properties properties;
        bool attached = false;
        /// Order of the last mount and of the last attachment; larger is later.
        std::uint64_t mounted = 0;
        std::uint64_t appeared = 0;
        std::optional<std::uint32_t> unmountRefusal;
        std::optional<std::uint32_t> mountRefusal;
    };

    using Disks = std::map<std::string, Entry>;
    using Reports = common::Signal<const Disk&, const DiskDescription&>;

    /// The attached disk last mounted at `path`, or the end of `disks_`.
    [[nodiscard]] Disks::const_iterator diskMountedAt(const FileURL& path) const;
    void mount(Entry& entry, const std::string& path);
    void postReport(const Reports& signal, const std::string& device);
    void complete(const Disk& disk, std::optional<std::uint32_t> refusal, Completion completion);
    [[nodiscard]] std::optional<std::uint32_t> judgeUnmount(Entry* entry);
    [[nodiscard]] std::optional<std::uint32_t> judgeMount(Entry* entry);
    [[nodiscard]] Entry* find(const std::string& device);

    Transcript& transcript_;
    Faults& faults_;
    MainLoop& mainLoop_;
    FileSystem& fileSystem_;
    bool dead_ = false;
    bool holding_ = false;
    std::uint64_t order_ = 0;
    Disks disks_;
    std::vector<std::function<void()>> held_;
    Reports appeared_;
    Reports disappeared_;
};

}  // namespace brisel::platform::simulated
