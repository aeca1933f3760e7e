// Mounts a volume on a private folder, verifies it, and attaches it to the user's folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "shared/Descriptor.h"
#include "tools/mount-tool/MountFolder.h"
#include "tools/mount-tool/NTFSDevice.h"
#include "tools/mount-tool/Result.h"
#include "tools/mount-tool/StagingFolder.h"

namespace brisel::mounttool {

using shared::Descriptor;

class Mount {
  public:
    /// Mounts the device on a private folder below /run. The destructor removes that folder, and
    /// unmounts the volume unless putOn has succeeded.
    static Result<Mount> make(const NTFSDevice& device, const Caller& caller);

    Mount(Mount&&) noexcept = default;
    Mount& operator=(Mount&&) = delete;
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;
    ~Mount() = default;

    /// Verifies that this is a read-write mount of `device`, without trusting the driver; creates
    /// and removes a file. nullopt if so, else the reason.
    [[nodiscard]] std::optional<Refusal> complaintAs(const NTFSDevice& device) const;

    /// Attaches the mount to `folder`. If the folder's path leads elsewhere by then, unmounts the
    /// volume and refuses.
    [[nodiscard]] std::optional<Refusal> putOn(const MountFolder& folder,
                                               const NTFSDevice& device) const;

  private:
    Mount(std::unique_ptr<StagingFolder> staging, Descriptor tree);

    // Kept until the end, so that observers of mountinfo never see the volume unmounted.
    std::unique_ptr<StagingFolder> staging_;
    Descriptor tree_;
};

}  // namespace brisel::mounttool
