// The disks of the simulated Mac, and the service that tells of them.
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

    // The service.
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

    // The control face. Devices are BSD names.

    /// A disk as it is told to the simulated Mac.
    struct Properties {
        DiskDescription description;
        /// The file manager's answer for its path.
        bool writable = false;
    };

    [[nodiscard]] bool isAttached(const std::string& device) const;
    [[nodiscard]] bool wasEverAttached(const std::string& device) const;
    /// The disk appears; it must not be there.
    void attach(const std::string& device, Properties properties);
    /// Changes a disk that is there, and reports nothing.
    void change(const std::string& device, Properties properties);
    [[nodiscard]] const Properties& properties(const std::string& device) const;
    /// Reports a disk that is there as appeared once more.
    void report(const std::string& device);
    /// The disk disappears.
    void detach(const std::string& device);
    /// Refuses the next such request for a disk that was once there.
    void refuseUnmount(const std::string& device, std::uint32_t status);
    void refuseMount(const std::string& device, std::uint32_t status);
    /// Keeps back the completions of requests from now on.
    void hold() { holding_ = true; }
    /// Lets go what was kept back.
    void release();
    /// Mounts a disk, writable, if it is there, as a mount behind Disk Arbitration's back does.
    void mountBehind(const std::string& device, const std::string& path);
    /// Whether a disk that is there is mounted, writable, at this path.
    [[nodiscard]] bool isWritable(const std::string& path) const;

  private:
    struct Entry {
        Properties properties;
        bool attached = false;
        /// When it was last mounted, and attached: larger is later.
        std::uint64_t mounted = 0;
        std::uint64_t appeared = 0;
        std::optional<std::uint32_t> unmountRefusal;
        std::optional<std::uint32_t> mountRefusal;
    };

    using Disks = std::map<std::string, Entry>;

    /// The end of the disks where none is mounted there.
    [[nodiscard]] Disks::const_iterator diskMountedAt(const FileURL& path) const;
    void mount(Entry& entry, const std::string& path);
    void postReport(const common::Signal<const Disk&>& signal, const std::string& device);
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
    common::Signal<const Disk&> appeared_;
    common::Signal<const Disk&> disappeared_;
};

}  // namespace brisel::platform::simulated
