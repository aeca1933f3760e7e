// What the log and the user are told when an unmount or a mount was refused.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/DiskArbitration.h"

namespace brisel {

class NTFSVolumeManager;

/// The log format for a dissenter's status; its one placeholder takes the disk's BSD name.
std::string_view dissenterStatusMessage(std::uint32_t status);

/// Error icon, log line, alert; then the busy state ends and the menu is rebuilt. Main thread;
/// blocks while the alert is up.
void reportUnmountFailure(NTFSVolumeManager& manager,
                          const std::optional<platform::Dissenter>& dissenter,
                          const platform::DiskDescription& description);

/// The same for a failed read-write mount, whose record is removed. Without a dissenter there is
/// no log line.
void reportRemountFailure(NTFSVolumeManager& manager,
                          const std::optional<platform::Dissenter>& dissenter,
                          const platform::DiskDescription& description);

}  // namespace brisel
