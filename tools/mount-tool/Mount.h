// A mount on its way: made where nobody else can reach, checked, and put on a person's folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "tools/mount-tool/Descriptor.h"
#include "tools/mount-tool/MountFolder.h"
#include "tools/mount-tool/NTFSDevice.h"
#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

class Mount {
  public:
    /// Lets the driver mount the device on a private folder below /run. With the object that folder
    /// goes, and unless `putOn` has succeeded the volume is unmounted.
    static Result<Mount> make(const NTFSDevice& device, const Person& person);

    Mount(Mount&&) noexcept;
    Mount& operator=(Mount&&) = delete;
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;
    ~Mount();

    /// Why this is not the read-write mount of the device that was asked for, or none. Does not
    /// rely on anything that the driver says; makes and removes a file on the volume.
    [[nodiscard]] std::optional<Refusal> complaintAs(const NTFSDevice& device) const;

    /// Attaches the mount to the folder. If that, by then, is not where its path leads, the volume
    /// is unmounted and the refusal says so.
    [[nodiscard]] std::optional<Refusal> putOn(const MountFolder& folder,
                                               const NTFSDevice& device) const;

  private:
    class StagingFolder;

    Mount(std::unique_ptr<StagingFolder> staging, Descriptor tree);

    // Stays until the end, so that whoever watches the mounts never sees the volume unmounted.
    std::unique_ptr<StagingFolder> staging_;
    Descriptor tree_;
};

}  // namespace brisel::mounttool
